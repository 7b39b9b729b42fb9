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
        : m_device(device),
          m_found(found),
          m_sizes(device.get_media_size_list()),
          m_descriptions(device.get_media_description_list()),
          m_source_is_validated(of(Ability::Ability_Media_Source).is_validated()),
          m_entry_is_validated(of(Ability::Ability_Media_Source_Entry).is_validated()),
          m_size_is_validated(of(Ability::Ability_Media_Size).is_validated()),
          m_source_has_default(of(Ability::Ability_Media_Source_Default).is_listed()),
          m_entry_has_default(of(Ability::Ability_Media_Source_Entry_Default).is_listed()),
          m_size_has_default(of(Ability::Ability_Media_Size_Default).is_listed()),
          m_is_limited(of(Ability::Ability_Media_Size_Limit).is_above_none()) {
        const PX_Ability_Of method = of(Ability::Ability_Media_Selection_Method);
        constexpr long through_a_source = PX_Media_Selection_Method::Media_Selection_By_Source;
        const long preset = m_device.get_default_media_selection_method();
        const long offered = m_device.get_media_selection_methods();
        // Without the ability, a choice keeps the method that it came with.
        m_by_source =
            method.is_fixed() ? is_by_source(preset) : method.is_none() || (offered & through_a_source);
        // A default of several methods is no method of sources.
        m_directly = method.is_fixed() ? !is_by_source(preset)
                                       : method.is_none() || (offered & ~through_a_source) ||
                                             (!is_by_source(preset) && (preset & offered));
        if (m_directly)
            m_default_sizes.insert(m_sizes.find(m_device.get_default_media_size()).get());
        if (!m_by_source)
            return;
        for_each_entry([&](const PX_Media_Source_Entry& entry, const std::wstring&, bool) {
            m_default_sizes.insert(m_sizes.find(entry.get_default_media_size()).get());
            px_for_each_there(entry.get_media_size_name_list(), [&](const PX_Caps_Name_List_Object& name) {
                m_offered_by_source.insert(px_text(name.get_canonical_name()));
            });
        });
    }

    void run() const {
        check_sources();
        check_order();
        px_check_names(m_device.get_media_description_list(), L"", L"description", px_passing_over(m_found));
        check_sizes();
        check_default_size();
    }

