#pragma once

#include "toolkit/core/caps_name.h"
#include "toolkit/core/caps_type.h"
#include "toolkit/core/exception.h"
#include "toolkit/core/object_list.h"
#include "toolkit/host/geometry.h"
#include "toolkit/marvcon/std_media_cfg/values.h"

// What a device offers on the paper side. Nothing in the catalogue points at anything else: a reference is a
// canonical name.
//
// In every class: a text setter copies; a null canonical name, or a null name of a description, a default
// size, a default entry or a default finishing, is stored as the empty text and then throws MVNK_Error 1103.
// A null localized or form name is the empty text. A setter of a value stores a copy, zeros for null; what a
// getter gave before keeps its numbers. No memory for it is MVNK_Memory_Exception 1101 with the member's
// name. A list setter copies deep; null leaves no list, and no memory is std::bad_alloc and leaves the old
// one. A lookup by name gives null when there is no list, no name or no such entry, and a withdrawn entry
// like any other. The clone shares nothing; no memory for it is 1101, detail "new_one".

// A sort of paper. The drying time and the best resolution are in units of the driver's.
class PX_EXPORT PX_Media_Type {
public:
    virtual ~PX_Media_Type();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    virtual long get_drying_time() const = 0;
    virtual PX_Smart_Pointer<PX_Float_XY> get_max_resolution() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;

    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_drying_time(long value) = 0;
    virtual void set_max_resolution(const PX_Float_XY* resolution) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;

    virtual PX_Media_Type* clone() const = 0;
};

// The measures of a sheet, in the unit that the driver uses for all of one device. Several sizes may share
// one.
class PX_EXPORT PX_Media_Description {
public:
    virtual ~PX_Media_Description();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    virtual PX_Smart_Pointer<PX_Float_XY> get_media_bounds() const = 0;
    virtual PX_Smart_Pointer<PX_Float_Rectangle> get_printable_bounds() const = 0;
    virtual double get_printable_area() const = 0;
    virtual bool get_dimensional() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;

    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_media_bounds(const PX_Float_XY* bounds) = 0;
    virtual void set_printable_bounds(const PX_Float_Rectangle* bounds) = 0;
    virtual void set_printable_area(double area) = 0;
    virtual void set_dimensional(bool on) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;

    virtual PX_Media_Description* clone() const = 0;
};

// A named size. It names its description; the form name is the operating system's, where there is one.
class PX_EXPORT PX_Media_Size {
public:
    virtual ~PX_Media_Size();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    virtual PX_Media_Group::Enum get_media_group() const = 0;
    virtual bool get_landscape_mode_flag() const = 0;
    virtual const wchar_t* get_media_description() const = 0;
    virtual const wchar_t* get_form_name() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;

    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_media_group(PX_Media_Group::Enum group) = 0;
    virtual void set_landscape_mode_flag(bool on) = 0;
    virtual void set_media_description(const wchar_t* name) = 0;
    virtual void set_form_name(const wchar_t* name) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;

    virtual PX_Media_Size* clone() const = 0;
};

// One way through a source: the names of the sizes that it feeds, and the default among them. Negative
// measures are stored as 0.
class PX_EXPORT PX_Media_Source_Entry {
public:
    virtual ~PX_Media_Source_Entry();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Caps_Name_List_Object>> get_media_size_name_list()
        const = 0;
    virtual const wchar_t* get_default_media_size() const = 0;
    virtual float get_source_width() const = 0;
    virtual float get_source_frame_height() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;

    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_media_size_name_list(const PX_Named_Object_List<PX_Caps_Name_List_Object>* list) = 0;
    virtual void set_default_media_size(const wchar_t* name) = 0;
    virtual void set_source_width(float width) = 0;
    virtual void set_source_frame_height(float height) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;

    virtual PX_Media_Source_Entry* clone() const = 0;
};

// An input tray or a roll, with its entries and the name of the default one.
class PX_EXPORT PX_Media_Source {
public:
    virtual ~PX_Media_Source();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Source_Entry>> get_source_entry_list() const = 0;
    virtual PX_Smart_Pointer<PX_Media_Source_Entry> get_source_entry(const wchar_t* name) const = 0;
    virtual const wchar_t* get_default_source_entry() const = 0;
    virtual PX_Media_Feed::Enum get_media_feed() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;

    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_source_entry_list(const PX_Named_Object_List<PX_Media_Source_Entry>* list) = 0;
    virtual void set_default_source_entry(const wchar_t* name) = 0;
    virtual void set_media_feed(PX_Media_Feed::Enum feed) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;

