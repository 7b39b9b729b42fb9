#include "examples/drivers/ppd/media.h"

#include <algorithm>
#include <cwchar>
#include <initializer_list>
#include <string>
#include <vector>

#include "examples/common/made.h"
#include "examples/drivers/ppd/finishing.h"
#include "examples/drivers/ppd/names.h"
#include "examples/drivers/ppd/resolutions.h"

namespace {

using Ability = PX_Media_Ability_Flags;
using Value = PX_Ability_Value;
using Factory = PX_Plotter_Class_Factory;

// Nothing that comes in sheets is as long as this; rolls begin at four times the length.
constexpr float longest_sheet = 10000;
// Descriptions do not tell how many copies a device makes.
constexpr long most_copies = 999;

// 0 for a choice that the toolkit has no bit for.
int duplexing_mode(const Ppd_Choice& choice) {
    constexpr Ppd_Meaning meanings[] = {{L"simplex", Ppd_Duplex::None},
                                        {L"notumble", Ppd_Duplex::Long_Edge},
                                        {L"tumble", Ppd_Duplex::Short_Edge}};
    return ppd_does_nothing(choice) ? Ppd_Duplex::None : ppd_meaning_of(choice.name, meanings).value_or(0);
}

bool is_manual(const Ppd_Choice& slot) {
    constexpr Ppd_Meaning meanings[] = {{L"manual", 1}};
    return ppd_meaning_of(slot.name + L' ' + slot.text, meanings).has_value();
}

bool is_for_single_sheets(const Ppd_Choice& slot) {
    constexpr Ppd_Meaning meanings[] = {{L"sheet", 1}, {L"bypass", 1}, {L"multi", 1}, {L"cassette", 1}};
    return is_manual(slot) || ppd_meaning_of(slot.name + L' ' + slot.text, meanings).has_value();
}

// The largest numbers, each way, that any choice has.
PX_Float_XY best_resolution(const Ppd_File& file) {
    PX_Float_XY best;
    for (const Ppd_Resolution& choice : ppd_resolutions(file).choices)
        best = {std::max(best.x, choice.dpi.x), std::max(best.y, choice.dpi.y)};
    return best;
}

// Fills the capabilities, a kind of catalogue entry after the other.
class Media_Side {
public:
    Media_Side(const Ppd_File& file, const Factory& factory, PX_Media_Capabilities& capabilities)
        : m_file(file),
          m_factory(factory),
          m_capabilities(capabilities),
          m_sizes(file.sizes()),
          m_slots(file.option("InputSlot")) {
        add_manual_feed();
        leave_out_slots_without_sizes();
    }

    void fill() {
        fill_types();
        fill_sizes();
        fill_sources();
        ppd_fill_destinations(m_file, m_factory, m_capabilities);
        fill_duplexing();
        fill_limits();
        allow(Value::Ability_Settable_Listed, {Ability::Ability_Dm_Scale, Ability::Ability_Dm_Orientation,
                                               Ability::Ability_Number_Of_Copies});
        m_capabilities.set_max_number_of_copies(most_copies);
    }

private:
    void allow(Value::Enum value, std::initializer_list<Ability::Enum> flags) {
        for (const Ability::Enum flag : flags)
            m_capabilities.set_one_ability(value, flag);
    }

    // Some files tell of it apart from the slots.
    void add_manual_feed() {
        const bool has_own = std::ranges::any_of(
            m_slots.choices, [](const Ppd_Choice& slot) { return feed_by_name(slot) == Ppd_Feed::Manual; });
        for (const Ppd_Choice& choice : m_file.option("ManualFeed").choices) {
            if (choice.name != L"True" || has_own)
                continue;
            m_slots.choices.push_back({L"ManualFeed", L"Manual Feed"});
            if (m_slots.default_choice.empty())
                m_slots.default_choice = L"ManualFeed";
        }
    }

    void leave_out_slots_without_sizes() {
        const auto apart = m_file.slots_without_sizes();
        for (const Ppd_Choice& slot : m_slots.choices) {
            Source source{slot, {}};
            for (const Ppd_Size& size : m_sizes) {
                if (!apart.contains({slot.name, size.name}))
                    source.sizes.push_back(&size);
            }
            if (!source.sizes.empty())
                m_sources.push_back(std::move(source));
        }
    }

    struct Source : Ppd_Choice {
        std::vector<const Ppd_Size*> sizes;
    };

    static Ppd_Feed::Enum feed_by_name(const Ppd_Choice& slot) {
        if (ppd_is_called_roll(slot))
            return Ppd_Feed::Roll;
        return is_manual(slot) ? Ppd_Feed::Manual : Ppd_Feed::Auto;
    }

