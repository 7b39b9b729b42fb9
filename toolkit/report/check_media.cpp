#include "toolkit/core/distance.h"
#include "toolkit/report/domain_checks.h"

// Media but for the sources and sizes: the method, the types, the destinations and the plain data.

using Ability = PX_Media_Ability_Flags;
using Change = PX_Media_Change;
using Fault = PX_Device_Fault;

namespace {

class Media_Check {
public:
    Media_Check(const PX_Media_Capabilities& device, const PX_Findings& found)
        : m_device(device), m_found(found) {}

    void check_method() const {
        const long method = m_device.get_default_media_selection_method();
        if (of(Ability::Ability_Media_Selection_Method).is_above_none() &&
            !(method & m_device.get_media_selection_methods()))
            m_found.throws(L"default selection method", Fault::Default_Not_Offered,
                           PX_Media_Code::Default_Selection_Method);
    }

    void check_types() const {
        const auto types = m_device.get_media_type_list();
        const bool is_validated = of(Ability::Ability_Media_Type).is_validated();
        const bool has_default = of(Ability::Ability_Media_Type_Default).is_listed();
        px_check_names(types, L"", L"type", px_repeating(m_found, px_bits_if(is_validated, Change::Type)));
        const wchar_t* const name = m_device.get_default_media_type();
        const auto preset = m_device.get_media_type(name);
        if (is_validated)
            px_for_each_there(types, [&](const PX_Media_Type& type) {
                const auto best = px_value(type.get_max_resolution());
                px_check_measure(px_is_nan(best), px_is_finite(best), px_named(L"type", type), L"newtype",
                                 has_default && preset.get() == &type, Change::Type, m_found);
            });
        if (is_validated && !types)
            m_found.throws(L"types", Fault::List_Missing, PX_Media_Code::No_Types);
        else if (is_validated && !px_has_one_there(types, is_near))
            m_found.throws(L"types", Fault::Nothing_To_Take, PX_Code::Null_Argument, L"newtype");
        if (is_validated && !has_default)
            m_found.repeats(L"type", Fault::Default_Not_Written, Change::Type);
        if (!has_default)
            return;
        if (!preset)
            m_found.throws(px_named(L"default type", name), Fault::Names_Nothing, PX_Code::Null_Argument,
                           L"newtype");
        else if (!px_is_there(preset))
            m_found.throws(px_named(L"default type", name), Fault::Names_Withdrawn,
                           PX_Media_Code::Default_Type);
    }

    void check_destinations() const {
        const auto destinations = m_device.get_media_destination_list();
        const bool is_validated = of(Ability::Ability_Media_Destination).is_validated();
        px_check_names(destinations, L"", L"destination",
                       px_repeating(m_found, px_bits_if(is_validated, all_of_destination)));
        if (is_validated && !destinations)
            m_found.throws(L"destinations", Fault::List_Missing, PX_Media_Code::No_Destinations);
        else if (is_validated && !px_has_one_there(destinations))
            m_found.throws(L"destinations", Fault::Nothing_To_Take, PX_Code::Null_Argument, L"newdest");
        px_for_each_there(destinations, [&](const PX_Media_Destination& destination) {
            check_finishings(destination, is_validated);
        });
        if (is_validated && !has_default_destination())
            m_found.repeats(L"destination", Fault::Default_Not_Written, all_of_destination);
        if (!has_default_destination())
            return;
        const wchar_t* const name = m_device.get_default_media_destination();
        const auto preset = m_device.get_media_destination(name);
        if (!px_is_there(preset))
            m_found.throws(px_named(L"default destination", name), px_fault_of_name(preset),
                           PX_Media_Code::Default_Destination);
    }

    // Compared from any ability on, and written from the listed ones alone.
    void check_finishing_abilities() const {
        if (!of(Ability::Ability_Media_Destination).is_validated())
            return;
        constexpr PX_Gate<Ability> finishings[] = {{Ability::Ability_Media_Collating, L"collating"},
                                                   {Ability::Ability_Media_Stapling, L"stapling"},
                                                   {Ability::Ability_Media_Cutting, L"cutting"},
                                                   {Ability::Ability_Media_Folding, L"folding"}};
        for (const auto& finishing : finishings) {
            const PX_Ability_Of ability = of(finishing.flag);
            if (!ability.is_none() && !ability.is_listed())
                m_found.repeats(finishing.datum, Fault::Default_Not_Written, all_of_destination);
        }
    }

