#include "fuzz/device.h"

namespace fuzz {

static void fill(Input& input, PX_Mem_Area& area) {
    set_all(input, area, &PX_Mem_Area::set_device_memory, &PX_Mem_Area::set_printable_area);
}

static void fill(Input& input, PX_Dithering_Method& method) {
    set_all(input, method, &PX_Dithering_Method::set_required_renderers,
            &PX_Dithering_Method::set_matrix_size_x);
}

static void fill(Input& input, PX_Resolution& resolution) {
    using Resolution = PX_Resolution;
    append<PX_Std_Caps_Name_List_Object>(input, resolution.get_mem_area_name_list());
    set_all(input, resolution, &Resolution::set_phys_resolution_xy, &Resolution::set_addr_resolution_xy,
            &Resolution::set_effective_resolution_xy, &Resolution::set_dithering_name,
            &Resolution::set_default_mem_area_name);
}

static void fill(Input& input, PX_ResColorMem& mode) {
    using Mode = PX_ResColorMem;
    append<PX_Std_Resolution>(input, mode.get_resolution_list());
    set_all(input, mode, &Mode::set_num_colors, &Mode::set_color_depth, &Mode::set_num_undithered_colors,
            &Mode::set_color_system, &Mode::set_default_resolution);
}

void fill(Input& input, PX_ResColorMem_Capabilities& caps, PX_ResColorMem_Configuration& cfg) {
    using Caps = PX_ResColorMem_Capabilities;
    using Cfg = PX_ResColorMem_Configuration;
    fill_abilities(input, caps);
    append<PX_Std_Mem_Area>(input, caps.get_mem_area_list());
    append<PX_Std_Dithering_Method>(input, caps.get_dithering_list());
    append<PX_Std_ResColorMem>(input, caps.get_res_color_mem_list());
    set_all(input, caps, &Caps::set_default_res_color_mem, &Caps::set_memory_changes_print_area);
    const auto mode = caps.get_res_color_mem(input.name());
    attempt([&] { cfg.set_res_color_mem(mode.get()); });
    if (mode)
        attempt([&] { cfg.set_resolution(mode->get_resolution(input.name()).get()); });
    set_all(input, cfg, &Cfg::set_ISM_max_mem, &Cfg::set_OLE_max_mem, &Cfg::set_hardsoftno_dithering,
            &Cfg::set_rast_color_vs_res_pref, &Cfg::set_installed_memory, &Cfg::set_icm_method,
            &Cfg::set_icm_intent, &Cfg::set_dm_color, &Cfg::set_lines_overwrite);
    spoil(input, caps.get_res_color_mem_list());
    spoil(input, caps.get_dithering_list());
    set(input, caps, &Caps::set_res_color_mem_list);
    for (const bool undithered : {false, true}) {
        caps.get_prepared_resolutions(undithered);
        caps.get_prepared_num_colors(undithered);
    }
}

void tell(std::wostream& out, const PX_ResColorMem_Configuration& cfg) {
    const auto kept = cfg.get_rescolormem_settings();
    tell_all(out, cfg.get_res_color_mem(), cfg.get_resolution(), cfg.get_ISM_max_mem(), cfg.get_OLE_max_mem(),
             cfg.get_hardsoftno_dithering(), cfg.get_rast_color_vs_res_pref(), cfg.get_installed_memory(),
             cfg.get_icm_method(), cfg.get_icm_intent(), cfg.get_dm_color(), cfg.get_lines_overwrite(),
             kept->get_phys_resolution_xy(), kept->get_addr_resolution_xy(),
             kept->get_effective_resolution_xy(), kept->get_num_colors(), kept->get_color_depth(),
             kept->get_num_undithered_colors(), kept->get_color_system(), kept->get_printable_area());
}

}  // namespace fuzz
