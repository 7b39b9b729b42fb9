#include "examples/drivers/ppd/media.h"

#include <algorithm>
#include <cwctype>
#include <initializer_list>
#include <string_view>

#include "examples/common/made.h"

namespace {

using Ability = PX_Media_Ability_Flags;
using Value = PX_Ability_Value;
using Factory = PX_Plotter_Class_Factory;

// Nothing that comes in sheets is as long as this; rolls begin at four times the length.
constexpr float longest_sheet = 10000;
// Descriptions do not tell how many copies a device makes.
constexpr long most_copies = 999;

std::wstring lower(std::wstring text) {
    std::ranges::transform(text, text.begin(), [](wchar_t c) { return std::towlower(std::wint_t(c)); });
    return text;
}

// A number for a choice whose name holds the part; the first row that fits decides.
struct Meaning {
    std::wstring_view part;
    int number;
};

int meaning_of(const std::wstring& name, std::initializer_list<Meaning> meanings, int otherwise) {
    const std::wstring lowered = lower(name);
    for (const Meaning& meaning : meanings) {
        if (lowered.find(meaning.part) != std::wstring::npos)
            return meaning.number;
    }
    return otherwise;
}

// Every maker has its own word for nothing.
bool does_nothing(const std::wstring& name) {
    const std::wstring lowered = lower(name);
    return lowered == L"none" || lowered == L"off" || lowered == L"false" || lowered == L"no";
}

int stapling_location(const std::wstring& name) {
    if (does_nothing(name))
        return PX_Media_Stapling_Location::Stapling_Location_None;
    return meaning_of(name,
                      {{L"upperleft", 1},
                       {L"upperright", 2},
                       {L"lowerleft", 3},
                       {L"lowerright", 4},
                       {L"leftw", 5},
                       {L"rightw", 6},
                       {L"upperw", 7},
                       {L"lowerw", 8},
                       {L"center", 9}},
                      10);
}

int cutting_when(const std::wstring& name) {
    if (does_nothing(name))
        return PX_Media_Cutting_When::Cutting_When_0;
    return meaning_of(name, {{L"page", 1}, {L"set", 2}, {L"job", 3}}, 4);
}

int folding_type(const std::wstring& name) {
    if (does_nothing(name))
        return PX_Media_Folding_Type::Folding_Type_None;
    return meaning_of(name,
                      {{L"two", 1},
                       {L"half", 1},
                       {L"three", 2},
                       {L"tri", 2},
                       {L"z", 3},
                       {L"quarto", 4},
                       {L"gate", 5},
                       {L"fan", 6}},
                      7);
}

// 0 for a choice that the toolkit has no bit for.
int duplexing_mode(const std::wstring& name) {
    if (does_nothing(name))
        return Ppd_Duplex::None;
    return meaning_of(name,
                      {{L"simplex", Ppd_Duplex::None},
                       {L"notumble", Ppd_Duplex::Long_Edge},
                       {L"tumble", Ppd_Duplex::Short_Edge}},
                      0);
}

// "Roll 1", "1Roll" and "PaperRoll" are rolls, "Controller" is none.
bool is_called_roll(const std::wstring& name) {
    for (std::size_t at = 0; at + 4 <= name.size(); ++at) {
        const std::wstring word = name.substr(at, 4);
        const bool begins = at == 0 || !std::iswalpha(std::wint_t(name[at - 1])) || word[0] == L'R';
        if (begins && lower(word) == L"roll")
            return true;
    }
    return false;
}

bool is_called_roll(const Ppd_Choice& slot) {
    return is_called_roll(slot.name) || is_called_roll(slot.text);
}

bool is_for_single_sheets(const Ppd_Choice& slot) {
    return meaning_of(slot.name + L' ' + slot.text,
                      {{L"manual", 1}, {L"sheet", 1}, {L"bypass", 1}, {L"multi", 1}, {L"cassette", 1}},
                      0) != 0;
}

Ppd_Option first_option(const Ppd_File& file, std::initializer_list<const char*> keywords) {
    for (const char* const keyword : keywords) {
        if (Ppd_Option found = file.option(keyword); !found.choices.empty())
            return found;
    }
    return {};
}

// "600dpi" and "600x1200dpi": the largest numbers, each way, that any choice names.
PX_Float_XY best_resolution(const Ppd_File& file) {
    PX_Float_XY best;
    std::vector<std::wstring> names = {file.text("DefaultResolution")};
    for (const Ppd_Choice& choice : file.option("Resolution").choices)
        names.push_back(choice.name);
    for (const std::wstring& name : names) {
        wchar_t* end = nullptr;
        const float x = std::wcstof(name.c_str(), &end);
        const float y = end && *end == L'x' ? std::wcstof(end + 1, nullptr) : x;
        // No device comes near to this; a word such as "inf" is no resolution.
        if (x > 0 && y > 0 && x < 1e5F && y < 1e5F)
            best = {std::max(best.x, x), std::max(best.y, y)};
    }
    return best;
}

// One entry a choice, with its names; `fill(entry, choice)` does the rest.
template <class Entry, class Fill>
PX_Smart_Pointer<PX_Named_Object_List<Entry>> listed(const std::vector<Ppd_Choice>& choices,
                                                     const Factory& factory,
                                                     PX_Named_Object_List<Entry>* (Factory::*new_list)()
                                                         const,
                                                     Entry* (Factory::*new_entry)() const, Fill fill) {
    auto list = made((factory.*new_list)(), L"list");
    for (const Ppd_Choice& choice : choices) {
        const auto entry = made((factory.*new_entry)(), L"entry");
        entry->set_canonical_name(choice.name.c_str());
        entry->set_localized_name(choice.text.c_str());
        fill(*entry, choice);
        list->append(entry);
    }
    return list;
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
        fill_destinations();
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
        if (is_called_roll(slot))
            return Ppd_Feed::Roll;
        const bool manual = meaning_of(slot.name + L' ' + slot.text, {{L"manual", 1}}, 0) != 0;
        return manual ? Ppd_Feed::Manual : Ppd_Feed::Auto;
    }

