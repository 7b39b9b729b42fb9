#include "toolkit/report/domain_checks.h"

// Sources, their entries, and the sizes: each is looked for through the one before.

using Ability = PX_Media_Ability_Flags;
using Change = PX_Media_Change;
using Fault = PX_Device_Fault;

namespace {

constexpr unsigned int nothing_there = PX_Code::Null_Argument;

class Sizes_Check {
public:
    Sizes_Check(const PX_Media_Capabilities& device, const PX_Findings& found)
        : m_device(device), m_found(found) {
        const PX_Ability_Of method = of(Ability::Ability_Media_Selection_Method);
        constexpr long through_a_source = PX_Media_Selection_Method::Media_Selection_By_Source;
        const long preset = m_device.get_default_media_selection_method();
        const long offered = m_device.get_media_selection_methods();
        // Without the ability, a choice keeps the method that it came with.
        m_by_source =
            method.is_fixed() ? preset == through_a_source : method.is_none() || (offered & through_a_source);
        // A default of several methods is no method of sources.
        m_directly = method.is_fixed() ? preset != through_a_source
                                       : method.is_none() || (offered & ~through_a_source) ||
                                             (preset != through_a_source && (preset & offered));
    }

    void run() const {
        check_sources();
        check_order();
        px_check_names(m_device.get_media_description_list(), L"", L"description", m_found);
        check_sizes();
        check_default_size();
    }

private:
    PX_Ability_Of of(Ability::Enum flag) const { return m_device.get_one_ability(flag); }
    bool is_validated(Ability::Enum gate) const { return of(gate).is_validated(); }
    bool has_default(Ability::Enum ability) const { return of(ability).is_listed(); }
    PX_Smart_Pointer<PX_Media_Description> description_of(const PX_Media_Size& size) const {
        return m_device.get_media_description(size.get_media_description());
    }

    // Calls `visit(entry, the way to it)`.
    template <class Visit>
    void for_each_entry(Visit visit) const {
        px_for_each_there(m_device.get_media_source_list(), [&](const PX_Media_Source& source) {
            px_for_each_there(source.get_source_entry_list(), [&](const PX_Media_Source_Entry& entry) {
                visit(entry, px_in(px_named(L"source", source), px_named(L"entry", entry)));
            });
        });
    }

    void check_sources() const {
        const auto sources = m_device.get_media_source_list();
        const bool validated = is_validated(Ability::Ability_Media_Source);
        const bool presets = has_default(Ability::Ability_Media_Source_Default);
        px_check_names(sources, L"", L"source", m_found, px_bits_if(validated, Change::Source));
        if (validated && !sources)
            m_found.throws(L"sources", Fault::List_Missing, PX_Media_Code::No_Sources);
        else if (validated && !px_has_one_there(sources))
            m_found.throws(L"sources", Fault::Nothing_To_Take, nothing_there, L"newsource");
        if (validated && !presets)
            m_found.repeats(L"source", Fault::Default_Not_Written, Change::Source);
        px_for_each_there(sources, [&](const PX_Media_Source& source) { check_source(source, validated); });
        if (!presets)
            return;
        const wchar_t* const name = m_device.get_default_media_source();
        const auto preset = m_device.get_media_source(name);
        if (!preset)
            m_found.throws(px_named(L"default source", name), Fault::Names_Nothing, nothing_there,
                           L"newsource");
        else if (!px_is_there(preset))
            m_found.throws(px_named(L"default source", name), Fault::Names_Withdrawn,
                           PX_Media_Code::Default_Source);
    }

