#pragma once

#include <memory>

#include "toolkit/core/clamps.h"
#include "toolkit/core/fields.h"
#include "toolkit/core/named_object.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/catalogue_interface.h"

class PX_EXPORT PX_Std_Mem_Area : public PX_Named_Head<PX_Mem_Area, PX_Std_Mem_Area> {
public:
    static constexpr PX_Naming naming =
        PX_NAMING_WITH(L"PX_Std_Mem_Area", px_std_res_color_mem_cfg_source, PX_Code::Null_Argument, L"name");

    long get_device_memory() const override { return m_device_memory; }
    double get_printable_area() const override { return m_printable_area; }
    void set_device_memory(long memory) override { m_device_memory = memory; }
    void set_printable_area(double area) override { m_printable_area = area; }

    void copy_properties_to(PX_Mem_Area& new_one) const {
        new_one.set_device_memory(m_device_memory);
        new_one.set_printable_area(m_printable_area);
    }

private:
    long m_device_memory = 0;
    double m_printable_area = 0;
};

class PX_EXPORT PX_Std_Dither_Matrix : public PX_Named_Pair<PX_Dither_Matrix, PX_Std_Dither_Matrix> {
public:
    static constexpr PX_Naming naming = PX_NAMING_WITH(
        L"PX_Std_Dither_Matrix", px_std_res_color_mem_cfg_source, PX_Code::Null_Argument, L"name");

    const unsigned char* get_matrix() const override { return m_matrix.get(); }
    void set_matrix(const unsigned char* bytes, long sizeinbytes) override;

    void copy_properties_to(PX_Dither_Matrix& new_one) const { new_one.set_matrix(m_matrix.get(), m_size); }

private:
    std::unique_ptr<unsigned char[]> m_matrix;
    long m_size = 0;
};

class PX_EXPORT PX_Std_Dithering_Method : public PX_Named_Head<PX_Dithering_Method, PX_Std_Dithering_Method> {
public:
    static constexpr PX_Naming naming = PX_NAMING_WITH(
        L"PX_Std_Dithering_Method", px_std_res_color_mem_cfg_source, PX_Code::Null_Argument, L"name");

    PX_Dithering_Type::Enum get_dithering_method() const override { return m_dithering_method; }
    long get_matrix_size_x() const override { return m_matrix_size_x; }
    long get_matrix_size_y() const override { return m_matrix_size_y; }
    long get_source_pixel_ratio() const override { return m_source_pixel_ratio; }
    long get_pixel_expansion_ratio() const override { return m_pixel_expansion_ratio; }
    PX_Smart_Pointer<PX_Object_List<PX_Dither_Matrix>> get_matrix_list() const override {
        return m_matrix_list;
    }
    unsigned char get_constant_threshold() const override { return m_constant_threshold; }
    PX_Renderers_Required::Enum get_required_renderers() const override { return m_required_renderers; }

    void set_dithering_method(PX_Dithering_Type::Enum method) override { m_dithering_method = method; }
    void set_matrix_size_x(long size) override { m_matrix_size_x = px_not_negative(size); }
    void set_matrix_size_y(long size) override { m_matrix_size_y = px_not_negative(size); }
    void set_source_pixel_ratio(long ratio) override { m_source_pixel_ratio = px_not_negative(ratio); }
    void set_pixel_expansion_ratio(long ratio) override { m_pixel_expansion_ratio = px_not_negative(ratio); }
    void set_matrix_list(const PX_Object_List<PX_Dither_Matrix>* list) override;
    void set_constant_threshold(unsigned char threshold) override { m_constant_threshold = threshold; }
    void set_required_renderers(PX_Renderers_Required::Enum level) override { m_required_renderers = level; }

    void copy_properties_to(PX_Dithering_Method& new_one) const;

private:
    PX_Dithering_Type::Enum m_dithering_method = PX_Dithering_Type::Dithering_Type_0;
    long m_matrix_size_x = 0;
    long m_matrix_size_y = 0;
    long m_source_pixel_ratio = 1;
    long m_pixel_expansion_ratio = 1;
    PX_Smart_Pointer<PX_Object_List<PX_Dither_Matrix>> m_matrix_list =
        px_new_list<PX_Dither_Matrix, PX_Object_List>();
    unsigned char m_constant_threshold = 1;
    PX_Renderers_Required::Enum m_required_renderers = PX_Renderers_Required::Renderer_Level_0;
};

