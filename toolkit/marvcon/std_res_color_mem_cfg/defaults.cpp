#include <cwchar>

#include "toolkit/marvcon/std_meta_cfg/interface.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/datum.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/validator.h"

// What a device's default makes of each datum.

using Ability = PX_ResColorMem_Ability_Flags;
using Datum = PX_ResColorMem_Config_Flags;

namespace {

// In units of the host's.
constexpr long usual_max_mem = 6;
constexpr long smaller_max_mem = 3;
constexpr long middle_preference = 50;

// A plain value, which is written where the device has the datum.
template <class Write>
void set_to_default(const PX_Plotter_Definition* plotter, const wchar_t* function, Ability::Enum ability,
                    Datum::Enum flag, Write write) {
    const PX_RCM_Datum datum(plotter, function);
    if (datum.is_above_none(ability))
        write(*datum.configuration);
    datum.settle_default(flag);
}

}  // namespace

void PX_Std_ResColorMem_Validator::set_res_color_mem_to_default() {
    const PX_RCM_Datum datum(m_plotter, L"PX_Std_ResColorMem_Validator::set_res_color_mem_to_default");
    if (datum.is_listed(Ability::RCM_Res_Color_Mem)) {
        const auto mode =
            datum.capabilities->get_res_color_mem(datum.capabilities->get_default_res_color_mem());
        datum.configuration->set_res_color_mem(mode.get());
        if (!px_is_there(mode))
            datum.fail(PX_RCM_Code::Default_Mode);
    }
    datum.settle_default(Datum::RCM_Cfg_Res_Color_Mem);
}

void PX_Std_ResColorMem_Validator::set_resolution_to_default() {
    const PX_RCM_Datum datum(m_plotter, L"PX_Std_ResColorMem_Validator::set_resolution_to_default");
    const auto mode_ability = datum.capabilities->get_one_ability(Ability::RCM_Res_Color_Mem);
    if (mode_ability >= PX_Ability_Value::Ability_Conditional && datum.is_listed(Ability::RCM_Resolution)) {
        const auto mode = px_configured_mode(datum);
        if (!mode)
            datum.fail(PX_Code::Null_Argument, L"rcm");
        const auto resolution = mode->get_resolution(mode->get_default_resolution());
        datum.configuration->set_resolution(resolution.get());
        if (!px_is_there(resolution) || !px_can_be_dithered(datum, *resolution))
            datum.fail(PX_RCM_Code::Default_Resolution);
    }
    datum.settle_default(Datum::RCM_Cfg_Resolution);
}

void PX_Std_ResColorMem_Validator::set_ISM_max_mem_to_default() {
    constexpr const wchar_t* function = L"PX_Std_ResColorMem_Validator::set_ISM_max_mem_to_default";
    set_to_default(m_plotter, function, Ability::RCM_ISM_Max_Mem, Datum::RCM_Cfg_ISM_Max_Mem,
                   [this](PX_ResColorMem_Configuration& configuration) {
                       const auto meta = m_plotter->get_meta_capabilities();
                       px_require_argument(meta, function, L"meta_capabilities", PX_RCM_Domain::file_tag);
                       const wchar_t* const path = meta->get_driver_pathname();
                       const bool is_smaller = path && std::wcsstr(path, L"HPGDI");
                       configuration.set_ISM_max_mem(is_smaller ? smaller_max_mem : usual_max_mem);
                   });
}

void PX_Std_ResColorMem_Validator::set_OLE_max_mem_to_default() {
    set_to_default(m_plotter, L"PX_Std_ResColorMem_Validator::set_OLE_max_mem_to_default",
                   Ability::RCM_OLE_Max_Mem, Datum::RCM_Cfg_OLE_Max_Mem,
                   [](auto& configuration) { configuration.set_OLE_max_mem(usual_max_mem); });
}