    Ppd_Feed::Enum feed_of(const Ppd_Choice& slot) const {
        const Ppd_Feed::Enum by_name = feed_by_name(slot);
        const auto own = m_file.largest_custom_size();
        const bool all_rolls =
            own && own->second > longest_sheet &&
            std::ranges::none_of(m_sources, [](const Source& source) { return is_called_roll(source); });
        return all_rolls && !is_for_single_sheets(slot) ? Ppd_Feed::Roll : by_name;
    }

    void fill_types() {
        const Ppd_Option types = m_file.option("MediaType");
        const PX_Float_XY resolution = best_resolution(m_file);
        const auto fill = [&](PX_Media_Type& type, const Ppd_Choice&) {
            type.set_max_resolution(&resolution);
        };
        m_capabilities.set_media_type_list(listed(types.choices, m_factory,
                                                  &Factory::MK_Create_Media_Type_List,
                                                  &Factory::MK_Create_Media_Type, fill)
                                               .get());
        m_capabilities.set_default_media_type(types.default_choice.c_str());
        allow_choice(types.choices.size(), Ability::Ability_Media_Type, Ability::Ability_Media_Type_Default);
    }

    // A datum that leads to no other, with what is taken from the catalogue for it.
    void allow_choice(std::size_t choices, Ability::Enum gate, Ability::Enum default_test) {
        if (choices == 0)
            return;
        allow(choices > 1 ? Value::Ability_Settable_Listed : Value::Ability_Fixed, {gate});
        allow(Value::Ability_Settable_Listed, {default_test});
    }

