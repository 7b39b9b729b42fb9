#pragma once

#include "toolkit/marvcon/std_media_cfg/catalogue_interface.h"
#include "toolkit/marvcon/std_media_cfg/flags.h"
#include "toolkit/marvcon/std_plval/interface.h"

// A snapshot of what the chosen catalogue objects were like. Validators compare it with the catalogue, and
// the nearest searches measure against it. Setters store as their namesakes of the catalogue do.
class PX_EXPORT PX_Media_Settings {
public:
    virtual ~PX_Media_Settings();

    virtual long get_drying_time() const = 0;
    virtual PX_Smart_Pointer<PX_Float_XY> get_max_resolution() const = 0;
    virtual PX_Smart_Pointer<PX_Float_XY> get_media_bounds() const = 0;
    virtual PX_Smart_Pointer<PX_Float_Rectangle> get_printable_bounds() const = 0;
    virtual double get_printable_area() const = 0;
    virtual bool get_dimensional() const = 0;
    virtual PX_Media_Group::Enum get_media_group() const = 0;
    virtual bool get_landscape_mode_flag() const = 0;
    virtual const wchar_t* get_form_name() const = 0;
    virtual PX_Media_Feed::Enum get_media_feed() const = 0;
    virtual PX_Media_Collating_Type::Enum get_collating_type() const = 0;
    virtual PX_Media_Stapling_Location::Enum get_stapling_location() const = 0;
    virtual PX_Media_Stapling_When::Enum get_stapling_when() const = 0;
    virtual short get_stapling_orientation() const = 0;
    virtual PX_Media_Cutting_When::Enum get_cutting_when() const = 0;
    virtual PX_Media_Folding_Type::Enum get_folding_type() const = 0;
    virtual PX_Media_Folding_When::Enum get_folding_when() const = 0;
    virtual float get_source_width() const = 0;
    virtual float get_source_frame_height() const = 0;

    virtual void set_drying_time(long value) = 0;
    virtual void set_max_resolution(const PX_Float_XY* resolution) = 0;
    virtual void set_media_bounds(const PX_Float_XY* bounds) = 0;
    virtual void set_printable_bounds(const PX_Float_Rectangle* bounds) = 0;
    virtual void set_printable_area(double area) = 0;
    virtual void set_dimensional(bool on) = 0;
    virtual void set_media_group(PX_Media_Group::Enum group) = 0;
    virtual void set_landscape_mode_flag(bool on) = 0;
    virtual void set_form_name(const wchar_t* name) = 0;
    virtual void set_media_feed(PX_Media_Feed::Enum feed) = 0;
    virtual void set_collating_type(PX_Media_Collating_Type::Enum type) = 0;
    virtual void set_stapling_location(PX_Media_Stapling_Location::Enum location) = 0;
    virtual void set_stapling_when(PX_Media_Stapling_When::Enum when) = 0;
    virtual void set_stapling_orientation(short orientation) = 0;
    virtual void set_cutting_when(PX_Media_Cutting_When::Enum when) = 0;
    virtual void set_folding_type(PX_Media_Folding_Type::Enum type) = 0;
    virtual void set_folding_when(PX_Media_Folding_When::Enum when) = 0;
    virtual void set_source_width(float width) = 0;
    virtual void set_source_frame_height(float height) = 0;

    // Each copies the values of a catalogue object, and does nothing for null. A destination has none.
    virtual void set_media_type_settings(const PX_Media_Type* type) = 0;
    virtual void set_media_size_settings(const PX_Media_Size* size) = 0;
    virtual void set_media_description_settings(const PX_Media_Description* description) = 0;
    virtual void set_media_source_settings(const PX_Media_Source* source) = 0;
    virtual void set_media_source_entry_settings(const PX_Media_Source_Entry* source_entry) = 0;
    virtual void set_media_destination_settings(const PX_Media_Destination* destination) = 0;
    virtual void set_media_collating_settings(const PX_Media_Collating* collating) = 0;
    virtual void set_media_stapling_settings(const PX_Media_Stapling* stapling) = 0;
    virtual void set_media_cutting_settings(const PX_Media_Cutting* cutting) = 0;
    virtual void set_media_folding_settings(const PX_Media_Folding* folding) = 0;

    // No memory is MVNK_Memory_Exception 1101, detail "new_one".
    virtual PX_Media_Settings* clone() const = 0;
};