    virtual PX_Media_Source* clone() const = 0;
};

// A way of collating, of a destination.
class PX_EXPORT PX_Media_Collating {
public:
    virtual ~PX_Media_Collating();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;
    virtual PX_Media_Collating_Type::Enum get_collating_type() const = 0;

    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;
    virtual void set_collating_type(PX_Media_Collating_Type::Enum type) = 0;

    virtual PX_Media_Collating* clone() const = 0;
};

// A way of stapling. The orientation is in degrees, 0 to 360; any other is stored as 0.
class PX_EXPORT PX_Media_Stapling {
public:
    virtual ~PX_Media_Stapling();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;
    virtual PX_Media_Stapling_Location::Enum get_stapling_location() const = 0;
    virtual PX_Media_Stapling_When::Enum get_stapling_when() const = 0;
    virtual short get_stapling_orientation() const = 0;

    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;
    virtual void set_stapling_location(PX_Media_Stapling_Location::Enum location) = 0;
    virtual void set_stapling_when(PX_Media_Stapling_When::Enum when) = 0;
    virtual void set_stapling_orientation(short orientation) = 0;

    virtual PX_Media_Stapling* clone() const = 0;
};

// A way of cutting.
class PX_EXPORT PX_Media_Cutting {
public:
    virtual ~PX_Media_Cutting();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;
    virtual PX_Media_Cutting_When::Enum get_cutting_when() const = 0;

    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;
    virtual void set_cutting_when(PX_Media_Cutting_When::Enum when) = 0;

    virtual PX_Media_Cutting* clone() const = 0;
};

// A way of folding.
class PX_EXPORT PX_Media_Folding {
public:
    virtual ~PX_Media_Folding();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;
    virtual PX_Media_Folding_Type::Enum get_folding_type() const = 0;
    virtual PX_Media_Folding_When::Enum get_folding_when() const = 0;

    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;
    virtual void set_folding_type(PX_Media_Folding_Type::Enum type) = 0;
    virtual void set_folding_when(PX_Media_Folding_When::Enum when) = 0;

    virtual PX_Media_Folding* clone() const = 0;
};

// Where the sheets go, with the finishing options there and the name of the default of each.
class PX_EXPORT PX_Media_Destination {
public:
    virtual ~PX_Media_Destination();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Collating>> get_collating_list() const = 0;
    virtual PX_Smart_Pointer<PX_Media_Collating> get_collating(const wchar_t* name) const = 0;
    virtual const wchar_t* get_default_collating() const = 0;
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Stapling>> get_stapling_list() const = 0;
    virtual PX_Smart_Pointer<PX_Media_Stapling> get_stapling(const wchar_t* name) const = 0;
    virtual const wchar_t* get_default_stapling() const = 0;
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Cutting>> get_cutting_list() const = 0;
    virtual PX_Smart_Pointer<PX_Media_Cutting> get_cutting(const wchar_t* name) const = 0;
    virtual const wchar_t* get_default_cutting() const = 0;
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Folding>> get_folding_list() const = 0;
    virtual PX_Smart_Pointer<PX_Media_Folding> get_folding(const wchar_t* name) const = 0;
    virtual const wchar_t* get_default_folding() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;

    // The localized name comes first here, as hosts know it.
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_collating_list(const PX_Named_Object_List<PX_Media_Collating>* list) = 0;
    virtual void set_default_collating(const wchar_t* name) = 0;
    virtual void set_stapling_list(const PX_Named_Object_List<PX_Media_Stapling>* list) = 0;
    virtual void set_default_stapling(const wchar_t* name) = 0;
    virtual void set_cutting_list(const PX_Named_Object_List<PX_Media_Cutting>* list) = 0;
    virtual void set_default_cutting(const wchar_t* name) = 0;
    virtual void set_folding_list(const PX_Named_Object_List<PX_Media_Folding>* list) = 0;
    virtual void set_default_folding(const wchar_t* name) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;

    virtual PX_Media_Destination* clone() const = 0;
};