    void check_plain_data() const {
        const auto copies = of(Ability::Ability_Number_Of_Copies);
        if (copies.is_validated() && m_device.get_max_number_of_copies() < 1)
            m_found.repeats(L"greatest number of copies", Fault::Limits_Reversed, Change::Number_Of_Copies);

        const long duplexing = m_device.get_default_duplexing_mode();
        if (of(Ability::Ability_Duplexing).is_above_none() && !(duplexing & m_device.get_duplexing_modes()))
            m_found.throws(L"default duplexing mode", Fault::Default_Not_Offered,
                           PX_Media_Code::Default_Duplexing);

        const auto longplot = of(Ability::Ability_Longplot_Reduction);
        const double reduction = m_device.get_default_longplot_reduction();
        if (longplot.is_above_none() && reduction < 0.0)
            m_found.throws(L"default longplot reduction", Fault::Default_Out_Of_Range,
                           PX_Media_Code::Default_Longplot_Reduction);
        // It is written all the same, and is not valid.
        else if (longplot.is_validated() && reduction < 1.0)
            m_found.repeats(L"default longplot reduction", Fault::Default_Out_Of_Range,
                            Change::Longplot_Reduction);

        const long scale = m_device.get_default_dm_scale();
        if (of(Ability::Ability_Dm_Scale).is_above_none() &&
            (scale < px_dm_scale_min || scale > px_dm_scale_max))
            m_found.throws(L"default scale", Fault::Default_Out_Of_Range, PX_Media_Code::Default_Dm_Scale);
    }

private:
    static constexpr long all_of_destination =
        Change::Destination | Change::Collating | Change::Stapling | Change::Cutting | Change::Folding;

    PX_Ability_Of of(Ability::Enum flag) const { return px_ability_of(m_device, px_media_gates, flag); }
    // To a choice that was never made, as the search measures.
    static bool is_near(const PX_Media_Type& type) {
        const auto best = px_value(type.get_max_resolution());
        const double x = std::fabs(best.x) * 10.0F;
        const double y = std::fabs(best.y) * 10.0F;
        return x + y + px_distance_32(type.get_drying_time(), 0) < px_worst_score;
    }
    bool has_default_destination() const {
        return of(Ability::Ability_Media_Destination_Default).is_listed();
    }

    template <class Option>
    struct Finishing {
        Ability::Enum ability;
        const wchar_t* kind;
        PX_Smart_Pointer<PX_Named_Object_List<Option>> list;
        PX_Smart_Pointer<Option> preset;
        const wchar_t* preset_name;
    };

    template <class Option>
    void check_finishing(const PX_Media_Destination& destination, bool is_validated,
                         const Finishing<Option>& finishing) const {
        const std::wstring there = px_named(L"destination", destination);
        const PX_Ability_Of ability = of(finishing.ability);
        px_check_names(finishing.list, there, finishing.kind, px_passing_over(m_found));
        const auto is_default = [&] {
            const auto preset = m_device.get_media_destination(m_device.get_default_media_destination());
            return preset.get() == &destination;
        };
        if (ability.is_listed() && has_default_destination() && is_default() &&
            !px_is_there(finishing.preset))
            m_found.throws(px_in(there, px_named((std::wstring(L"default ") + finishing.kind).c_str(),
                                                 finishing.preset_name)),
                           px_fault_of_name(finishing.preset), PX_Media_Code::Default_Destination);
        // A choice of this destination is never valid, and is the nearest to itself.
        else if (is_validated && !ability.is_none() && !px_has_one_there(finishing.list))
            m_found.repeats(px_in(there, finishing.kind), Fault::Nothing_To_Take, all_of_destination);
    }

    void check_finishings(const PX_Media_Destination& there, bool is_validated) const {
        check_finishing(there, is_validated,
                        Finishing<PX_Media_Collating>{Ability::Ability_Media_Collating, L"collating",
                                                      there.get_collating_list(),
                                                      there.get_collating(there.get_default_collating()),
                                                      there.get_default_collating()});
        check_finishing(there, is_validated,
                        Finishing<PX_Media_Stapling>{
                            Ability::Ability_Media_Stapling, L"stapling", there.get_stapling_list(),
                            there.get_stapling(there.get_default_stapling()), there.get_default_stapling()});
        check_finishing(there, is_validated,
                        Finishing<PX_Media_Cutting>{
                            Ability::Ability_Media_Cutting, L"cutting", there.get_cutting_list(),
                            there.get_cutting(there.get_default_cutting()), there.get_default_cutting()});
        check_finishing(there, is_validated,
                        Finishing<PX_Media_Folding>{
                            Ability::Ability_Media_Folding, L"folding", there.get_folding_list(),
                            there.get_folding(there.get_default_folding()), there.get_default_folding()});
    }

    const PX_Media_Capabilities& m_device;
    const PX_Findings& m_found;
};

}  // namespace

void px_check_media(const PX_Media_Capabilities& device, const PX_Findings& found) {
    const Media_Check check(device, found);
    px_check_gates(device, px_media_gates, found);
    check.check_method();
    check.check_types();
    px_check_media_sizes(device, found);
    check.check_destinations();
    check.check_finishing_abilities();
    check.check_plain_data();
}