// What the device can do with paper. Numbers are stored as they come: the tests stand in the validator.
// Names, lists, values and lookups behave as those of the catalogue. A flag outside its enum throws
// PX_Severe_Error 1104.
class PX_EXPORT PX_Media_Capabilities {
public:
    virtual ~PX_Media_Capabilities();

    virtual const wchar_t* get_abilities() const = 0;
    virtual PX_Ability_Value::Enum get_one_ability(PX_Media_Ability_Flags::Enum flag) const = 0;
    virtual void set_abilities(PX_Ability_Value::Enum value) = 0;
    virtual void set_abilities(const wchar_t* text) = 0;
    virtual void set_one_ability(PX_Ability_Value::Enum value, PX_Media_Ability_Flags::Enum flag) = 0;

    virtual const wchar_t* get_caps_state() const = 0;
    virtual bool get_one_caps_state(PX_Media_User_Flags::Enum flag) const = 0;
    virtual void set_caps_state(bool on) = 0;
    virtual void set_caps_state(const wchar_t* text) = 0;
    virtual void set_one_caps_state(bool on, PX_Media_User_Flags::Enum flag) = 0;

    virtual const wchar_t* get_ui_owner() const = 0;
    virtual PX_UI_Owner::Enum get_one_ui_owner(PX_Media_UI_Owner_Flags::Enum flag) const = 0;
    virtual void set_ui_owner(PX_UI_Owner::Enum owner) = 0;
    virtual void set_ui_owner(const wchar_t* text) = 0;
    virtual void set_one_ui_owner(PX_UI_Owner::Enum owner, PX_Media_UI_Owner_Flags::Enum flag) = 0;

    virtual long get_media_selection_methods() const = 0;
    virtual PX_Media_Selection_Method::Enum get_default_media_selection_method() const = 0;
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Source>> get_media_source_list() const = 0;
    virtual PX_Smart_Pointer<PX_Media_Source> get_media_source(const wchar_t* name) const = 0;
    virtual const wchar_t* get_default_media_source() const = 0;
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Size>> get_media_size_list() const = 0;
    virtual PX_Smart_Pointer<PX_Media_Size> get_media_size(const wchar_t* name) const = 0;
    virtual const wchar_t* get_default_media_size() const = 0;
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Destination>> get_media_destination_list()
        const = 0;
    virtual PX_Smart_Pointer<PX_Media_Destination> get_media_destination(const wchar_t* name) const = 0;
    virtual const wchar_t* get_default_media_destination() const = 0;
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Description>> get_media_description_list()
        const = 0;
    virtual PX_Smart_Pointer<PX_Media_Description> get_media_description(const wchar_t* name) const = 0;
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Type>> get_media_type_list() const = 0;
    virtual PX_Smart_Pointer<PX_Media_Type> get_media_type(const wchar_t* name) const = 0;
    virtual const wchar_t* get_default_media_type() const = 0;
    virtual long get_duplexing_modes() const = 0;
    virtual PX_Duplexing_Mode::Enum get_default_duplexing_mode() const = 0;
    virtual long get_max_number_of_copies() const = 0;
    virtual double get_default_longplot_reduction() const = 0;
    virtual long get_default_dm_scale() const = 0;
    virtual PX_Smart_Pointer<PX_Float_XY> get_media_size_max() const = 0;
    virtual float get_media_roll_max_height() const = 0;

    virtual void set_media_selection_methods(long methods) = 0;
    virtual void set_default_media_selection_method(PX_Media_Selection_Method::Enum method) = 0;
    virtual void set_media_source_list(const PX_Named_Object_List<PX_Media_Source>* list) = 0;
    virtual void set_default_media_source(const wchar_t* name) = 0;
    virtual void set_media_size_list(const PX_Named_Object_List<PX_Media_Size>* list) = 0;
    virtual void set_default_media_size(const wchar_t* name) = 0;
    virtual void set_media_destination_list(const PX_Named_Object_List<PX_Media_Destination>* list) = 0;
    virtual void set_default_media_destination(const wchar_t* name) = 0;
    virtual void set_media_description_list(const PX_Named_Object_List<PX_Media_Description>* list) = 0;
    virtual void set_media_type_list(const PX_Named_Object_List<PX_Media_Type>* list) = 0;
    virtual void set_default_media_type(const wchar_t* name) = 0;
    virtual void set_duplexing_modes(long modes) = 0;
    virtual void set_default_duplexing_mode(PX_Duplexing_Mode::Enum mode) = 0;
    virtual void set_max_number_of_copies(long copies) = 0;
    virtual void set_default_longplot_reduction(double factor) = 0;
    virtual void set_default_dm_scale(long percent) = 0;
    // The largest sheet, in the unit of the descriptions; it counts with the size limit ability.
    virtual void set_media_size_max(const PX_Float_XY* sheet) = 0;
    // The greatest height on a roll, in the same unit.
    virtual void set_media_roll_max_height(float height) = 0;

