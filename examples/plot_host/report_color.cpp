#include "examples/plot_host/report_data.h"
#include "examples/plot_host/words.h"

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

using Dithering = PX_HardSoftNo_Dithering;
constexpr Word<Dithering::Enum> ditherings[] = {
    {"none", Dithering::No_Dithering},
    {"by software", Dithering::Soft_Dithering},
    {"by the device", Dithering::Hard_Dithering},
};
Words words_of_dithering(const Color& color) {
    const auto dithering = color.get_hardsoftno_dithering();
    const char* const word = word_in(ditherings, dithering, nullptr);
    return word ? Words().text(word) : Words().number("", dithering);
}
// The configuration holds nothing for it.
Words words_of_nothing(const Color&) {
    return Words().text("(no value)");
}

using Domain = Report_Domain<&PX_Plotter_Configuration::get_res_color_mem_configuration,
                             &PX_Plotter_Capabilities::get_res_color_mem_capabilities,
                             &PX_Plotter_Validator::get_res_color_mem_cfg_changes>;

template <auto source, Ability::Enum ability, Cfg::Enum flag>
Datum color_row(const char* name) {
    return Domain::row<source, ability, flag>(name, 1L << flag);
}

}  // namespace

std::vector<Datum> color_data(const PX_Plotter_Configuration& /*configuration*/) {
    return {
        color_row<words_of_mode, Ability::RCM_Res_Color_Mem, Cfg::RCM_Cfg_Res_Color_Mem>("Colour mode"),
        color_row<words_of_resolution, Ability::RCM_Resolution, Cfg::RCM_Cfg_Resolution>("Resolution"),
        color_row<words_of_dithering, Ability::RCM_HardSoftNo_Dithering, Cfg::RCM_Cfg_HardSoftNo_Dithering>(
            "Dithering"),
        color_row<&Color::get_lines_overwrite, Ability::RCM_Lines_Overwrite, Cfg::RCM_Cfg_Lines_Overwrite>(
            "Lines overwrite"),
        color_row<words_of_nothing, Ability::RCM_Color_Vs_Mono, Cfg::RCM_Cfg_Color_Vs_Mono>("Colour or mono"),
        color_row<&Color::get_rast_color_vs_res_pref, Ability::RCM_Rast_Color_Vs_Res_Pref,
                  Cfg::RCM_Cfg_Rast_Color_Vs_Res_Pref>("Raster preference"),
        color_row<&Color::get_installed_memory, Ability::RCM_Installed_Memory, Cfg::RCM_Cfg_Installed_Memory>(
            "Installed memory"),
        color_row<&Color::get_ISM_max_mem, Ability::RCM_ISM_Max_Mem, Cfg::RCM_Cfg_ISM_Max_Mem>(
            "First memory limit"),
        color_row<&Color::get_OLE_max_mem, Ability::RCM_OLE_Max_Mem, Cfg::RCM_Cfg_OLE_Max_Mem>(
            "Second memory limit"),
        color_row<&Color::get_icm_method, Ability::RCM_Icm_Method, Cfg::RCM_Cfg_Icm_Method>(
            "Colour management"),
        color_row<&Color::get_icm_intent, Ability::RCM_Icm_Intent, Cfg::RCM_Cfg_Icm_Intent>("Colour intent"),
        color_row<&Color::get_dm_color, Ability::RCM_Dm_Color, Cfg::RCM_Cfg_Dm_Color>("Device-mode colour"),
    };
}

}  // namespace plot_host