    void check_source(const PX_Media_Source& source, bool source_is_validated) const {
        const std::wstring way = px_named(L"source", source);
        if (source_is_validated && source.get_media_feed() == PX_Media_Feed::Media_Feed_Unset)
            m_found.repeats(way, Fault::Feed_Unset, Change::Source);
        const bool validated = is_validated(Ability::Ability_Media_Source_Entry);
        // Its entry is not looked at, and the size is looked for in any.
        if (!*px_text(source.get_canonical_name()) && validated && m_by_source &&
            is_validated(Ability::Ability_Media_Size))
            m_found.throws(way, Fault::Name_Empty, PX_Media_Code::Entry_Missing);
        const auto entries = source.get_source_entry_list();
        px_check_names(entries, way, L"entry", m_found, px_bits_if(validated, Change::Source_Entry));
        if (validated && !entries)
            m_found.throws(px_in(way, L"entries"), Fault::List_Missing, PX_Media_Code::No_Entries);
        else if (validated && !px_has_one_there(entries, [](const PX_Media_Source_Entry& entry) {
                     return px_is_measure(extent_of(entry));
                 }))
            m_found.throws(px_in(way, L"entries"), Fault::Nothing_To_Take, nothing_there, L"newentry");
        px_for_each_there(entries, [&](const PX_Media_Source_Entry& entry) {
            const PX_Float_XY extent = extent_of(entry);
            px_check_measure(px_is_nan(extent), px_is_measure(extent), px_in(way, px_named(L"entry", entry)),
                             validated, L"newentry", m_found);
        });
        if (!has_default(Ability::Ability_Media_Source_Entry_Default))
            return;
        const wchar_t* const name = source.get_default_source_entry();
        const auto preset = source.get_source_entry(name);
        const std::wstring object = px_in(way, px_named(L"default entry", name));
        if (!preset)
            m_found.throws(object, Fault::Names_Nothing, nothing_there, L"newentry");
        else if (!px_is_there(preset))
            m_found.throws(object, Fault::Names_Withdrawn, PX_Media_Code::Default_Entry);
    }

    static PX_Float_XY extent_of(const PX_Media_Source_Entry& entry) {
        return {entry.get_source_width(), entry.get_source_frame_height()};
    }

    // What a datum needs of those before it, where no default of theirs is written.
    void check_order() const {
        const bool source_is_sure = has_default(Ability::Ability_Media_Source_Default);
        const bool entry_has_default = has_default(Ability::Ability_Media_Source_Entry_Default);
        const bool size_has_default = has_default(Ability::Ability_Media_Size_Default);
        const bool entry_is_validated = is_validated(Ability::Ability_Media_Source_Entry);
        const bool size_is_validated = is_validated(Ability::Ability_Media_Size);
        if (!source_is_sure && (entry_is_validated || entry_has_default))
            m_found.throws(L"source entry", Fault::Not_Ensured, nothing_there, L"newentry");
        if (entry_is_validated && !entry_has_default)
            m_found.repeats(L"source entry", Fault::Default_Not_Written, Change::Source_Entry);
        if (m_by_source && size_is_validated && !source_is_sure)
            m_found.throws(L"size by source", Fault::Not_Ensured, PX_Media_Code::Source_Missing);
        if (m_by_source && size_is_validated && !entry_has_default)
            m_found.throws(L"size by source", Fault::Not_Ensured, PX_Media_Code::Entry_Missing);
        if (m_by_source && size_has_default && !(source_is_sure && entry_has_default))
            m_found.throws(L"default size by source", Fault::Not_Ensured,
                           PX_Media_Code::Default_Size_Of_Source);
        if (size_is_validated && !size_has_default)
            m_found.repeats(L"size", Fault::Default_Not_Written, Change::Size);
        // Size and margins have one gate.
        if (size_is_validated && !size_has_default)
            m_found.throws(L"margins", Fault::Not_Ensured, nothing_there, L"margins");
        else if (!size_has_default && is_validated(Ability::Ability_Actual_Printable_Bounds))
            m_found.throws(L"actual printable bounds", Fault::Not_Ensured, nothing_there, L"newsize");
    }

    void check_sizes() const {
        const auto sizes = m_device.get_media_size_list();
        px_check_names(sizes, L"", L"size", m_found,
                       px_bits_if(is_validated(Ability::Ability_Media_Size), Change::Size));
        if (m_directly && is_validated(Ability::Ability_Media_Size) && !sizes)
            m_found.throws(L"sizes", Fault::List_Missing, PX_Media_Code::No_Sizes);
        px_for_each_there(sizes, [&](const PX_Media_Size& size) { check_size(size); });
        px_for_each_named(sizes, [&](const PX_Media_Size& size) {
            if (!px_is_withdrawn(size) || !has_default(Ability::Ability_Media_Size_Default))
                check_inside(size);
        });
        if (m_by_source)
            for_each_entry([&](const PX_Media_Source_Entry& entry, const std::wstring& way) {
                check_names_of(entry, way);
            });
    }