    // Removes from the caller's list the sizes, or the names of sizes, whose group's bit is clear in
    // `groups`. A withdrawn size, one of no group and a name that no size bears stay. A null list does
    // nothing.
    virtual void filter_media_size_list_by_groups(
        PX_Smart_Pointer<PX_Named_Object_List<PX_Caps_Name_List_Object>> list,
        unsigned long groups) const = 0;
    virtual void filter_media_size_list_by_groups(PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Size>> list,
                                                  unsigned long groups) const = 0;

    virtual PX_Media_Capabilities* clone() const = 0;
};

// What the user chose: names, plain values, and the snapshot of what the names stood for. A setter of a
// catalogue object takes its name and fills the snapshot; null empties the name and throws MVNK_Error 1103,
// and the snapshot and the flags stay. Every setter marks its datum as neither validated nor default, but
// that of the settings. A flag outside its enum throws PX_Severe_Error 1104.
class PX_EXPORT PX_Media_Configuration {
public:
    virtual bool get_one_validated(PX_Media_Config_Flags::Enum flag) const = 0;
    virtual bool get_validated() const = 0;
    virtual void set_one_validated(bool validated, PX_Media_Config_Flags::Enum flag) = 0;
    virtual void set_validated(bool validated) = 0;
    virtual bool get_one_default(PX_Media_Config_Flags::Enum flag) const = 0;
    virtual bool get_default() const = 0;
    virtual void set_one_default(bool is_default, PX_Media_Config_Flags::Enum flag) = 0;
    virtual void set_default(bool is_default) = 0;

    virtual ~PX_Media_Configuration();

    virtual PX_Media_Selection_Method::Enum get_media_selection_method() const = 0;
    virtual const wchar_t* get_media_type() const = 0;
    virtual const wchar_t* get_media_source() const = 0;
    virtual const wchar_t* get_media_source_entry() const = 0;
    virtual const wchar_t* get_media_size() const = 0;
    virtual const wchar_t* get_media_destination() const = 0;
    virtual const wchar_t* get_media_collating() const = 0;
    virtual const wchar_t* get_media_stapling() const = 0;
    virtual const wchar_t* get_media_cutting() const = 0;
    virtual const wchar_t* get_media_folding() const = 0;
    virtual PX_Smart_Pointer<PX_Media_Settings> get_media_settings() const = 0;
    virtual long get_number_of_copies() const = 0;
    virtual PX_Duplexing_Mode::Enum get_duplexing_mode() const = 0;
    virtual PX_Smart_Pointer<PX_Float_Rectangle> get_margins() const = 0;
    virtual double get_longplot_reduction() const = 0;
    virtual long get_dm_scale() const = 0;
    virtual long get_dm_orientation() const = 0;
    virtual PX_Smart_Pointer<PX_Float_Rectangle> get_actual_printable_bounds() const = 0;

