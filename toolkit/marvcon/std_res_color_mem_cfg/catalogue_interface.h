#pragma once

#include "toolkit/core/caps_name.h"
#include "toolkit/core/caps_type.h"
#include "toolkit/core/exception.h"
#include "toolkit/core/object_list.h"
#include "toolkit/host/geometry.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/flags.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/values.h"

// How a device renders raster output. Nothing in the catalogue points at anything else: a reference is a
// canonical name. The units of memory, areas and resolutions are the driver's.
//
// In every class: a text setter copies; a null canonical name is stored as the empty text and then throws
// MVNK_Error 1103, detail "name" ("canonical_name" for a resolution); any other null text is the empty one,
// but for the default resolution of a colour mode. A setter of a pair stores a copy, zeros for null; what a
// getter gave before keeps its numbers. A list setter copies deep, and null gives a new empty list. No memory
// for either is MVNK_Memory_Exception 1101 with the member's name and leaves the old one. A lookup by name
// gives null when there is no list, no name or no such entry, and a withdrawn entry like any other. The clone
// shares nothing; no memory for it is 1101, detail "new_one".

// A memory configuration of the device.
class PX_EXPORT PX_Mem_Area {
public:
    virtual ~PX_Mem_Area();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    virtual long get_device_memory() const = 0;
    // What can be printed with this memory.
    virtual double get_printable_area() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;
    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_device_memory(long memory) = 0;
    virtual void set_printable_area(double area) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;

    virtual PX_Mem_Area* clone() const = 0;
};

// The bytes of one matrix; how many there are follows from the sizes of its dithering method.
class PX_EXPORT PX_Dither_Matrix {
public:
    virtual ~PX_Dither_Matrix();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    // Null when it is empty.
    virtual const unsigned char* get_matrix() const = 0;
    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    // Copies the bytes; none for a null pointer or size 0. A negative size is MVNK_Warning 1104,
    // "sizeinbytes", and leaves the matrix; no memory is MVNK_Memory_Exception 1101, "m_matrix", and leaves
    // an empty one.
    virtual void set_matrix(const unsigned char* bytes, long sizeinbytes) = 0;

    virtual PX_Dither_Matrix* clone() const = 0;
};

// A way of dithering: its matrices, and what it needs of the renderer.
class PX_EXPORT PX_Dithering_Method {
public:
    virtual ~PX_Dithering_Method();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    virtual PX_Dithering_Type::Enum get_dithering_method() const = 0;
    virtual long get_matrix_size_x() const = 0;
    virtual long get_matrix_size_y() const = 0;
    virtual long get_source_pixel_ratio() const = 0;
    virtual long get_pixel_expansion_ratio() const = 0;
    virtual PX_Smart_Pointer<PX_Object_List<PX_Dither_Matrix>> get_matrix_list() const = 0;
    virtual unsigned char get_constant_threshold() const = 0;
    virtual PX_Renderers_Required::Enum get_required_renderers() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;
    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_dithering_method(PX_Dithering_Type::Enum method) = 0;
    // A negative size or ratio becomes 0.
    virtual void set_matrix_size_x(long size) = 0;
    virtual void set_matrix_size_y(long size) = 0;
    virtual void set_source_pixel_ratio(long ratio) = 0;
    virtual void set_pixel_expansion_ratio(long ratio) = 0;
    virtual void set_matrix_list(const PX_Object_List<PX_Dither_Matrix>* list) = 0;
    virtual void set_constant_threshold(unsigned char threshold) = 0;
    virtual void set_required_renderers(PX_Renderers_Required::Enum level) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;

    virtual PX_Dithering_Method* clone() const = 0;
};

// One resolution of a colour mode.
class PX_EXPORT PX_Resolution {
public:
    virtual ~PX_Resolution();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    virtual const wchar_t* get_dithering_name() const = 0;
    // The memory areas that it works with.
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Caps_Name_List_Object>> get_mem_area_name_list()
        const = 0;
    virtual const wchar_t* get_default_mem_area_name() const = 0;
    virtual PX_Smart_Pointer<PX_Float_XY> get_effective_resolution_xy() const = 0;
    virtual PX_Smart_Pointer<PX_Float_XY> get_phys_resolution_xy() const = 0;
    virtual PX_Smart_Pointer<PX_Float_XY> get_addr_resolution_xy() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;
    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_effective_resolution_xy(const PX_Float_XY* resolution) = 0;
    virtual void set_dithering_name(const wchar_t* name) = 0;
    virtual void set_mem_area_name_list(const PX_Named_Object_List<PX_Caps_Name_List_Object>* list) = 0;
    virtual void set_default_mem_area_name(const wchar_t* name) = 0;
    virtual void set_phys_resolution_xy(const PX_Float_XY* resolution) = 0;
    virtual void set_addr_resolution_xy(const PX_Float_XY* resolution) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;

    virtual PX_Resolution* clone() const = 0;
};

// One colour mode, with the resolutions that it has.
class PX_EXPORT PX_ResColorMem {
public:
    virtual ~PX_ResColorMem();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    virtual long get_num_colors() const = 0;
    // Bits.
    virtual long get_color_depth() const = 0;
    virtual long get_num_undithered_colors() const = 0;
    virtual PX_Color_System::Enum get_color_system() const = 0;
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Resolution>> get_resolution_list() const = 0;
    virtual PX_Smart_Pointer<PX_Resolution> get_resolution(const wchar_t* name) const = 0;
    virtual const wchar_t* get_default_resolution() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;
    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    // A negative number of colours or depth becomes 0; that of the undithered colours stays.
    virtual void set_num_colors(long colors) = 0;
    virtual void set_color_depth(long depth) = 0;
    virtual void set_num_undithered_colors(long colors) = 0;
    virtual void set_color_system(PX_Color_System::Enum system) = 0;
    virtual void set_resolution_list(const PX_Named_Object_List<PX_Resolution>* list) = 0;
    // Null is stored as the empty name and throws MVNK_Error 1103, "resolution".
    virtual void set_default_resolution(const wchar_t* name) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;

    virtual PX_ResColorMem* clone() const = 0;
};
