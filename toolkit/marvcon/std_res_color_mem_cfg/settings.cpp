#include "toolkit/marvcon/std_res_color_mem_cfg/settings.h"

#include "toolkit/core/clone.h"
#include "toolkit/core/fields.h"

namespace {

constexpr const wchar_t* file_tag = px_std_res_color_mem_cfg_source.file_tag;

}  // namespace

PX_ResColorMem_Settings::~PX_ResColorMem_Settings() = default;

void PX_Std_ResColorMem_Settings::set_phys_resolution_xy(const PX_Float_XY* resolution) {
    px_store_value(m_phys_resolution_xy, resolution, L"PX_Std_ResColorMem_Settings::set_phys_resolution_xy",
                   L"m_phys_resolution_xy", file_tag);
}

void PX_Std_ResColorMem_Settings::set_addr_resolution_xy(const PX_Float_XY* resolution) {
    px_store_value(m_addr_resolution_xy, resolution, L"PX_Std_ResColorMem_Settings::set_addr_resolution_xy",
                   L"m_addr_resolution_xy", file_tag);
}

void PX_Std_ResColorMem_Settings::set_effective_resolution_xy(const PX_Float_XY* resolution) {
    px_store_value(m_effective_resolution_xy, resolution,
                   L"PX_Std_ResColorMem_Settings::set_effective_resolution_xy", L"m_effective_resolution_xy",
                   file_tag);
}

void PX_Std_ResColorMem_Settings::set_mem_area_settings(const PX_Mem_Area* area) {
    if (area)
        set_printable_area(area->get_printable_area());
}

void PX_Std_ResColorMem_Settings::set_resolution_settings(const PX_Resolution* resolution) {
    if (!resolution)
        return;
    px_frame(L"PX_Std_ResColorMem_Settings::set_resolution_settings", [&] {
        set_phys_resolution_xy(resolution->get_phys_resolution_xy().get());
        set_addr_resolution_xy(resolution->get_addr_resolution_xy().get());
        set_effective_resolution_xy(resolution->get_effective_resolution_xy().get());
    });
}

void PX_Std_ResColorMem_Settings::set_rescolormem_settings(const PX_ResColorMem* rcm) {
    if (!rcm)
        return;
    set_num_colors(rcm->get_num_colors());
    set_color_depth(rcm->get_color_depth());
    set_num_undithered_colors(rcm->get_num_undithered_colors());
    set_color_system(rcm->get_color_system());
}

PX_ResColorMem_Settings* PX_Std_ResColorMem_Settings::clone() const {
    return px_clone<PX_Std_ResColorMem_Settings>(
        L"PX_Std_ResColorMem_Settings::clone", file_tag, [this](auto& new_one) {
            new_one.set_num_colors(m_num_colors);
            new_one.set_color_depth(m_color_depth);
            new_one.set_num_undithered_colors(m_num_undithered_colors);
            new_one.set_color_system(m_color_system);
            new_one.set_phys_resolution_xy(m_phys_resolution_xy.get());
            new_one.set_addr_resolution_xy(m_addr_resolution_xy.get());
            new_one.set_effective_resolution_xy(m_effective_resolution_xy.get());
            new_one.set_printable_area(m_printable_area);
        });
}
