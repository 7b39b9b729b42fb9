#include "examples/plot_host/report_data.h"

namespace plot_host {
namespace {

using Color = PX_ResColorMem_Configuration;
using Ability = PX_ResColorMem_Ability_Flags;
using Cfg = PX_ResColorMem_Config_Flags;

// A name and what it stood for: the same name may stand for another thing on another device.
Words words_of_mode(const Color& color) {
    const auto had = color.get_rescolormem_settings();
    return Words()
        .name(color.get_res_color_mem())
        .text(", " + std::to_string(had->get_num_colors()) + " colours at " +
              std::to_string(had->get_color_depth()) + " bits, " +
              std::to_string(had->get_num_undithered_colors()) + " undithered, system " +
              std::to_string(had->get_color_system()));
}
Words words_of_resolution(const Color& color) {
    const auto had = color.get_rescolormem_settings();
    Words words = Words().name(color.get_resolution()).extent(", ", *had->get_effective_resolution_xy());
    // As a rule all three are the same.
    words.exact += Words().extent("", *had->get_phys_resolution_xy()).exact;
    words.exact += Words().extent("", *had->get_addr_resolution_xy()).exact;
    return words;
}
Words words_of_dithering(const Color& color) {
    switch (color.get_hardsoftno_dithering()) {
        case PX_HardSoftNo_Dithering::No_Dithering:
            return Words().text("none");
        case PX_HardSoftNo_Dithering::Soft_Dithering:
            return Words().text("by software");
        case PX_HardSoftNo_Dithering::Hard_Dithering:
            return Words().text("by the device");
        default:
            return Words().number("", color.get_hardsoftno_dithering());
    }
}
Words words_of_overwriting(const Color& color) {
    return Words().text(color.get_lines_overwrite() ? "yes" : "no");
}
// The configuration holds nothing for it.
Words words_of_nothing(const Color&) {
    return Words().text("(no value)");
}
template <auto get>
Words words_of_number(const Color& color) {
    return Words().number("", static_cast<double>((color.*get)()));
}

template <Words (*words)(const Color&), Ability::Enum ability, Cfg::Enum flag>
constexpr Datum color_row(const char* name) {
    constexpr auto value = [](const PX_Plotter_Configuration& configuration) {
        const Words told = words(*configuration.get_res_color_mem_configuration());
        return Value{told.exact, told.shown};
    };
    constexpr auto state = [](const PX_Plotter_Capabilities& capabilities,
                              const PX_Plotter_Configuration& configuration) {
        const auto color = configuration.get_res_color_mem_configuration();
        return State{capabilities.get_res_color_mem_capabilities()->get_one_ability(ability),
                     color->get_one_validated(flag), color->get_one_default(flag)};
    };
    return {name, value, state, &PX_Plotter_Validator::get_res_color_mem_cfg_changes, 1L << flag};
}

constexpr Datum data[] = {
    color_row<words_of_mode, Ability::RCM_Res_Color_Mem, Cfg::RCM_Cfg_Res_Color_Mem>("Colour mode"),
    color_row<words_of_resolution, Ability::RCM_Resolution, Cfg::RCM_Cfg_Resolution>("Resolution"),
    color_row<words_of_dithering, Ability::RCM_HardSoftNo_Dithering, Cfg::RCM_Cfg_HardSoftNo_Dithering>(
        "Dithering"),
    color_row<words_of_overwriting, Ability::RCM_Lines_Overwrite, Cfg::RCM_Cfg_Lines_Overwrite>(
        "Lines overwrite"),
    color_row<words_of_nothing, Ability::RCM_Color_Vs_Mono, Cfg::RCM_Cfg_Color_Vs_Mono>("Colour or mono"),
    color_row<words_of_number<&Color::get_rast_color_vs_res_pref>, Ability::RCM_Rast_Color_Vs_Res_Pref,
              Cfg::RCM_Cfg_Rast_Color_Vs_Res_Pref>("Raster preference"),
    color_row<words_of_number<&Color::get_installed_memory>, Ability::RCM_Installed_Memory,
              Cfg::RCM_Cfg_Installed_Memory>("Installed memory"),
    color_row<words_of_number<&Color::get_ISM_max_mem>, Ability::RCM_ISM_Max_Mem, Cfg::RCM_Cfg_ISM_Max_Mem>(
        "First memory limit"),
    color_row<words_of_number<&Color::get_OLE_max_mem>, Ability::RCM_OLE_Max_Mem, Cfg::RCM_Cfg_OLE_Max_Mem>(
        "Second memory limit"),
    color_row<words_of_number<&Color::get_icm_method>, Ability::RCM_Icm_Method, Cfg::RCM_Cfg_Icm_Method>(
        "Colour management"),
    color_row<words_of_number<&Color::get_icm_intent>, Ability::RCM_Icm_Intent, Cfg::RCM_Cfg_Icm_Intent>(
        "Colour intent"),
    color_row<words_of_number<&Color::get_dm_color>, Ability::RCM_Dm_Color, Cfg::RCM_Cfg_Dm_Color>(
        "Device-mode colour"),
};

}  // namespace

std::span<const Datum> color_data() {
    return data;
}

}  // namespace plot_host