    Ppd_Feed::Enum feed_of(const Ppd_Choice& slot) const {
        const Ppd_Feed::Enum by_name = feed_by_name(slot);
        const auto own = m_file.largest_custom_size();
        const bool all_rolls =
            own && own->second > longest_sheet &&
            std::ranges::none_of(m_sources, [](const Source& source) { return ppd_is_called_roll(source); });
        return all_rolls && !is_for_single_sheets(slot) ? Ppd_Feed::Roll : by_name;
    }

    void fill_types() {
        const Ppd_Option types = m_file.option("MediaType");
        const PX_Float_XY resolution = best_resolution(m_file);
        const auto list = made(m_factory.MK_Create_Media_Type_List(), L"types");
        for (const Ppd_Choice& choice : types.choices) {
            const auto type = made_named(m_factory.MK_Create_Media_Type(), L"type", choice.name.c_str(),
                                         choice.text.c_str());
            type->set_max_resolution(&resolution);
            list->append(type);
        }
        m_capabilities.set_media_type_list(list.get());
        m_capabilities.set_default_media_type(types.default_choice.c_str());
        if (types.choices.empty())
            return;
        allow(types.choices.size() > 1 ? Value::Ability_Settable_Listed : Value::Ability_Fixed,
              {Ability::Ability_Media_Type});
        allow(Value::Ability_Settable_Listed, {Ability::Ability_Media_Type_Default});
    }

    void fill_sizes() {
        const auto sizes = made(m_factory.MK_Create_Media_Size_List(), L"sizes");
        const auto descriptions = made(m_factory.MK_Create_Media_Description_List(), L"descriptions");
        for (const Ppd_Size& sheet : m_sizes) {
            const auto size =
                made_named(m_factory.MK_Create_Media_Size(), L"size", sheet.name.c_str(), sheet.text.c_str());
            size->set_media_description(sheet.name.c_str());
            size->set_landscape_mode_flag(sheet.width > sheet.height);
            sizes->append(size);
            descriptions->append(description_of(sheet));
        }
        m_capabilities.set_media_size_list(sizes.get());
        m_capabilities.set_media_description_list(descriptions.get());
        std::vector<const Ppd_Size*> all;
        for (const Ppd_Size& size : m_sizes)
            all.push_back(&size);
        m_capabilities.set_default_media_size(default_among(all).c_str());
        const auto method = m_sources.empty() ? PX_Media_Selection_Method::Media_Selection_Direct
                                              : PX_Media_Selection_Method::Media_Selection_By_Source;
        m_capabilities.set_media_selection_methods(method);
        m_capabilities.set_default_media_selection_method(method);
        // A foreign method would look for the size where there is none.
        allow(Value::Ability_Required, {Ability::Ability_Media_Selection_Method});
        if (m_sizes.empty())
            return;
        allow(Value::Ability_Required,
              {Ability::Ability_Media_Size, Ability::Ability_Actual_Printable_Bounds});
        allow(Value::Ability_Settable_Listed,
              {Ability::Ability_Media_Size_Default, Ability::Ability_Media_Margins_Default});
    }

    PX_Smart_Pointer<PX_Media_Description> description_of(const Ppd_Size& sheet) {
        auto description = made_named(m_factory.MK_Create_Media_Description(), L"description",
                                      sheet.name.c_str(), sheet.text.c_str());
        const PX_Float_XY extent(sheet.width, sheet.height);
        description->set_media_bounds(&extent);
        const PX_Float_Rectangle printable(sheet.left, sheet.right - 1, sheet.bottom, sheet.top - 1);
        description->set_printable_bounds(&printable);
        description->set_printable_area(double{printable.x_extent()} * double{printable.y_extent()});
        return description;
    }

    // The size that the file calls its default, or the first; empty when there is none.
    std::wstring default_among(const std::vector<const Ppd_Size*>& sizes) const {
        const std::wstring wanted = m_file.option("PageSize").default_choice;
        const auto found = std::ranges::find(sizes, wanted, [](const Ppd_Size* size) { return size->name; });
        if (found != sizes.end())
            return wanted;
        return sizes.empty() ? L"" : sizes.front()->name;
    }

    void fill_sources() {
        const auto sources = made(m_factory.MK_Create_Media_Source_List(), L"sources");
        for (const Source& slot : m_sources) {
            const auto source = made_named(m_factory.MK_Create_Media_Source(), L"source", slot.name.c_str(),
                                           slot.text.c_str());
            const Ppd_Feed::Enum feed = feed_of(slot);
            source->set_media_feed(static_cast<PX_Media_Feed::Enum>(feed));
            const auto entries = made(m_factory.MK_Create_Media_Source_Entry_List(), L"entries");
            entries->append(entry_of(slot, feed));
            source->set_source_entry_list(entries.get());
            source->set_default_source_entry(slot.name.c_str());
            sources->append(source);
        }
        m_capabilities.set_media_source_list(sources.get());
        if (m_sources.empty())
            return;
        const auto wanted = std::ranges::find(m_sources, m_slots.default_choice, &Ppd_Choice::name);
        const Source& preferred = wanted == m_sources.end() ? m_sources.front() : *wanted;
        m_capabilities.set_default_media_source(preferred.name.c_str());
        allow(Value::Ability_Required, {Ability::Ability_Media_Source, Ability::Ability_Media_Source_Entry});
        allow(Value::Ability_Settable_Listed,
              {Ability::Ability_Media_Source_Default, Ability::Ability_Media_Source_Entry_Default});
    }

