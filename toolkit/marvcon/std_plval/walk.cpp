#include "toolkit/core/frame.h"
#include "toolkit/marvcon/std_init_term_cfg/domain.h"
#include "toolkit/marvcon/std_io_cfg/domain.h"
#include "toolkit/marvcon/std_media_cfg/domain.h"
#include "toolkit/marvcon/std_phys_pen_cfg/domain.h"
#include "toolkit/marvcon/std_plval/domain_objects.h"
#include "toolkit/marvcon/std_plval/validator.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/domain.h"

// The run over the whole configuration: which data there are, in which order, and what is done with each.

bool PX_Std_Plotter_Validator::validate_all(PX_Validation_Strategy::Enum strategy,
                                            PX_Validation_Policy::Enum policy, bool validate_settable) {
    return px_frame(L"PX_Std_Plotter_Validator::validate_all", [&] {
        clear_all_flags();
        m_strategy = strategy;
        m_policy = policy;
        m_validate_settable = validate_settable;
        walk_every_datum();
        return get_config_changed() != 0 || get_caps_changed() != 0;
    });
}

namespace {

// One datum: the flag of its ability, the flag of its configuration, and what is called for it.
template <class Validator, class Ability_Flags, class Datum_Flags>
struct Row {
    typename Ability_Flags::Enum ability;
    typename Datum_Flags::Enum datum;
    void (Validator::*validate)(PX_Validation_Strategy::Enum);
    void (Validator::*set_to_default)();
};

using MA = PX_Media_Ability_Flags;
using MC = PX_Media_Config_Flags;
using MV = PX_Media_Validator;
using PA = PX_Pen_Ability_Flags;
using PC = PX_Pen_Config_Flags;
using PV = PX_PhysPen_Validator;
using RA = PX_ResColorMem_Ability_Flags;
using RC = PX_ResColorMem_Config_Flags;
using RV = PX_ResColorMem_Validator;
using IT = PX_InitTerm_Ability_Flags;
using IV = PX_InitTerm_Validator;
using OA = PX_Plotter_IO_Ability_Flags;
using OC = PX_IO_Config_Flags;
using OV = PX_Plotter_IO_Validator;

// clang-format off
// Size and margins read the same ability.
constexpr Row<MV, MA, MC> media_rows[] = {
    {MA::Ability_Media_Selection_Method,  MC::Cfg_Selection_Method,        &MV::validate_selection_method,        &MV::set_selection_method_to_default},
    {MA::Ability_Media_Type,              MC::Cfg_Media_Type,              &MV::validate_type,                    &MV::set_type_to_default},
    {MA::Ability_Media_Source,            MC::Cfg_Media_Source,            &MV::validate_source,                  &MV::set_source_to_default},
    {MA::Ability_Media_Source_Entry,      MC::Cfg_Media_Source_Entry,      &MV::validate_source_entry,            &MV::set_source_entry_to_default},
    {MA::Ability_Media_Size,              MC::Cfg_Media_Size,              &MV::validate_size,                    &MV::set_size_to_default},
    {MA::Ability_Media_Destination,       MC::Cfg_Media_Destination,       &MV::validate_destination,             &MV::set_destination_to_default},
    {MA::Ability_Number_Of_Copies,        MC::Cfg_Number_Of_Copies,        &MV::validate_number_of_copies,        &MV::set_number_of_copies_to_default},
    {MA::Ability_Duplexing,               MC::Cfg_Duplexing,               &MV::validate_duplexing,               &MV::set_duplexing_to_default},
    {MA::Ability_Media_Size,              MC::Cfg_Margins,                 &MV::validate_margins,                 &MV::set_margins_to_default},
    {MA::Ability_Longplot_Reduction,      MC::Cfg_Longplot_Reduction,      &MV::validate_longplot_reduction,      &MV::set_longplot_reduction_to_default},
    {MA::Ability_Dm_Scale,                MC::Cfg_Dm_Scale,                &MV::validate_dm_scale,                &MV::set_dm_scale_to_default},
    {MA::Ability_Dm_Orientation,          MC::Cfg_Dm_Orientation,          &MV::validate_dm_orientation,          &MV::set_dm_orientation_to_default},
    {MA::Ability_Actual_Printable_Bounds, MC::Cfg_Actual_Printable_Bounds, &MV::validate_actual_printable_bounds, &MV::set_actual_printable_bounds_to_default},
};

// The optimization is gated by another ability than its default asks.
constexpr Row<PV, PA, PC> pen_rows[] = {
    {PA::Pen_Ability_Number,             PC::Pen_Config_Number,       &PV::validate_num_phys_pens,        &PV::set_num_phys_pens_to_default},
    {PA::Pen_Ability_List,               PC::Pen_Config_List,         &PV::validate_pen_list,             &PV::set_pen_list_to_default},
    {PA::Pen_Ability_Changing,           PC::Pen_Config_Changing,     &PV::validate_pen_changing,         &PV::set_pen_changing_to_default},
    {PA::Pen_Ability_Area_Fill,          PC::Pen_Config_Area_Fill,    &PV::validate_area_fill_correction, &PV::set_area_fill_correction_to_default},
    {PA::Pen_Ability_Optimization_Check, PC::Pen_Config_Optimization, &PV::validate_pen_optimization,     &PV::set_pen_optimization_to_default},
};

constexpr Row<RV, RA, RC> rcm_rows[] = {
    {RA::RCM_Res_Color_Mem,          RC::RCM_Cfg_Res_Color_Mem,          &RV::validate_res_color_mem,        &RV::set_res_color_mem_to_default},
    {RA::RCM_Resolution,             RC::RCM_Cfg_Resolution,             &RV::validate_resolution,           &RV::set_resolution_to_default},
    {RA::RCM_HardSoftNo_Dithering,   RC::RCM_Cfg_HardSoftNo_Dithering,   &RV::validate_HardSoftNo_Dithering, &RV::set_HardSoftNo_Dithering_to_default},
    {RA::RCM_Lines_Overwrite,        RC::RCM_Cfg_Lines_Overwrite,        &RV::validate_lines_overwrite,      &RV::set_lines_overwrite_to_default},
    {RA::RCM_Color_Vs_Mono,          RC::RCM_Cfg_Color_Vs_Mono,          &RV::validate_color_vs_mono,        &RV::set_color_vs_mono_to_default},
    {RA::RCM_Rast_Color_Vs_Res_Pref, RC::RCM_Cfg_Rast_Color_Vs_Res_Pref, &RV::validate_RastColorVsResPref,   &RV::set_RastColorVsResPref_to_default},
    {RA::RCM_Installed_Memory,       RC::RCM_Cfg_Installed_Memory,       &RV::validate_installed_memory,     &RV::set_installed_memory_to_default},
    {RA::RCM_ISM_Max_Mem,            RC::RCM_Cfg_ISM_Max_Mem,            &RV::validate_ISM_max_mem,          &RV::set_ISM_max_mem_to_default},
    {RA::RCM_OLE_Max_Mem,            RC::RCM_Cfg_OLE_Max_Mem,            &RV::validate_OLE_max_mem,          &RV::set_OLE_max_mem_to_default},
    {RA::RCM_Icm_Method,             RC::RCM_Cfg_Icm_Method,             &RV::validate_icm_method,           &RV::set_icm_method_to_default},
    {RA::RCM_Icm_Intent,             RC::RCM_Cfg_Icm_Intent,             &RV::validate_icm_intent,           &RV::set_icm_intent_to_default},
    {RA::RCM_Dm_Color,               RC::RCM_Cfg_Dm_Color,               &RV::validate_dm_color,             &RV::set_dm_color_to_default},
};

constexpr Row<IV, IT, IT> init_term_rows[] = {
    {IT::Preinit_String,     IT::Preinit_String,     &IV::validate_preinit_string,     &IV::set_preinit_string_to_default},
    {IT::Postinit_String,    IT::Postinit_String,    &IV::validate_postinit_string,    &IV::set_postinit_string_to_default},
    {IT::Termination_String, IT::Termination_String, &IV::validate_termination_string, &IV::set_termination_string_to_default},
};

// The port name goes with the type.
constexpr Row<OV, OA, OC> io_rows[] = {
    {OA::IO_Type,           OC::IO_Config_Type,           &OV::validate_portname_and_type, &OV::set_portname_and_type_to_default},
    {OA::IO_Protocol,       OC::IO_Config_Protocol,       &OV::validate_protocol,          &OV::set_protocol_to_default},
    {OA::IO_Baud_Rate,      OC::IO_Config_Baud_Rate,      &OV::validate_baud_rate,         &OV::set_baud_rate_to_default},
    {OA::IO_Handshake,      OC::IO_Config_Handshake,      &OV::validate_handshake,         &OV::set_handshake_to_default},
    {OA::IO_Input_Timeout,  OC::IO_Config_Input_Timeout,  &OV::validate_input_timeout,     &OV::set_input_timeout_to_default},
    {OA::IO_Output_Timeout, OC::IO_Config_Output_Timeout, &OV::validate_output_timeout,    &OV::set_output_timeout_to_default},
    {OA::IO_Pathname,       OC::IO_Config_Pathname,       &OV::validate_pathname,          &OV::set_pathname_to_default},
};
// clang-format on

}  // namespace

