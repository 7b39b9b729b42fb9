#include "toolkit/marvcon/std_res_color_mem_cfg/catalogue.h"

#include <cstring>
#include <new>
#include <utility>

namespace {

constexpr const wchar_t* file_tag = px_std_res_color_mem_cfg_source.file_tag;

}  // namespace

PX_Mem_Area::~PX_Mem_Area() = default;
PX_Dither_Matrix::~PX_Dither_Matrix() = default;
PX_Dithering_Method::~PX_Dithering_Method() = default;
PX_Resolution::~PX_Resolution() = default;
PX_ResColorMem::~PX_ResColorMem() = default;

void PX_Std_Dither_Matrix::set_matrix(const unsigned char* bytes, long sizeinbytes) {
    constexpr const wchar_t* function = L"PX_Std_Dither_Matrix::set_matrix";
    if (sizeinbytes < 0)
        throw MVNK_Warning(PX_Code::Out_Of_Range, function, L"sizeinbytes", file_tag);
    const auto old = std::move(m_matrix);  // the bytes may be its own
    m_size = 0;
    if (!bytes || sizeinbytes < 1)
        return;
    const auto size = static_cast<std::size_t>(sizeinbytes);
    m_matrix.reset(new (std::nothrow) unsigned char[size]);
    px_require_made(m_matrix, function, L"m_matrix", file_tag);
    std::memcpy(m_matrix.get(), bytes, size);
    m_size = sizeinbytes;
}

void PX_Std_Dithering_Method::set_matrix_list(const PX_Object_List<PX_Dither_Matrix>* list) {
    px_store_list_or_empty(m_matrix_list, list, L"PX_Std_Dithering_Method::set_matrix_list", L"m_matrix_list",
                           file_tag);
}

void PX_Std_Dithering_Method::copy_properties_to(PX_Dithering_Method& new_one) const {
    new_one.set_dithering_method(m_dithering_method);
    new_one.set_matrix_size_x(m_matrix_size_x);
    new_one.set_matrix_size_y(m_matrix_size_y);
    new_one.set_source_pixel_ratio(m_source_pixel_ratio);
    new_one.set_pixel_expansion_ratio(m_pixel_expansion_ratio);
    new_one.set_matrix_list(m_matrix_list.get());
    new_one.set_constant_threshold(m_constant_threshold);
    new_one.set_required_renderers(m_required_renderers);
}

void PX_Std_Resolution::set_effective_resolution_xy(const PX_Float_XY* resolution) {
    px_store_value(m_effective_resolution_xy, resolution, L"PX_Std_Resolution::set_effective_resolution_xy",
                   L"m_effective_resolution_xy", file_tag);
}

void PX_Std_Resolution::set_mem_area_name_list(const PX_Named_Object_List<PX_Caps_Name_List_Object>* list) {
    px_store_list_or_empty(m_mem_area_name_list, list, L"PX_Std_Resolution::set_mem_area_name_list",
                           L"m_mem_area_name_list", file_tag);
}

void PX_Std_Resolution::set_phys_resolution_xy(const PX_Float_XY* resolution) {
    px_store_value(m_phys_resolution_xy, resolution, L"PX_Std_Resolution::set_phys_resolution_xy",
                   L"m_phys_resolution_xy", file_tag);
}

void PX_Std_Resolution::set_addr_resolution_xy(const PX_Float_XY* resolution) {
    px_store_value(m_addr_resolution_xy, resolution, L"PX_Std_Resolution::set_addr_resolution_xy",
                   L"m_addr_resolution_xy", file_tag);
}

void PX_Std_Resolution::copy_properties_to(PX_Resolution& new_one) const {
    new_one.set_dithering_name(m_dithering_name);
    new_one.set_mem_area_name_list(m_mem_area_name_list.get());
    new_one.set_default_mem_area_name(m_default_mem_area_name);
    new_one.set_effective_resolution_xy(m_effective_resolution_xy.get());
    new_one.set_phys_resolution_xy(m_phys_resolution_xy.get());
    new_one.set_addr_resolution_xy(m_addr_resolution_xy.get());
}

void PX_Std_ResColorMem::set_resolution_list(const PX_Named_Object_List<PX_Resolution>* list) {
    px_store_list_or_empty(m_resolution_list, list, L"PX_Std_ResColorMem::set_resolution_list",
                           L"m_resolution_list", file_tag);
}

void PX_Std_ResColorMem::set_default_resolution(const wchar_t* name) {
    px_store_name(m_default_resolution, name, L"PX_Std_ResColorMem::set_default_resolution", L"resolution",
                  file_tag);
}

void PX_Std_ResColorMem::copy_properties_to(PX_ResColorMem& new_one) const {
    new_one.set_num_colors(m_num_colors);
    new_one.set_color_depth(m_color_depth);
    new_one.set_num_undithered_colors(m_num_undithered_colors);
    new_one.set_color_system(m_color_system);
    new_one.set_resolution_list(m_resolution_list.get());
    new_one.set_default_resolution(m_default_resolution);
}