    void check_size(const PX_Media_Size& size) const {
        const bool validated = is_validated(Ability::Ability_Media_Size) && is_within_reach(size);
        const auto description = description_of(size);
        const std::wstring way = px_named(L"size", size);
        const std::wstring sheet = px_in(way, px_named(L"description", size.get_media_description()));
        if (!px_is_there(description)) {
            const auto fault = px_fault_of_name(description);
            const bool stays = is_validated(Ability::Ability_Media_Size) &&
                               !has_default(Ability::Ability_Media_Size_Default);
            if (validated && !description)
                m_found.throws(sheet, fault, PX_Code::No_Memory, L"work_descr");
            if (stays)
                m_found.throws(sheet, fault, nothing_there, L"description_list");
            // A withdrawn one makes the size a withdrawn one.
            else if (!validated || description)
                m_found.passes_over(sheet, fault);
            return;
        }
        const auto bounds = px_value(description->get_media_bounds());
        const auto printable = px_value(description->get_printable_bounds());
        const bool is_nan =
            px_is_nan(bounds) || px_is_nan(printable) || std::isnan(description->get_printable_area());
        const bool is_measure = px_is_measure(bounds) && px_is_measure({printable.x_min, printable.x_max}) &&
                                px_is_measure({printable.y_min, printable.y_max});
        // The search for a size may fail, and the default takes its place.
        if (is_nan && validated && is_default(size))
            m_found.repeats(sheet, Fault::No_Measure, Change::Size);
        else if (is_nan || !is_measure)
            m_found.passes_over(sheet, Fault::No_Measure);
        // The searches ask for no limit: the size is the nearest to itself.
        if (validated && m_directly && is_limited() && !fits_directly(bounds))
            m_found.repeats(way, Fault::Beyond_Limit, Change::Size);
    }

    // Margins that are put on bounds without an inside are off them again.
    void check_inside(const PX_Media_Size& size) const {
        const long bits = px_bits_if(is_validated(Ability::Ability_Media_Size), Change::Margins) |
                          px_bits_if(is_validated(Ability::Ability_Actual_Printable_Bounds),
                                     Change::Actual_Printable_Bounds);
        const auto description = description_of(size);
        if (!bits || !px_is_there(description))
            return;
        const auto printable = px_value(description->get_printable_bounds());
        if (!(printable.x_min < printable.x_max && printable.y_min < printable.y_max))
            m_found.repeats(
                px_in(px_named(L"size", size), px_named(L"description", size.get_media_description())),
                Fault::Bounds_Empty, bits);
    }

    bool is_default(const PX_Media_Size& size) const {
        const auto names = [&](const wchar_t* name) { return m_device.get_media_size(name).get() == &size; };
        bool is_named = m_directly && names(m_device.get_default_media_size());
        for_each_entry([&](const PX_Media_Source_Entry& entry, const std::wstring&) {
            is_named = is_named || (m_by_source && names(entry.get_default_media_size()));
        });
        return is_named;
    }
    bool is_within_reach(const PX_Media_Size& size) const {
        bool is_named = m_directly;
        for_each_entry([&](const PX_Media_Source_Entry& entry, const std::wstring&) {
            const auto names = entry.get_media_size_name_list();
            is_named =
                is_named || (m_by_source && names && px_is_there(names->find(size.get_canonical_name())));
        });
        return is_named;
    }

    bool is_limited() const { return of(Ability::Ability_Media_Size_Limit).is_above_none(); }
    bool fits_directly(const PX_Float_XY& sheet) const {
        const auto largest = px_value(m_device.get_media_size_max());
        return !(sheet.x > largest.x) &&
               (sheet.y <= largest.y || !(sheet.y > m_device.get_media_roll_max_height()));
    }
    bool fits_source(const PX_Float_XY& sheet, bool is_roll) const {
        const auto largest = px_value(m_device.get_media_size_max());
        return sheet.x <= largest.x &&
               sheet.y <= (is_roll ? m_device.get_media_roll_max_height() : largest.y);
    }

