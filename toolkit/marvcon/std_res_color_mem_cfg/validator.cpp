#include "toolkit/marvcon/std_res_color_mem_cfg/validator.h"

#include "toolkit/marvcon/std_res_color_mem_cfg/datum.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/memory_areas.h"

using Ability = PX_ResColorMem_Ability_Flags;
using Datum = PX_ResColorMem_Config_Flags;
using Dithering = PX_HardSoftNo_Dithering;
using Strategy = PX_Validation_Strategy;

namespace {

bool is_as_before(const PX_ResColorMem_Settings& had, const PX_ResColorMem& mode) {
    return mode.get_num_colors() == had.get_num_colors() && mode.get_color_depth() == had.get_color_depth() &&
           mode.get_num_undithered_colors() == had.get_num_undithered_colors() &&
           mode.get_color_system() == had.get_color_system() &&
           had.get_color_system() != PX_Color_System::Color_System_Undefined;
}

bool are_equal(const PX_Smart_Pointer<PX_Float_XY>& one, const PX_Smart_Pointer<PX_Float_XY>& other) {
    return one->x == other->x && one->y == other->y;
}

bool is_as_before(const PX_ResColorMem_Settings& had, const PX_Resolution& resolution) {
    return are_equal(resolution.get_phys_resolution_xy(), had.get_phys_resolution_xy()) &&
           are_equal(resolution.get_addr_resolution_xy(), had.get_addr_resolution_xy()) &&
           are_equal(resolution.get_effective_resolution_xy(), had.get_effective_resolution_xy());
}

// The colour mode that the walk has made good before.
PX_Smart_Pointer<PX_ResColorMem> required_mode(const PX_RCM_Datum& datum) {
    auto mode = px_configured_mode(datum);
    if (!mode)
        datum.fail(PX_Code::Null_Argument, L"res_color_mem_list");
    return mode;
}
PX_Smart_Pointer<PX_Resolution> required_resolution(const PX_RCM_Datum& datum, const PX_ResColorMem& mode) {
    auto resolution = px_configured_resolution(datum, mode);
    if (!resolution)
        datum.fail(PX_Code::Null_Argument, L"resolution");
    return resolution;
}

}  // namespace

PX_ResColorMem_Validator::~PX_ResColorMem_Validator() = default;

PX_Std_ResColorMem_Validator::PX_Std_ResColorMem_Validator(PX_Plotter_Definition* plotter)
    : m_plotter(plotter) {
}

void PX_Std_ResColorMem_Validator::validate_res_color_mem(Strategy::Enum strategy) {
    const PX_RCM_Datum datum(m_plotter, L"PX_Std_ResColorMem_Validator::validate_res_color_mem");
    if (!datum.capabilities->get_res_color_mem_list())
        datum.fail(PX_Code::Null_Argument, L"res_color_mem_list");
    const auto had = px_rcm_snapshot(datum);
    const auto mode = px_configured_mode(datum);
    if (!px_is_there(mode) || !is_as_before(*had, *mode))
        datum.repair(px_rcm_change_bit(Datum::RCM_Cfg_Res_Color_Mem),
                     [&] { strategy ? set_res_color_mem_to_nearest() : set_res_color_mem_to_default(); });
    datum.settle(Datum::RCM_Cfg_Res_Color_Mem);
}

void PX_Std_ResColorMem_Validator::validate_resolution(Strategy::Enum strategy) {
    const PX_RCM_Datum datum(m_plotter, L"PX_Std_ResColorMem_Validator::validate_resolution");
    const auto mode = required_mode(datum);
    const auto had = px_rcm_snapshot(datum);
    const auto resolution = px_configured_resolution(datum, *mode);
    if (!px_is_there(resolution) || !is_as_before(*had, *resolution) ||
        !px_can_be_dithered(datum, *resolution))
        datum.repair(px_rcm_change_bit(Datum::RCM_Cfg_Resolution),
                     [&] { strategy ? set_resolution_to_nearest() : set_resolution_to_default(); });
    datum.settle(Datum::RCM_Cfg_Resolution);
}

