#include "examples/plot_host/saved_rows.h"

namespace plot_host {
namespace {

using S = PX_ResColorMem_Settings;
constexpr Row<S> snapshot_rows[] = {
    value_row<&S::get_num_colors, &S::set_num_colors>("num_colors"),
    value_row<&S::get_color_depth, &S::set_color_depth>("color_depth"),
    value_row<&S::get_num_undithered_colors, &S::set_num_undithered_colors>("num_undithered_colors"),
    value_row<&S::get_color_system, &S::set_color_system>("color_system"),
    value_row<&S::get_phys_resolution_xy, &S::set_phys_resolution_xy>("phys_resolution"),
    value_row<&S::get_addr_resolution_xy, &S::set_addr_resolution_xy>("addr_resolution"),
    value_row<&S::get_effective_resolution_xy, &S::set_effective_resolution_xy>("effective_resolution"),
    value_row<&S::get_printable_area, &S::set_printable_area>("printable_area"),
};

using C = PX_ResColorMem_Configuration;
constexpr Row<C> name_rows[] = {
    name_row<&C::get_res_color_mem, PX_Std_ResColorMem, &C::set_res_color_mem>("color_mode"),
    name_row<&C::get_resolution, PX_Std_Resolution, &C::set_resolution>("resolution"),
};
constexpr Row<C> value_rows[] = {
    value_row<&C::get_ISM_max_mem, &C::set_ISM_max_mem>("ism_max_mem"),
    value_row<&C::get_OLE_max_mem, &C::set_OLE_max_mem>("ole_max_mem"),
    value_row<&C::get_hardsoftno_dithering, &C::set_hardsoftno_dithering>("dithering"),
    value_row<&C::get_rast_color_vs_res_pref, &C::set_rast_color_vs_res_pref>("raster_preference"),
    value_row<&C::get_installed_memory, &C::set_installed_memory>("installed_memory"),
    value_row<&C::get_icm_method, &C::set_icm_method>("icm_method"),
    value_row<&C::get_icm_intent, &C::set_icm_intent>("icm_intent"),
    value_row<&C::get_dm_color, &C::set_dm_color>("dm_color"),
    value_row<&C::get_lines_overwrite, &C::set_lines_overwrite>("lines_overwrite"),
};

}  // namespace

constexpr Saved_Domain saved_color =
    domain_of_names<&PX_Plotter_Configuration::get_res_color_mem_configuration, name_rows,
                    Snapshot_Of<&C::get_rescolormem_settings, &C::set_rescolormem_settings, snapshot_rows>,
                    value_rows>("color");

}  // namespace plot_host