    void check_names_of(const PX_Media_Source_Entry& entry, const std::wstring& way) const {
        const bool validated = is_validated(Ability::Ability_Media_Size);
        const auto names = entry.get_media_size_name_list();
        px_check_names(names, way, L"size", m_found, px_bits_if(validated, Change::Size));
        if (validated && !names)
            m_found.throws(
                px_in(way, L"sizes"), Fault::List_Missing, PX_Code::No_Memory,
                L"media_caps.get()->get_media_source (media_config.get()->get_media_source()).get()-> "
                L"get_source_entry (media_config.get()->get_media_source_entry()).get()-> "
                L"get_media_size_name_list()");
        px_for_each_there(names, [&](const PX_Caps_Name_List_Object& name) {
            const auto size = m_device.get_media_size(name.get_canonical_name());
            const std::wstring object = px_in(way, px_named(L"size", name));
            if (!size && validated)
                m_found.throws(object, Fault::Names_Nothing, nothing_there, L"size_list");
            else if (!size)
                m_found.passes_over(object, Fault::Names_Nothing);
        });
        if (validated && is_limited())
            check_limit_of(entry, way);
    }

    void check_limit_of(const PX_Media_Source_Entry& entry, const std::wstring& way) const {
        bool is_roll = false;
        px_for_each_there(m_device.get_media_source_list(), [&](const PX_Media_Source& source) {
            const auto entries = source.get_source_entry_list();
            const auto own = entries ? entries->find(entry.get_canonical_name()) : nullptr;
            if (own.get() == &entry)
                is_roll = source.get_media_feed() == PX_Media_Feed::Media_Feed_Roll &&
                          of(Ability::Ability_Roll_Limit).is_above_none();
        });
        px_for_each_there(entry.get_media_size_name_list(), [&](const PX_Caps_Name_List_Object& name) {
            const auto size = m_device.get_media_size(name.get_canonical_name());
            const auto description = px_is_there(size) ? description_of(*size) : nullptr;
            if (px_is_there(description) && !fits_source(px_value(description->get_media_bounds()), is_roll))
                m_found.repeats(px_in(way, px_named(L"size", name)), Fault::Beyond_Limit, Change::Size);
        });
    }

    void check_default_size() const {
        if (!has_default(Ability::Ability_Media_Size_Default))
            return;
        if (m_directly) {
            const wchar_t* const name = m_device.get_default_media_size();
            const auto size = m_device.get_media_size(name);
            if (px_is_there(size))
                check_default_description(*size, px_named(L"default size", name));
            else
                m_found.throws(px_named(L"default size", name), px_fault_of_name(size),
                               PX_Media_Code::Default_Size);
        }
        if (m_by_source)
            for_each_entry([&](const PX_Media_Source_Entry& entry, const std::wstring& way) {
                check_default_of(entry, way);
            });
    }

    void check_default_of(const PX_Media_Source_Entry& entry, const std::wstring& way) const {
        const wchar_t* const name = entry.get_default_media_size();
        const auto size = m_device.get_media_size(name);
        const auto names = entry.get_media_size_name_list();
        const std::wstring object = px_in(way, px_named(L"default size", name));
        if (!px_is_there(size))
            m_found.throws(object, px_fault_of_name(size), PX_Media_Code::Default_Size_Of_Source);
        else if (!names || !px_is_there(names->find(name)))
            m_found.throws(object, Fault::Default_Not_Offered, PX_Media_Code::Default_Size_Of_Source);
        else
            check_default_description(*size, object);
    }

    void check_default_description(const PX_Media_Size& size, const std::wstring& way) const {
        const auto description = description_of(size);
        if (!px_is_there(description))
            m_found.throws(px_in(way, px_named(L"description", size.get_media_description())),
                           px_fault_of_name(description), nothing_there, L"newsize");
    }

    const PX_Media_Capabilities& m_device;
    const PX_Findings& m_found;
    bool m_by_source = false;
    bool m_directly = false;
};

}  // namespace

void px_check_media_sizes(const PX_Media_Capabilities& device, const PX_Findings& found) {
    Sizes_Check(device, found).run();
}