private:
    PX_Ability_Of of(Ability::Enum flag) const { return px_ability_of(m_device, px_media_gates, flag); }
    PX_Smart_Pointer<PX_Media_Description> description_of(const PX_Media_Size& size) const {
        return m_descriptions.find(size.get_media_description());
    }
    // Some run looks for the size through its source and entry.
    bool is_validated_by_source() const { return m_by_source && m_size_is_validated; }

    // Some run writes the default of the size, that of the entry, without a look at the choice. The method is
    // then its own default, or validated.
    bool is_reset_by_source() const {
        const PX_Ability_Of method = of(Ability::Ability_Media_Selection_Method);
        return m_size_has_default && m_by_source &&
               (method.is_none() || is_by_source(m_device.get_default_media_selection_method()) ||
                method.is_validated_without(of(Ability::Ability_Media_Size)));
    }
    static bool is_by_source(long method) {
        return method == PX_Media_Selection_Method::Media_Selection_By_Source;
    }

    // Calls `visit(source)` for those that a run leaves. What nobody can choose is the default in every run
    // that looks at it.
    template <class Visit>
    void for_each_source(Visit visit) const {
        if (!m_source_has_default || m_source_is_validated)
            return px_for_each_there(m_device.get_media_source_list(), visit);
        const auto preset = m_device.get_media_source(m_device.get_default_media_source());
        if (px_is_there(preset))
            visit(*preset);
    }
    template <class Visit>
    void for_each_entry_of(const PX_Media_Source& source, Visit visit) const {
        if (!m_entry_has_default || m_entry_is_validated)
            return px_for_each_there(source.get_source_entry_list(), visit);
        const auto preset = source.get_source_entry(source.get_default_source_entry());
        if (px_is_there(preset))
            visit(*preset);
    }
    // Calls `visit(entry, the way to it, whether its sheets are limited as those of a roll)`.
    template <class Visit>
    void for_each_entry(Visit visit) const {
        const bool limits_rolls = of(Ability::Ability_Roll_Limit).is_above_none();
        for_each_source([&](const PX_Media_Source& source) {
            const bool is_roll = limits_rolls && source.get_media_feed() == PX_Media_Feed::Media_Feed_Roll;
            for_each_entry_of(source, [&](const PX_Media_Source_Entry& entry) {
                visit(entry, px_in(px_named(L"source", source), px_named(L"entry", entry)), is_roll);
            });
        });
    }

    void check_sources() const {
        const auto sources = m_device.get_media_source_list();
        px_check_names(sources, L"", L"source",
                       [&](const std::wstring& object, const auto& later, const auto& first) {
                           check_source_of_equal_name(object, later, first);
                       });
        if (m_source_is_validated && !sources)
            m_found.throws(L"sources", Fault::List_Missing, PX_Media_Code::No_Sources);
        else if (m_source_is_validated && !px_has_one_there(sources))
            m_found.throws(L"sources", Fault::Nothing_To_Take, nothing_there, L"newsource");
        if (m_source_is_validated && !m_source_has_default)
            m_found.repeats(L"source", Fault::Default_Not_Written, Change::Source);
        for_each_source([&](const PX_Media_Source& source) { check_source(source); });
        if (m_source_is_validated)
            px_for_each_fallen_back_on(sources,
                                       [&](const PX_Media_Source& source) { check_entries_to_take(source); });
        if (!m_source_has_default)
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

    // The search takes the first of a feed.
    PX_Smart_Pointer<PX_Media_Source> first_of(PX_Media_Feed::Enum feed) const {
        for (const auto& source : *m_device.get_media_source_list()) {
            if (px_is_there(source) && source->get_media_feed() == feed)
                return source;
        }
        return nullptr;
    }
    void check_source_of_equal_name(const std::wstring& object,
                                    const PX_Smart_Pointer<PX_Media_Source>& later,
                                    const PX_Smart_Pointer<PX_Media_Source>& first) const {
        if (!m_source_is_validated || !px_falls_back(later, first) ||
            first_of(later->get_media_feed()) != later)
            return m_found.passes_over(object, Fault::Equal_Names);
        if (is_validated_by_source())
            m_found.throws(object, Fault::Equal_Names, PX_Media_Code::Source_Missing);
        // The snapshot has the feed of the withdrawn one.
        if ((m_directly || !m_size_is_validated) && first_of(first->get_media_feed()) == later)
            m_found.repeats(object, Fault::Equal_Names, Change::Source);
    }

    void check_source(const PX_Media_Source& source) const {
        const std::wstring way = px_named(L"source", source);
        if (m_source_is_validated && source.get_media_feed() == PX_Media_Feed::Media_Feed_Unset)
            m_found.repeats(way, Fault::Feed_Unset, Change::Source);
        // Without a name, its entry is not looked at, and the size is looked for in any.
        const bool is_named = *px_text(source.get_canonical_name()) != L'\0';
        if (!is_named && m_entry_is_validated && m_by_source) {
            if (m_size_is_validated)
                m_found.throws(way, Fault::Name_Empty, PX_Media_Code::Entry_Missing);
            if (is_reset_by_source() &&
                of(Ability::Ability_Media_Source_Entry).is_validated_without(of(Ability::Ability_Media_Size)))
                m_found.throws(way, Fault::Name_Empty, PX_Media_Code::Default_Size_Of_Source);
        }
        const auto entries = source.get_source_entry_list();
        px_check_names(entries, way, L"entry",
                       [&](const std::wstring& object, const auto& later, const auto& first) {
                           check_entry_of_equal_name(object, later, first);
                       });
        if (is_named)
            check_entries_to_take(source);
        const wchar_t* const name = source.get_default_source_entry();
        const auto preset = source.get_source_entry(name);
        if (m_entry_is_validated && is_named)
            px_for_each_there(entries, [&](const PX_Media_Source_Entry& entry) {
                const PX_Float_XY extent = extent_of(entry);
                px_check_measure(px_is_nan(extent), px_is_finite(extent),
                                 px_in(way, px_named(L"entry", entry)), L"newentry",
                                 m_entry_has_default && preset.get() == &entry, Change::Source_Entry,
                                 m_found);
            });
        if (!m_entry_has_default)
            return;
        const std::wstring object = px_in(way, px_named(L"default entry", name));
        if (!preset)
            m_found.throws(object, Fault::Names_Nothing, nothing_there, L"newentry");
        else if (!px_is_there(preset))
            m_found.throws(object, Fault::Names_Withdrawn, PX_Media_Code::Default_Entry);
    }

    void check_entry_of_equal_name(const std::wstring& object,
                                   const PX_Smart_Pointer<PX_Media_Source_Entry>& later,
                                   const PX_Smart_Pointer<PX_Media_Source_Entry>& first) const {
        if (!m_entry_is_validated || !px_falls_back(later, first))
            return m_found.passes_over(object, Fault::Equal_Names);
        if (is_validated_by_source())
            m_found.throws(object, Fault::Equal_Names, PX_Media_Code::Entry_Missing);
        if (m_directly || !m_size_is_validated)
            m_found.repeats(object, Fault::Equal_Names, Change::Source_Entry);
    }

    void check_entries_to_take(const PX_Media_Source& source) const {
        if (!m_entry_is_validated)
            return;
        const std::wstring object = px_in(px_named(L"source", source), L"entries");
        const auto entries = source.get_source_entry_list();
        if (!entries)
            m_found.throws(object, Fault::List_Missing, PX_Media_Code::No_Entries);
        else if (!px_has_one_there(entries, [](const PX_Media_Source_Entry& entry) {
                     const PX_Float_XY extent = extent_of(entry);
                     return double{std::fabs(extent.x)} + double{std::fabs(extent.y)} < px_worst_score;
                 }))
            m_found.throws(object, Fault::Nothing_To_Take, nothing_there, L"newentry");
    }

    static PX_Float_XY extent_of(const PX_Media_Source_Entry& entry) {
        return {entry.get_source_width(), entry.get_source_frame_height()};
    }

    // What a datum needs of those before it, where no default of theirs is written.
    void check_order() const {
        if (!m_source_has_default && (m_entry_is_validated || m_entry_has_default))
            m_found.throws(L"source entry", Fault::Not_Ensured, nothing_there, L"newentry");
        if (m_entry_is_validated && !m_entry_has_default)
            m_found.repeats(L"source entry", Fault::Default_Not_Written, Change::Source_Entry);
        if (is_validated_by_source() && !m_source_has_default)
            m_found.throws(L"size by source", Fault::Not_Ensured, PX_Media_Code::Source_Missing);
        if (is_validated_by_source() && !m_entry_has_default)
            m_found.throws(L"size by source", Fault::Not_Ensured, PX_Media_Code::Entry_Missing);
        if (is_reset_by_source() && !(m_source_has_default && m_entry_has_default))
            m_found.throws(L"default size by source", Fault::Not_Ensured,
                           PX_Media_Code::Default_Size_Of_Source);
        if (m_size_is_validated && !m_size_has_default)
            m_found.repeats(L"size", Fault::Default_Not_Written, Change::Size);
        // Size and margins have one gate.
        if (m_size_is_validated && !m_size_has_default)
            m_found.throws(L"margins", Fault::Not_Ensured, nothing_there, L"margins");
        else if (!m_size_has_default && of(Ability::Ability_Actual_Printable_Bounds).is_validated())
            m_found.throws(L"actual printable bounds", Fault::Not_Ensured, nothing_there, L"newsize");
    }

    void check_sizes() const {
        const auto sizes = m_device.get_media_size_list();
        px_check_names(sizes, L"", L"size",
                       [&](const std::wstring& object, const auto& later, const auto& first) {
                           check_size_of_equal_name(object, later, first);
                       });
        if (m_directly && m_size_is_validated && !sizes)
            m_found.throws(L"sizes", Fault::List_Missing, PX_Media_Code::No_Sizes);
        px_for_each_there(sizes, [&](const PX_Media_Size& size) { check_size(size); });
        px_for_each_named(sizes, [&](const PX_Media_Size& size) {
            const auto description = description_of(size);
            if (px_is_there(description) && can_be_left(size, *description))
                check_inside(size, *description);
        });
        if (m_by_source)
            for_each_entry([&](const PX_Media_Source_Entry& entry, const std::wstring& way, bool is_roll) {
                check_names_of(entry, way, is_roll);
            });
    }

    // The search through an entry goes by names, and comes upon the first alone.
    void check_size_of_equal_name(const std::wstring& object, const PX_Smart_Pointer<PX_Media_Size>& later,
                                  const PX_Smart_Pointer<PX_Media_Size>& first) const {
        const auto sheet = first ? description_of(*first) : nullptr;
        const bool is_met = m_directly && m_size_is_validated && first && px_is_there(later) &&
                            px_is_there(description_of(*later));
        if (is_met && !sheet)
            m_found.throws(object, Fault::Equal_Names, nothing_there, L"newsize");
        else if (is_met && !(px_is_there(first) && px_is_there(sheet)))
            m_found.repeats(object, Fault::Equal_Names, Change::Size);
        else
            m_found.passes_over(object, Fault::Equal_Names);
    }

    // What the score of a size against itself needs: it is in per cent of what was.
    static bool is_measure(const PX_Media_Description& description) {
        const auto is_part = [](float whole) {
            return std::isfinite(whole) && std::isfinite(100.0F / whole);
        };
        const auto bounds = px_value(description.get_media_bounds());
        const auto printable = px_value(description.get_printable_bounds());
        return is_part(bounds.x) && is_part(bounds.y) && is_part(printable.x_extent()) &&
               is_part(printable.y_extent());
    }

    static bool has_nan(const PX_Media_Description& description) {
        return px_is_nan(px_value(description.get_media_bounds())) ||
               px_is_nan(px_value(description.get_printable_bounds())) ||
               std::isnan(description.get_printable_area());
    }

    void check_size(const PX_Media_Size& size) const {
        const bool validated = m_size_is_validated && is_offered(size);
        const auto description = description_of(size);
        const std::wstring way = px_named(L"size", size);
        const std::wstring sheet = px_in(way, px_named(L"description", size.get_media_description()));
        if (!px_is_there(description)) {
            const auto fault = px_fault_of_name(description);
            const bool stays = m_size_is_validated && !m_size_has_default;
            if (validated && !description)
                m_found.throws(sheet, fault, PX_Code::No_Memory, L"work_descr");
            if (stays)
                m_found.throws(sheet, fault, nothing_there, L"description_list");
            // A withdrawn one makes the size a withdrawn one.
            else if (!validated || description)
                m_found.passes_over(sheet, fault);
            return;
        }
        if (!validated)
            return;
        const auto bounds = px_value(description->get_media_bounds());
        const bool is_nan = has_nan(*description);
        // The search for a size may fail, and the default takes its place.
        if (is_nan && is_default(size))
            m_found.repeats(sheet, Fault::No_Measure, Change::Size);
        else if (!is_default(size) && (is_nan || !is_measure(*description)))
            m_found.passes_over(sheet, Fault::No_Measure);
        // The searches ask for no limit: the size is the nearest to itself.
        if (m_directly && m_is_limited &&
            !px_fits_directly(bounds, px_value(m_device.get_media_size_max()),
                              [&] { return m_device.get_media_roll_max_height(); }))
            m_found.repeats(way, Fault::Beyond_Limit, Change::Size);
    }

    // Margins that are put on bounds without an inside are off them again.
    void check_inside(const PX_Media_Size& size, const PX_Media_Description& description) const {
        const long bits = px_bits_if(m_size_is_validated, Change::Margins) |
                          px_bits_if(of(Ability::Ability_Actual_Printable_Bounds).is_validated(),
                                     Change::Actual_Printable_Bounds);
        const auto printable = px_value(description.get_printable_bounds());
        if (bits && !(printable.x_min < printable.x_max && printable.y_min < printable.y_max))
            m_found.repeats(
                px_in(px_named(L"size", size), px_named(L"description", size.get_media_description())),
                Fault::Bounds_Empty, bits);
    }

    // Of those that a choice can name.
    bool is_default(const PX_Media_Size& size) const {
        return m_size_has_default && m_default_sizes.contains(&size);
    }
    bool is_offered(const PX_Media_Size& size) const {
        return m_directly || m_offered_by_source.contains(px_text(size.get_canonical_name()));
    }
    // Without a default that is written, any stays.
    bool can_be_left(const PX_Media_Size& size, const PX_Media_Description& description) const {
        if (!m_size_has_default || is_default(size))
            return true;
        return m_size_is_validated && !px_is_withdrawn(size) && is_offered(size) && !has_nan(description);
    }

    void check_names_of(const PX_Media_Source_Entry& entry, const std::wstring& way, bool is_roll) const {
        const auto names = entry.get_media_size_name_list();
        px_check_names(names, way, L"size",
                       px_repeating(m_found, px_bits_if(m_size_is_validated, Change::Size)));
        if (m_size_is_validated && !names)
            m_found.throws(
                px_in(way, L"sizes"), Fault::List_Missing, PX_Code::No_Memory,
                L"media_caps.get()->get_media_source (media_config.get()->get_media_source()).get()-> "
                L"get_source_entry (media_config.get()->get_media_source_entry()).get()-> "
                L"get_media_size_name_list()");
        px_for_each_there(names, [&](const PX_Caps_Name_List_Object& name) {
            const auto size = m_sizes.find(name.get_canonical_name());
            if (!size && m_size_is_validated)
                m_found.throws(px_in(way, px_named(L"size", name)), Fault::Names_Nothing, nothing_there,
                               L"size_list");
            else if (!size)
                m_found.passes_over(px_in(way, px_named(L"size", name)), Fault::Names_Nothing);
            else if (m_size_is_validated && m_is_limited && px_is_there(size))
                check_limit(*size, px_in(way, px_named(L"size", name)), is_roll);
        });
    }

    void check_limit(const PX_Media_Size& size, const std::wstring& object, bool is_roll) const {
        const auto description = description_of(size);
        if (px_is_there(description) && !px_fits_source(px_value(description->get_media_bounds()),
                                                        px_value(m_device.get_media_size_max()), is_roll,
                                                        [&] { return m_device.get_media_roll_max_height(); }))
            m_found.repeats(object, Fault::Beyond_Limit, Change::Size);
    }

    void check_default_size() const {
        if (!m_size_has_default)
            return;
        if (m_directly) {
            const wchar_t* const name = m_device.get_default_media_size();
            const auto size = m_sizes.find(name);
            if (px_is_there(size))
                check_default_description(*size, px_named(L"default size", name));
            else
                m_found.throws(px_named(L"default size", name), px_fault_of_name(size),
                               PX_Media_Code::Default_Size);
        }
        if (m_by_source)
            for_each_entry([&](const PX_Media_Source_Entry& entry, const std::wstring& way, bool) {
                check_default_of(entry, way);
            });
    }

    void check_default_of(const PX_Media_Source_Entry& entry, const std::wstring& way) const {
        const wchar_t* const name = entry.get_default_media_size();
        const auto size = m_sizes.find(name);
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
    PX_Names<PX_Media_Size> m_sizes;
    PX_Names<PX_Media_Description> m_descriptions;
    bool m_source_is_validated;
    bool m_entry_is_validated;
    bool m_size_is_validated;
    bool m_source_has_default;
    bool m_entry_has_default;
    bool m_size_has_default;
    bool m_is_limited;
    bool m_by_source = false;
    bool m_directly = false;
    std::unordered_set<const PX_Media_Size*> m_default_sizes;
    std::unordered_set<std::wstring> m_offered_by_source;
};

}  // namespace

void px_check_media_sizes(const PX_Media_Capabilities& device, const PX_Findings& found) {
    Sizes_Check(device, found).run();
}