void PX_Std_ResColorMem_Validator::set_HardSoftNo_Dithering_to_default() {
    set_to_default(m_plotter, L"PX_Std_ResColorMem_Validator::set_HardSoftNo_Dithering_to_default",
                   Ability::RCM_HardSoftNo_Dithering, Datum::RCM_Cfg_HardSoftNo_Dithering,
                   [](auto& configuration) {
                       configuration.set_hardsoftno_dithering(PX_HardSoftNo_Dithering::No_Dithering);
                   });
}

void PX_Std_ResColorMem_Validator::set_RastColorVsResPref_to_default() {
    set_to_default(m_plotter, L"PX_Std_ResColorMem_Validator::set_RastColorVsResPref_to_default",
                   Ability::RCM_Rast_Color_Vs_Res_Pref, Datum::RCM_Cfg_Rast_Color_Vs_Res_Pref,
                   [](auto& configuration) { configuration.set_rast_color_vs_res_pref(middle_preference); });
}

void PX_Std_ResColorMem_Validator::set_installed_memory_to_default() {
    set_to_default(m_plotter, L"PX_Std_ResColorMem_Validator::set_installed_memory_to_default",
                   Ability::RCM_Installed_Memory, Datum::RCM_Cfg_Installed_Memory,
                   [](auto& configuration) { configuration.set_installed_memory(0); });
}

void PX_Std_ResColorMem_Validator::set_icm_method_to_default() {
    set_to_default(m_plotter, L"PX_Std_ResColorMem_Validator::set_icm_method_to_default",
                   Ability::RCM_Icm_Method, Datum::RCM_Cfg_Icm_Method,
                   [](auto& configuration) { configuration.set_icm_method(1); });
}

void PX_Std_ResColorMem_Validator::set_icm_intent_to_default() {
    set_to_default(m_plotter, L"PX_Std_ResColorMem_Validator::set_icm_intent_to_default",
                   Ability::RCM_Icm_Intent, Datum::RCM_Cfg_Icm_Intent,
                   [](auto& configuration) { configuration.set_icm_intent(1); });
}

void PX_Std_ResColorMem_Validator::set_dm_color_to_default() {
    set_to_default(m_plotter, L"PX_Std_ResColorMem_Validator::set_dm_color_to_default", Ability::RCM_Dm_Color,
                   Datum::RCM_Cfg_Dm_Color, [](auto& configuration) { configuration.set_dm_color(1); });
}

// Whatever the ability.
void PX_Std_ResColorMem_Validator::set_lines_overwrite_to_default() {
    const auto configuration = px_domain_configuration<PX_RCM_Domain>(
        m_plotter, L"PX_Std_ResColorMem_Validator::set_lines_overwrite_to_default");
    configuration->set_lines_overwrite(true);
    px_settle_default(*configuration, Datum::RCM_Cfg_Lines_Overwrite);
}

// There is no value to set.
void PX_Std_ResColorMem_Validator::set_color_vs_mono_to_default() {
    const auto configuration = px_domain_configuration<PX_RCM_Domain>(
        m_plotter, L"PX_Std_ResColorMem_Validator::set_color_vs_mono_to_default");
    px_settle_default(*configuration, Datum::RCM_Cfg_Color_Vs_Mono);
}

// The colour mode first: the default resolution is taken from it.
void PX_Std_ResColorMem_Validator::set_all_res_color_mem_to_defaults() {
    px_frame(L"PX_Std_ResColorMem_Validator::set_all_res_color_mem_to_defaults", [&] {
        set_res_color_mem_to_default();
        set_resolution_to_default();
        set_HardSoftNo_Dithering_to_default();
        set_lines_overwrite_to_default();
        set_color_vs_mono_to_default();
        set_RastColorVsResPref_to_default();
        set_installed_memory_to_default();
        set_ISM_max_mem_to_default();
        set_OLE_max_mem_to_default();
        set_icm_method_to_default();
        set_icm_intent_to_default();
        set_dm_color_to_default();
    });
}