    PX_Smart_Pointer<PX_Media_Source_Entry> entry_of(const Source& slot, Ppd_Feed::Enum feed) {
        auto entry = made_named(m_factory.MK_Create_Media_Source_Entry(), L"entry", slot.name.c_str(),
                                slot.text.c_str());
        const auto names = made(m_factory.MK_Create_Media_Size_Name_List(), L"names");
        float width = 0;
        float height = feed == Ppd_Feed::Roll ? roll_height() : 0;
        for (const Ppd_Size* const size : slot.sizes) {
            const auto name = made(m_factory.MK_Create_Media_Size_In_Source(), L"name");
            name->set_canonical_name(size->name.c_str());
            names->append(name);
            width = std::max(width, size->width);
            height = std::max(height, size->height);
        }
        entry->set_media_size_name_list(names.get());
        entry->set_default_media_size(default_among(slot.sizes).c_str());
        entry->set_source_width(width);
        entry->set_source_frame_height(height);
        return entry;
    }

    float tallest_size() const {
        float height = 0;
        for (const Ppd_Size& size : m_sizes)
            height = std::max(height, size.height);
        return height;
    }

    // No listed sheet is ever too long for the roll.
    float roll_height() const {
        const auto own = m_file.largest_custom_size();
        return std::max(own ? own->second : 0, tallest_size());
    }

    void fill_limits() {
        const auto own = m_file.largest_custom_size();
        float width = own ? own->first : 0;
        for (const Ppd_Size& size : m_sizes)
            width = std::max(width, size.width);
        const bool endless = own && own->second > longest_sheet;
        const bool has_roll = endless || std::ranges::any_of(m_sources, [this](const Source& source) {
                                  return feed_of(source) == Ppd_Feed::Roll;
                              });
        // What is longer than the listed sheets comes off the roll alone, where there is one.
        const float height = has_roll ? tallest_size() : roll_height();
        const PX_Float_XY largest(width, height);
        m_capabilities.set_media_size_max(&largest);
        if (!m_sizes.empty())
            allow(Value::Ability_Fixed, {Ability::Ability_Media_Size_Limit});
        // A plot of one sheet is as long as it is: without a roll, the factor has its one value.
        allow(has_roll ? Value::Ability_Settable_Listed : Value::Ability_Fixed,
              {Ability::Ability_Longplot_Reduction});
        if (has_roll) {
            m_capabilities.set_media_roll_max_height(roll_height());
            allow(Value::Ability_Fixed, {Ability::Ability_Roll_Limit});
        }
    }

    void fill_duplexing() {
        const Ppd_Option duplex = m_file.option("Duplex");
        int modes = 0;
        int preferred = 0;
        for (const Ppd_Choice& choice : duplex.choices) {
            modes |= duplexing_mode(choice);
            if (choice.name == duplex.default_choice)
                preferred = duplexing_mode(choice);
        }
        if (modes == 0)
            modes = Ppd_Duplex::None;
        if (preferred == 0)
            preferred = modes & -modes;  // the lowest bit
        m_capabilities.set_duplexing_modes(modes);
        m_capabilities.set_default_duplexing_mode(static_cast<PX_Duplexing_Mode::Enum>(preferred));
        const bool one_mode = (modes & (modes - 1)) == 0;
        allow(one_mode ? Value::Ability_Fixed : Value::Ability_Settable_Listed, {Ability::Ability_Duplexing});
    }

    const Ppd_File& m_file;
    const Factory& m_factory;
    PX_Media_Capabilities& m_capabilities;
    std::vector<Ppd_Size> m_sizes;
    Ppd_Option m_slots;
    std::vector<Source> m_sources;
};

}  // namespace

PX_Smart_Pointer<PX_Media_Capabilities> ppd_media_capabilities(const Ppd_File& file,
                                                               const PX_Plotter_Class_Factory& factory) {
    auto capabilities = made(factory.MK_Create_Media_Capabilities(), L"media_capabilities");
    Media_Side(file, factory, *capabilities).fill();
    return capabilities;
}

std::vector<std::string> ppd_media_keywords(const Ppd_File& file) {
    std::vector<std::string> keywords = ppd_finishing_keywords(file);
    // The region repeats the sizes for those who choose the slot too.
    for (const char* const keyword :
         {"PageSize", "PageRegion", "InputSlot", "ManualFeed", "MediaType", "OutputBin", "Duplex"})
        keywords.emplace_back(keyword);
    return keywords;
}