    virtual void set_media_selection_method(PX_Media_Selection_Method::Enum method) = 0;
    virtual void set_media_type(const PX_Media_Type* type) = 0;
    virtual void set_media_source(const PX_Media_Source* source) = 0;
    virtual void set_media_source_entry(const PX_Media_Source_Entry* entry) = 0;
    // The actual printable bounds become those of the description, turned when the dm orientation is 2.
    // Either one null empties the name and throws.
    virtual void set_media_size(const PX_Media_Size* size, const PX_Media_Description* description) = 0;
    virtual void set_media_destination(const PX_Media_Destination* destination) = 0;
    // A change of finishing has the destination validated again, too.
    virtual void set_media_collating(const PX_Media_Collating* collating) = 0;
    virtual void set_media_stapling(const PX_Media_Stapling* stapling) = 0;
    virtual void set_media_cutting(const PX_Media_Cutting* cutting) = 0;
    virtual void set_media_folding(const PX_Media_Folding* folding) = 0;
    // Stores a clone; null throws MVNK_Error 1103, "settings".
    virtual void set_media_settings(const PX_Media_Settings* settings) = 0;
    virtual void set_number_of_copies(long copies) = 0;
    virtual void set_duplexing_mode(PX_Duplexing_Mode::Enum mode) = 0;
    // The part of the printable bounds that the user leaves to the plot; zeros for null.
    virtual void set_margins(const PX_Float_Rectangle* margins) = 0;
    // A factor, 1.0 and above.
    virtual void set_longplot_reduction(double factor) = 0;
    // In per cent, 1 to 32766.
    virtual void set_dm_scale(long percent) = 0;
    // 1 upright, 2 turned: the actual printable bounds follow.
    virtual void set_dm_orientation(long orientation) = 0;
    virtual void set_actual_printable_bounds(const PX_Float_Rectangle* bounds) = 0;

    virtual PX_Media_Configuration* clone() const = 0;
};

// Brings the configuration in line with the capabilities. A named choice stands when the catalogue has the
// name, not withdrawn, and the snapshot still equals the entry of that name.
//
// Every operation throws MVNK_Error 1103 when a root or a domain object is missing, "plotter_caps or
// plotter_cfg" or "media_caps or media_cfg". A validate operation repairs by the strategy, raises its bit of
// the media change word and marks its datum as validated; what fails on the way passes its frame as a plain
// PX_Exception, and the datum stays unmarked. The other errors are MVNK_Error without a detail unless one is
// told:
//
//     no list              318 types, 305 sources, 322 entries of a source, 320 sizes, 312 destinations
//     no snapshot          319
//     validate_size        308 no usable source, 323 no usable entry, 1103 "size_list" no such size,
//                          MVNK_Memory_Exception 1101 "work_descr" no such description
//     a default            303 type, 304 source, 324 entry: withdrawn, and written; 309, 310 size by source
//     and direct,
//                          311 destination or finishing, 315 duplexing, 316 dm scale, 317 reduction: nothing
//                          is written; 321 selection method: the value is written
//     nothing to write     1103 of the configuration's setter, which empties the name: a default that names
//     nothing, a
//                          nearest search without candidates, a feed that no source has
//     bounds               1103 "margins", "description_list", "newsize", "bounds"
class PX_EXPORT PX_Media_Validator {
public:
    virtual ~PX_Media_Validator();

    virtual void validate_selection_method(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_type(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_source(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_source_entry(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_size(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_destination(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_number_of_copies(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_duplexing(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_margins(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_longplot_reduction(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_dm_scale(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_dm_orientation(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_actual_printable_bounds(PX_Validation_Strategy::Enum strategy) = 0;
    // All of them in this order, whatever the abilities and flags.
    virtual void validate_all_media(PX_Validation_Strategy::Enum strategy) = 0;

    // Each writes the default where the abilities allow, and marks its datum as default and validated in any
    // case.
    virtual void set_selection_method_to_default() = 0;
    virtual void set_type_to_default() = 0;
    virtual void set_source_to_default() = 0;
    virtual void set_source_entry_to_default() = 0;
    virtual void set_size_to_default() = 0;
    virtual void set_destination_to_default() = 0;
    virtual void set_number_of_copies_to_default() = 0;
    virtual void set_duplexing_to_default() = 0;
    virtual void set_margins_to_default() = 0;
    virtual void set_longplot_reduction_to_default() = 0;
    virtual void set_dm_scale_to_default() = 0;
    virtual void set_dm_orientation_to_default() = 0;
    virtual void set_actual_printable_bounds_to_default() = 0;
    virtual void set_all_media_to_defaults() = 0;

    // Each writes the entry of the catalogue that is most like the snapshot. They raise no bit and set no
    // flag.
    virtual void set_type_to_nearest() = 0;
    virtual void set_source_to_nearest() = 0;
    // False when no size is near enough; the configuration is then as it was.
    virtual bool set_size_to_nearest() = 0;
    // The destination only: the names of the finishing options stay.
    virtual void set_destination_to_nearest() = 0;
    virtual void set_source_entry_to_nearest() = 0;
};
