#include "fuzz/device.h"

namespace fuzz {

namespace {

void fill_area(Input& input, PX_Mem_Area& area) {
    area.set_device_memory(input.number());
    area.set_printable_area(input.real());
}

void fill_dithering(Input& input, PX_Dithering_Method& method) {
    method.set_required_renderers(Number{input.number<int>()});
    method.set_matrix_size_x(input.number());
}

void fill_resolution(Input& input, PX_Resolution& resolution) {
    const PX_Float_XY physical = pair(input), addressable = pair(input), effective = pair(input);
    resolution.set_phys_resolution_xy(input.rarely() ? nullptr : &physical);
    resolution.set_addr_resolution_xy(input.rarely() ? nullptr : &addressable);
    resolution.set_effective_resolution_xy(input.rarely() ? nullptr : &effective);
    resolution.set_dithering_name(input.name_or_null());
    append_names(input, resolution.get_mem_area_name_list());
    resolution.set_default_mem_area_name(input.name_or_null());
}

void fill_mode(Input& input, PX_ResColorMem& mode) {
    mode.set_num_colors(input.number());
    mode.set_color_depth(input.number());
    mode.set_num_undithered_colors(input.number());
    mode.set_color_system(Number{input.number<int>()});
    append<PX_Std_Resolution>(input, mode.get_resolution_list(), fill_resolution);
    attempt([&] { mode.set_default_resolution(input.name_or_null()); });
}

}  // namespace

void fill(Input& input, PX_ResColorMem_Capabilities& caps, PX_ResColorMem_Configuration& cfg) {
    fill_abilities(input, caps);
    append<PX_Std_Mem_Area>(input, caps.get_mem_area_list(), fill_area);
    append<PX_Std_Dithering_Method>(input, caps.get_dithering_list(), fill_dithering);
    append<PX_Std_ResColorMem>(input, caps.get_res_color_mem_list(), fill_mode);
    attempt([&] { caps.set_default_res_color_mem(input.name_or_null()); });
    caps.set_memory_changes_print_area(input.flag());
    const auto mode = caps.get_res_color_mem(input.name());
    attempt([&] { cfg.set_res_color_mem(mode.get()); });
    if (mode)
        attempt([&] { cfg.set_resolution(mode->get_resolution(input.name()).get()); });
    cfg.set_ISM_max_mem(input.number());
    cfg.set_OLE_max_mem(input.number());
    cfg.set_hardsoftno_dithering(Number{input.number<int>()});
    cfg.set_rast_color_vs_res_pref(input.number());
    cfg.set_installed_memory(input.number());
    cfg.set_icm_method(input.number());
    cfg.set_icm_intent(input.number());
    cfg.set_dm_color(input.number());
    cfg.set_lines_overwrite(input.flag());
    spoil(input, caps.get_res_color_mem_list(), fill_mode);
    spoil(input, caps.get_dithering_list(), fill_dithering);
    if (input.rarely(32))
        caps.set_res_color_mem_list(nullptr);
    for (const bool undithered : {false, true}) {
        caps.get_prepared_resolutions(undithered);
        caps.get_prepared_num_colors(undithered);
    }
}

void tell(std::wostream& out, const PX_ResColorMem_Configuration& cfg) {
    tell_all(out, cfg.get_res_color_mem(), cfg.get_resolution(), cfg.get_ISM_max_mem(), cfg.get_OLE_max_mem(),
             cfg.get_hardsoftno_dithering(), cfg.get_rast_color_vs_res_pref(), cfg.get_installed_memory(),
             cfg.get_icm_method(), cfg.get_icm_intent(), cfg.get_dm_color(), cfg.get_lines_overwrite());
    const auto kept = cfg.get_rescolormem_settings();
    tell(out, kept->get_phys_resolution_xy().get());
    tell(out, kept->get_addr_resolution_xy().get());
    tell(out, kept->get_effective_resolution_xy().get());
    tell_all(out, kept->get_num_colors(), kept->get_color_depth(), kept->get_num_undithered_colors(),
             kept->get_color_system(), kept->get_printable_area());
}

}  // namespace fuzz