void PX_Std_ResColorMem_Validator::validate_HardSoftNo_Dithering(Strategy::Enum /*strategy*/) {
    const PX_RCM_Datum datum(m_plotter, L"PX_Std_ResColorMem_Validator::validate_HardSoftNo_Dithering");
    if (datum.is_above_none(Ability::RCM_Res_Color_Mem_List) &&
        datum.is_above_none(Ability::RCM_Resolution_List)) {
        const auto mode = required_mode(datum);
        const auto resolution = required_resolution(datum, *mode);
        const auto method = px_dithering_of(datum, *resolution);
        if (!method)
            datum.fail(PX_Code::Null_Argument, L"dithering");
        const int level = method->get_required_renderers();
        constexpr int needs_soft = PX_Renderers_Required::Renderer_Level_2;
        const auto replace_by = [&](Dithering::Enum dithering) {
            datum.configuration->set_hardsoftno_dithering(dithering);
            datum.raise(px_rcm_change_bit(Datum::RCM_Cfg_HardSoftNo_Dithering));
        };
        if (datum.configuration->get_hardsoftno_dithering() != Dithering::Soft_Dithering) {
            if (level == needs_soft)
                replace_by(Dithering::Soft_Dithering);
        } else if (level < needs_soft) {
            const bool every_color_is_undithered =
                mode->get_num_undithered_colors() == mode->get_num_colors();
            replace_by(every_color_is_undithered ? Dithering::No_Dithering : Dithering::Hard_Dithering);
        }
    }
    datum.settle(Datum::RCM_Cfg_HardSoftNo_Dithering);
}

void PX_Std_ResColorMem_Validator::validate_installed_memory(Strategy::Enum /*strategy*/) {
    const PX_RCM_Datum datum(m_plotter, L"PX_Std_ResColorMem_Validator::validate_installed_memory");
    if (datum.is_required(Ability::RCM_Mem_Area)) {
        const auto mode = required_mode(datum);
        const auto resolution = required_resolution(datum, *mode);
        if (!px_is_memory_of_an_area(*datum.capabilities, *resolution,
                                     datum.configuration->get_installed_memory()))
            datum.repair(px_rcm_change_bit(Datum::RCM_Cfg_Installed_Memory),
                         [&] { set_installed_memory_to_default(); });
    }
    datum.settle(Datum::RCM_Cfg_Installed_Memory);
}

void PX_Std_ResColorMem_Validator::validate_RastColorVsResPref(Strategy::Enum strategy) {
    const PX_RCM_Datum datum(m_plotter, L"PX_Std_ResColorMem_Validator::validate_RastColorVsResPref");
    const long preference = datum.configuration->get_rast_color_vs_res_pref();
    if (preference < 0 || preference > 100)
        datum.repair(px_rcm_change_bit(Datum::RCM_Cfg_Rast_Color_Vs_Res_Pref), [&] {
            strategy ? set_RastColorVsResPref_to_nearest() : set_RastColorVsResPref_to_default();
        });
    datum.settle(Datum::RCM_Cfg_Rast_Color_Vs_Res_Pref);
}

// The corrections of these have no frame of their own.

void PX_Std_ResColorMem_Validator::validate_ISM_max_mem(Strategy::Enum /*strategy*/) {
    const PX_RCM_Datum datum(m_plotter, L"PX_Std_ResColorMem_Validator::validate_ISM_max_mem");
    if (datum.configuration->get_ISM_max_mem() < 0) {
        set_ISM_max_mem_to_default();
        datum.raise(px_rcm_change_bit(Datum::RCM_Cfg_ISM_Max_Mem));
    }
    datum.settle(Datum::RCM_Cfg_ISM_Max_Mem);
}