// A later datum is checked against what the earlier ones have just fixed: the order is part of the contract.
void PX_Std_Plotter_Validator::walk_every_datum() {
    for (const auto& row : media_rows)
        validate_media_datum(row.ability, row.datum, row.validate, row.set_to_default);
    for (const auto& row : pen_rows)
        validate_physpen_datum(row.ability, row.datum, row.validate, row.set_to_default);
    for (const auto& row : rcm_rows)
        validate_rcm_datum(row.ability, row.datum, row.validate, row.set_to_default);
    for (const auto& row : init_term_rows)
        validate_initterm_datum(row.ability, row.datum, row.validate, row.set_to_default);
    for (const auto& row : io_rows)
        validate_io_datum(row.ability, row.datum, row.validate, row.set_to_default);
    // Custom data have no ability: they are validated under every policy.
    m_custom_validator->validate_all_custom(m_strategy);
}

template <class Domain, class Ability, class Datum>
void PX_Std_Plotter_Validator::validate_datum(
    const wchar_t* function, typename Domain::Validator& validator, Ability ability, Datum datum,
    void (Domain::Validator::*validate)(PX_Validation_Strategy::Enum),
    void (Domain::Validator::*set_to_default)()) {
    constexpr const wchar_t* file = px_std_plval_source.file_tag;
    const auto capabilities_root = m_plotter->get_plotter_capabilities();
    const auto configuration_root = m_plotter->get_plotter_configuration();
    const auto capabilities =
        px_domain_object<Domain>(capabilities_root, Domain::get_capabilities, function, file);
    switch (check_validate_datum(capabilities->get_one_ability(ability))) {
        case PX_Validator_Action::Validate: {
            const auto configuration =
                px_domain_object<Domain>(configuration_root, Domain::get_configuration, function, file);
            if (!configuration->get_one_validated(datum))
                (validator.*validate)(m_strategy);
            break;
        }
        case PX_Validator_Action::Set_To_Default:
            (validator.*set_to_default)();
            break;
        case PX_Validator_Action::No_Action:
            break;
    }
}