class PX_EXPORT PX_Std_Resolution : public PX_Named_Head<PX_Resolution, PX_Std_Resolution> {
public:
    static constexpr PX_Naming naming = PX_NAMING(L"PX_Std_Resolution", px_std_res_color_mem_cfg_source);

    const wchar_t* get_dithering_name() const override { return m_dithering_name; }
    PX_Smart_Pointer<PX_Named_Object_List<PX_Caps_Name_List_Object>> get_mem_area_name_list() const override {
        return m_mem_area_name_list;
    }
    const wchar_t* get_default_mem_area_name() const override { return m_default_mem_area_name; }
    PX_Smart_Pointer<PX_Float_XY> get_effective_resolution_xy() const override {
        return m_effective_resolution_xy;
    }
    PX_Smart_Pointer<PX_Float_XY> get_phys_resolution_xy() const override { return m_phys_resolution_xy; }
    PX_Smart_Pointer<PX_Float_XY> get_addr_resolution_xy() const override { return m_addr_resolution_xy; }

    void set_effective_resolution_xy(const PX_Float_XY* resolution) override;
    void set_dithering_name(const wchar_t* name) override { m_dithering_name = name; }
    void set_mem_area_name_list(const PX_Named_Object_List<PX_Caps_Name_List_Object>* list) override;
    void set_default_mem_area_name(const wchar_t* name) override { m_default_mem_area_name = name; }
    void set_phys_resolution_xy(const PX_Float_XY* resolution) override;
    void set_addr_resolution_xy(const PX_Float_XY* resolution) override;

    void copy_properties_to(PX_Resolution& new_one) const;

private:
    PX_String m_dithering_name;
    PX_Smart_Pointer<PX_Named_Object_List<PX_Caps_Name_List_Object>> m_mem_area_name_list =
        px_new_list<PX_Caps_Name_List_Object>();
    PX_String m_default_mem_area_name;
    PX_Smart_Pointer<PX_Float_XY> m_effective_resolution_xy{new PX_Float_XY};
    PX_Smart_Pointer<PX_Float_XY> m_phys_resolution_xy{new PX_Float_XY};
    PX_Smart_Pointer<PX_Float_XY> m_addr_resolution_xy{new PX_Float_XY};
};

class PX_EXPORT PX_Std_ResColorMem : public PX_Named_Head<PX_ResColorMem, PX_Std_ResColorMem> {
public:
    static constexpr PX_Naming naming = PX_NAMING_WITH(L"PX_Std_ResColorMem", px_std_res_color_mem_cfg_source,
                                                       PX_Code::Null_Argument, L"name");

    long get_num_colors() const override { return m_num_colors; }
    long get_color_depth() const override { return m_color_depth; }
    long get_num_undithered_colors() const override { return m_num_undithered_colors; }
    PX_Color_System::Enum get_color_system() const override { return m_color_system; }
    PX_Smart_Pointer<PX_Named_Object_List<PX_Resolution>> get_resolution_list() const override {
        return m_resolution_list;
    }
    PX_Smart_Pointer<PX_Resolution> get_resolution(const wchar_t* name) const override {
        return px_find(m_resolution_list, name);
    }
    const wchar_t* get_default_resolution() const override { return m_default_resolution; }

    void set_num_colors(long colors) override { m_num_colors = px_not_negative(colors); }
    void set_color_depth(long depth) override { m_color_depth = px_not_negative(depth); }
    void set_num_undithered_colors(long colors) override { m_num_undithered_colors = colors; }
    void set_color_system(PX_Color_System::Enum system) override { m_color_system = system; }
    void set_resolution_list(const PX_Named_Object_List<PX_Resolution>* list) override;
    void set_default_resolution(const wchar_t* name) override;

    void copy_properties_to(PX_ResColorMem& new_one) const;

private:
    long m_num_colors = 0;
    long m_color_depth = 0;
    long m_num_undithered_colors = 0;
    PX_Color_System::Enum m_color_system = PX_Color_System::Color_System_0;
    PX_Smart_Pointer<PX_Named_Object_List<PX_Resolution>> m_resolution_list = px_new_list<PX_Resolution>();
    PX_String m_default_resolution;
};