void PX_Std_ResColorMem_Validator::validate_OLE_max_mem(Strategy::Enum /*strategy*/) {
    const PX_RCM_Datum datum(m_plotter, L"PX_Std_ResColorMem_Validator::validate_OLE_max_mem");
    if (datum.configuration->get_OLE_max_mem() < 0) {
        set_OLE_max_mem_to_default();
        datum.raise(px_rcm_change_bit(Datum::RCM_Cfg_OLE_Max_Mem));
    }
    datum.settle(Datum::RCM_Cfg_OLE_Max_Mem);
}

void PX_Std_ResColorMem_Validator::validate_icm_method(Strategy::Enum /*strategy*/) {
    const PX_RCM_Datum datum(m_plotter, L"PX_Std_ResColorMem_Validator::validate_icm_method");
    if (datum.configuration->get_icm_method() < 1) {
        set_icm_method_to_default();
        datum.raise(px_rcm_change_bit(Datum::RCM_Cfg_Icm_Method));
    }
    datum.settle(Datum::RCM_Cfg_Icm_Method);
}

void PX_Std_ResColorMem_Validator::validate_icm_intent(Strategy::Enum /*strategy*/) {
    const PX_RCM_Datum datum(m_plotter, L"PX_Std_ResColorMem_Validator::validate_icm_intent");
    if (datum.configuration->get_icm_intent() < 1) {
        set_icm_intent_to_default();
        datum.raise(px_rcm_change_bit(Datum::RCM_Cfg_Icm_Intent));
    }
    datum.settle(Datum::RCM_Cfg_Icm_Intent);
}

// Asks nothing of the device until the value has to be corrected.
void PX_Std_ResColorMem_Validator::validate_dm_color(Strategy::Enum /*strategy*/) {
    constexpr const wchar_t* function = L"PX_Std_ResColorMem_Validator::validate_dm_color";
    constexpr long monochrome = 1;
    constexpr long color = 2;
    const auto configuration = px_domain_configuration<PX_RCM_Domain>(m_plotter, function);
    const long chosen = configuration->get_dm_color();
    if (chosen != monochrome && chosen != color) {
        set_dm_color_to_default();
        px_raise<PX_RCM_Domain>(*m_plotter, px_rcm_change_bit(Datum::RCM_Cfg_Dm_Color), function);
    }
    configuration->set_one_validated(true, Datum::RCM_Cfg_Dm_Color);
}

void PX_Std_ResColorMem_Validator::validate_lines_overwrite(Strategy::Enum /*strategy*/) {
    const PX_RCM_Datum datum(m_plotter, L"PX_Std_ResColorMem_Validator::validate_lines_overwrite");
    const auto ability = datum.capabilities->get_one_ability(Ability::RCM_Lines_Overwrite);
    if (ability == PX_Ability_Value::Ability_None && !datum.configuration->get_lines_overwrite()) {
        datum.configuration->set_lines_overwrite(true);
        datum.raise(px_rcm_change_bit(Datum::RCM_Cfg_Lines_Overwrite));
    }
    datum.settle(Datum::RCM_Cfg_Lines_Overwrite);
}

void PX_Std_ResColorMem_Validator::validate_color_vs_mono(Strategy::Enum /*strategy*/) {
    px_domain_configuration<PX_RCM_Domain>(m_plotter, L"PX_Std_ResColorMem_Validator::validate_color_vs_mono")
        ->set_one_validated(true, Datum::RCM_Cfg_Color_Vs_Mono);
}

// Colour against monochrome is left out on purpose.
void PX_Std_ResColorMem_Validator::validate_all_res_color_mem(Strategy::Enum strategy) {
    px_frame(L"PX_Std_ResColorMem_Validator::validate_all_res_color_mem", [&] {
        validate_res_color_mem(strategy);
        validate_resolution(strategy);
        validate_HardSoftNo_Dithering(strategy);
        validate_RastColorVsResPref(strategy);
        validate_installed_memory(strategy);
        validate_ISM_max_mem(strategy);
        validate_OLE_max_mem(strategy);
        validate_icm_method(strategy);
        validate_icm_intent(strategy);
        validate_dm_color(strategy);
        validate_lines_overwrite(strategy);
    });
}