void PX_Std_Plotter_Validator::validate_media_datum(
    PX_Media_Ability_Flags::Enum ability, PX_Media_Config_Flags::Enum datum,
    void (PX_Media_Validator::*validate)(PX_Validation_Strategy::Enum),
    void (PX_Media_Validator::*set_to_default)()) {
    validate_datum<PX_Media_Domain>(L"PX_Std_Plotter_Validator::validate_media_datum", *m_media_validator,
                                    ability, datum, validate, set_to_default);
}

void PX_Std_Plotter_Validator::validate_physpen_datum(
    PX_Pen_Ability_Flags::Enum ability, PX_Pen_Config_Flags::Enum datum,
    void (PX_PhysPen_Validator::*validate)(PX_Validation_Strategy::Enum),
    void (PX_PhysPen_Validator::*set_to_default)()) {
    validate_datum<PX_Pen_Domain>(L"PX_Std_Plotter_Validator::validate_physpen_datum", *m_phys_pen_validator,
                                  ability, datum, validate, set_to_default);
}

void PX_Std_Plotter_Validator::validate_rcm_datum(
    PX_ResColorMem_Ability_Flags::Enum ability, PX_ResColorMem_Config_Flags::Enum datum,
    void (PX_ResColorMem_Validator::*validate)(PX_Validation_Strategy::Enum),
    void (PX_ResColorMem_Validator::*set_to_default)()) {
    validate_datum<PX_RCM_Domain>(L"PX_Std_Plotter_Validator::validate_rcm_datum", *m_res_color_mem_validator,
                                  ability, datum, validate, set_to_default);
}

