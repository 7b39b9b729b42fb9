#include "toolkit/report/data.h"
#include "toolkit/report/words.h"

namespace {

using Color = PX_ResColorMem_Configuration;
using Words = PX_Value_Words;
using Ability = PX_ResColorMem_Ability_Flags;
using Cfg = PX_ResColorMem_Config_Flags;

// A name and what it stood for. A driver's configuration may have no snapshot.
Words words_of_mode(const Color& color) {
    Words words = Words().name(color.get_res_color_mem());
    if (const auto had = color.get_rescolormem_settings())
        words.text(", " + std::to_string(had->get_num_colors()) + " colours at " +
                   std::to_string(had->get_color_depth()) + " bits, " +
                   std::to_string(had->get_num_undithered_colors()) + " undithered, system " +
                   std::to_string(had->get_color_system()));
    return words;
}
Words words_of_resolution(const Color& color) {
    Words words = Words().name(color.get_resolution());
    if (const auto had = color.get_rescolormem_settings()) {
        const PX_Float_XY effective = *had->get_effective_resolution_xy();
        const Words others = Words()
                                 .extent(", physical ", *had->get_phys_resolution_xy())
                                 .extent(", addressable ", *had->get_addr_resolution_xy());
        words.extent(", ", effective).unseen(others);
        // As a rule all three are the same.
        if (others.exact != Words().extent("", effective).extent("", effective).exact)
            words.shown += others.shown;
    }
    return words;
}

using Dithering = PX_HardSoftNo_Dithering;
constexpr PX_Word<Dithering::Enum> ditherings[] = {
    {"none", Dithering::No_Dithering},
    {"by software", Dithering::Soft_Dithering},
    {"by the device", Dithering::Hard_Dithering},
};
Words words_of_dithering(const Color& color) {
    const auto dithering = color.get_hardsoftno_dithering();
    const char* const word = px_word_in(ditherings, dithering, nullptr);
    return word ? Words().text(word) : Words().number("", dithering);
}
// The configuration holds nothing for it.
Words words_of_nothing(const Color&) {
    return Words().text("(no value)");
}

std::optional<double> mode_score(const PX_Reported_Run& run) {
    const auto* const had = run.before.get_color_settings();
    const auto chosen = run.configuration.get_res_color_mem_configuration();
    const auto offered = run.capabilities.get_res_color_mem_capabilities();
    const auto mode = offered->get_res_color_mem(chosen->get_res_color_mem());
    return had && mode ? std::optional(px_color_mode_score(*had, *mode)) : std::nullopt;
}
std::optional<double> resolution_score(const PX_Reported_Run& run) {
    const auto* const had = run.before.get_color_settings();
    const auto chosen = run.configuration.get_res_color_mem_configuration();
    const auto offered = run.capabilities.get_res_color_mem_capabilities();
    const auto mode = offered->get_res_color_mem(chosen->get_res_color_mem());
    const auto resolution = mode ? mode->get_resolution(chosen->get_resolution()) : nullptr;
    if (!had || !resolution)
        return std::nullopt;
    return px_resolution_score(*had, *resolution);
}

using Domain = PX_Report_Domain<PX_Domain_Mask::Res_Color_Mem,
                                &PX_Plotter_Configuration::get_res_color_mem_configuration,
                                &PX_Plotter_Capabilities::get_res_color_mem_capabilities,
                                &PX_Plotter_Validator::get_res_color_mem_cfg_changes>;

template <auto source, Ability::Enum ability, Cfg::Enum flag>
PX_Report_Datum row(const char* name, PX_Repair repair = PX_Repair::To_Default) {
    return Domain::row<source, ability, flag>(name, px_rcm_change_bit(flag), repair);
}

template <class Score>
PX_Report_Datum to_nearest(PX_Report_Datum row, Score score) {
    row.repair = PX_Repair::To_Nearest;
    row.score = score;
    return row;
}

}  // namespace

std::vector<PX_Report_Datum> px_color_data() {
    return {
        to_nearest(row<words_of_mode, Ability::RCM_Res_Color_Mem, Cfg::RCM_Cfg_Res_Color_Mem>("Colour mode"),
                   mode_score),
        to_nearest(row<words_of_resolution, Ability::RCM_Resolution, Cfg::RCM_Cfg_Resolution>("Resolution"),
                   resolution_score),
        row<words_of_dithering, Ability::RCM_HardSoftNo_Dithering, Cfg::RCM_Cfg_HardSoftNo_Dithering>(
            "Dithering", PX_Repair::By_Own_Rule),
        row<&Color::get_lines_overwrite, Ability::RCM_Lines_Overwrite, Cfg::RCM_Cfg_Lines_Overwrite>(
            "Lines overwrite"),
        row<words_of_nothing, Ability::RCM_Color_Vs_Mono, Cfg::RCM_Cfg_Color_Vs_Mono>("Colour or mono"),
        row<&Color::get_rast_color_vs_res_pref, Ability::RCM_Rast_Color_Vs_Res_Pref,
            Cfg::RCM_Cfg_Rast_Color_Vs_Res_Pref>("Raster preference", PX_Repair::To_Nearest),
        row<&Color::get_installed_memory, Ability::RCM_Installed_Memory, Cfg::RCM_Cfg_Installed_Memory>(
            "Installed memory"),
        row<&Color::get_ISM_max_mem, Ability::RCM_ISM_Max_Mem, Cfg::RCM_Cfg_ISM_Max_Mem>(
            "First memory limit"),
        row<&Color::get_OLE_max_mem, Ability::RCM_OLE_Max_Mem, Cfg::RCM_Cfg_OLE_Max_Mem>(
            "Second memory limit"),
        row<&Color::get_icm_method, Ability::RCM_Icm_Method, Cfg::RCM_Cfg_Icm_Method>("Colour management"),
        row<&Color::get_icm_intent, Ability::RCM_Icm_Intent, Cfg::RCM_Cfg_Icm_Intent>("Colour intent"),
        row<&Color::get_dm_color, Ability::RCM_Dm_Color, Cfg::RCM_Cfg_Dm_Color>("Device-mode colour"),
    };
}