    void fill_sizes() {
        const auto sizes = made(m_factory.MK_Create_Media_Size_List(), L"sizes");
        const auto descriptions = made(m_factory.MK_Create_Media_Description_List(), L"descriptions");
        for (const Ppd_Size& sheet : m_sizes) {
            const auto size = made(m_factory.MK_Create_Media_Size(), L"size");
            size->set_canonical_name(sheet.name.c_str());
            size->set_localized_name(sheet.text.c_str());
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
        auto description = made(m_factory.MK_Create_Media_Description(), L"description");
        description->set_canonical_name(sheet.name.c_str());
        description->set_localized_name(sheet.text.c_str());
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
            const auto source = made(m_factory.MK_Create_Media_Source(), L"source");
            source->set_canonical_name(slot.name.c_str());
            source->set_localized_name(slot.text.c_str());
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
        auto entry = made(m_factory.MK_Create_Media_Source_Entry(), L"entry");
        entry->set_canonical_name(slot.name.c_str());
        entry->set_localized_name(slot.text.c_str());
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

    void fill_destinations() {
        Ppd_Option bins = m_file.option("OutputBin");
        const Ppd_Option collate = first_option(m_file, {"Collate", "KMCollate"});
        const Ppd_Option staple = first_option(m_file, {"StapleLocation", "KCStaple", "KMStapleMode",
                                                        "KmStaple", "ARStaple", "Stapling", "Staple"});
        const Ppd_Option cut = first_option(m_file, {"CutMedia", "TrimmerCutAndPosition", "RICutSize"});
        const Ppd_Option fold =
            first_option(m_file, {"FoldType", "RIFoldType", "KCFold", "ARFold", "Fold", "RIZfold"});
        const auto has = [](const Ppd_Option& option) { return !option.choices.empty(); };
        const bool finishes = has(collate) || has(staple) || has(cut) || has(fold);
        if (!has(bins) && finishes)
            bins = {{{L"Output", L"Output"}}, L"Output"};

        const auto collating = listed(
            collate.choices, m_factory, &Factory::MK_Create_Media_Collating_List,
            &Factory::MK_Create_Media_Collating, [](PX_Media_Collating& option, const Ppd_Choice& choice) {
                option.set_collating_type(
                    static_cast<PX_Media_Collating_Type::Enum>(does_nothing(choice.name) ? 0 : 1));
            });
        const auto stapling = listed(
            staple.choices, m_factory, &Factory::MK_Create_Media_Stapling_List,
            &Factory::MK_Create_Media_Stapling, [](PX_Media_Stapling& option, const Ppd_Choice& choice) {
                option.set_stapling_location(
                    static_cast<PX_Media_Stapling_Location::Enum>(stapling_location(choice.name)));
                option.set_stapling_when(
                    static_cast<PX_Media_Stapling_When::Enum>(does_nothing(choice.name) ? 0 : 1));
            });
        const auto cutting = listed(
            cut.choices, m_factory, &Factory::MK_Create_Media_Cutting_List, &Factory::MK_Create_Media_Cutting,
            [](PX_Media_Cutting& option, const Ppd_Choice& choice) {
                option.set_cutting_when(static_cast<PX_Media_Cutting_When::Enum>(cutting_when(choice.name)));
            });
        const auto folding = listed(
            fold.choices, m_factory, &Factory::MK_Create_Media_Folding_List,
            &Factory::MK_Create_Media_Folding, [](PX_Media_Folding& option, const Ppd_Choice& choice) {
                option.set_folding_type(static_cast<PX_Media_Folding_Type::Enum>(folding_type(choice.name)));
                option.set_folding_when(
                    static_cast<PX_Media_Folding_When::Enum>(does_nothing(choice.name) ? 0 : 1));
            });
        const auto destinations =
            listed(bins.choices, m_factory, &Factory::MK_Create_Media_Destination_List,
                   &Factory::MK_Create_Media_Destination, [&](PX_Media_Destination& bin, const Ppd_Choice&) {
                       bin.set_collating_list(collating.get());
                       bin.set_default_collating(collate.default_choice.c_str());
                       bin.set_stapling_list(stapling.get());
                       bin.set_default_stapling(staple.default_choice.c_str());
                       bin.set_cutting_list(cutting.get());
                       bin.set_default_cutting(cut.default_choice.c_str());
                       bin.set_folding_list(folding.get());
                       bin.set_default_folding(fold.default_choice.c_str());
                   });
        m_capabilities.set_media_destination_list(destinations.get());
        m_capabilities.set_default_media_destination(bins.default_choice.c_str());
        allow_choice(bins.choices.size(), Ability::Ability_Media_Destination,
                     Ability::Ability_Media_Destination_Default);
        // Finishing is reached through the destination, a single one too.
        if (finishes)
            allow(Value::Ability_Settable_Listed, {Ability::Ability_Media_Destination});
        const auto allow_finishing = [&](const Ppd_Option& option, Ability::Enum flag) {
            if (has(option))
                allow(Value::Ability_Settable_Listed, {flag});
        };
        allow_finishing(collate, Ability::Ability_Media_Collating);
        allow_finishing(staple, Ability::Ability_Media_Stapling);
        allow_finishing(cut, Ability::Ability_Media_Cutting);
        allow_finishing(fold, Ability::Ability_Media_Folding);
    }

    void fill_duplexing() {
        const Ppd_Option duplex = m_file.option("Duplex");
        int modes = 0;
        for (const Ppd_Choice& choice : duplex.choices)
            modes |= duplexing_mode(choice.name);
        if (modes == 0)
            modes = Ppd_Duplex::None;
        int preferred = duplexing_mode(duplex.default_choice);
        if (!(preferred & modes))
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

void Ppd_Media_Validator::set_source_to_nearest() {
    const auto roots = m_plotter->get_plotter_capabilities();
    const auto choices = m_plotter->get_plotter_configuration();
    const auto media = roots ? roots->get_media_capabilities() : nullptr;
    const auto chosen = choices ? choices->get_media_configuration() : nullptr;
    const auto had = chosen ? chosen->get_media_settings() : nullptr;
    const auto sources = media ? media->get_media_source_list() : nullptr;
    bool has_feed = false;
    if (had && sources) {
        for (const auto& source : *sources)
            has_feed |= source->get_caps_type() != PX_Caps_Type::Caps_Type_Withdrawn &&
                        source->get_media_feed() == had->get_media_feed();
    }
    // Where something is missing altogether, the standard operation says so.
    if (has_feed || !had || !sources)
        PX_Std_Media_Validator::set_source_to_nearest();
    else
        px_frame(L"Ppd_Media_Validator::set_source_to_nearest", [&] { set_source_to_default(); });
}