void PX_Std_Plotter_Validator::validate_initterm_datum(
    PX_InitTerm_Ability_Flags::Enum ability, PX_InitTerm_Ability_Flags::Enum datum,
    void (PX_InitTerm_Validator::*validate)(PX_Validation_Strategy::Enum),
    void (PX_InitTerm_Validator::*set_to_default)()) {
    validate_datum<PX_InitTerm_Domain>(L"PX_Std_Plotter_Validator::validate_initterm_datum",
                                       *m_init_term_validator, ability, datum, validate, set_to_default);
}

void PX_Std_Plotter_Validator::validate_io_datum(
    PX_Plotter_IO_Ability_Flags::Enum ability, PX_IO_Config_Flags::Enum datum,
    void (PX_Plotter_IO_Validator::*validate)(PX_Validation_Strategy::Enum),
    void (PX_Plotter_IO_Validator::*set_to_default)()) {
    validate_datum<PX_IO_Domain>(L"PX_Std_Plotter_Validator::validate_io_datum", *m_io_validator, ability,
                                 datum, validate, set_to_default);
}

std::optional<PX_Validator_Action::Enum> px_validator_action(PX_Ability_Value::Enum ability,
                                                             PX_Validation_Policy::Enum policy,
                                                             bool validate_settable) {
    using Policy = PX_Validation_Policy;
    using Action = PX_Validator_Action;
    switch (ability) {
        case PX_Ability_Value::Ability_None:
            return Action::Set_To_Default;
        case PX_Ability_Value::Ability_Fixed:
            return policy == Policy::Keep_All ? Action::No_Action : Action::Set_To_Default;
        case PX_Ability_Value::Ability_Settable:
        case PX_Ability_Value::Ability_Settable_Listed:
            if (policy == Policy::Keep_All)
                return Action::No_Action;
            return validate_settable ? Action::Validate : Action::Set_To_Default;
        case PX_Ability_Value::Ability_Conditional:
            if (policy == Policy::Keep_All || policy == Policy::Keep_Conditional)
                return Action::No_Action;
            return policy == Policy::Validate_Conditional ? Action::Validate : Action::Set_To_Default;
        case PX_Ability_Value::Ability_Required:
            return Action::Validate;
        default:
            return std::nullopt;
    }
}

PX_Validator_Action::Enum PX_Std_Plotter_Validator::check_validate_datum(
    PX_Ability_Value::Enum ability) const {
    const auto action = px_validator_action(ability, m_policy, m_validate_settable);
    if (!action)
        throw MVNK_Error(PX_Code::Bad_Ability, L"PX_Std_Plotter_Validator::check_validate_datum", nullptr,
                         px_std_plval_source.file_tag);
    return *action;
}
