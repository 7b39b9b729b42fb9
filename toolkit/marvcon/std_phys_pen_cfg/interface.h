#pragma once

#include "toolkit/core/object_list.h"
#include "toolkit/host/geometry.h"
#include "toolkit/marvcon/std_phys_pen_cfg/flags.h"
#include "toolkit/marvcon/std_plval/interface.h"

// The numbered pens of a plotter. The units of widths and speeds are the driver's.
//
// A limit that would be broken does not stay: the setter stores a repaired value and then throws the
// MVNK_Error whose code stands beside it. Whoever catches it finds the object consistent. A number that is
// not one (NaN) breaks every limit.

// One pen. Its canonical name is its number in decimal, "1" upward.
class PX_EXPORT PX_Pen {
public:
    virtual ~PX_Pen();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    // Never null in the standard class. A new pen is black and opaque.
    virtual PX_Smart_Pointer<PX_RGB32> get_pen_color() const = 0;
    virtual float get_pen_width() const = 0;
    virtual float get_pen_speed() const = 0;
    // Null is stored as the empty name and throws MVNK_Error 1103, "canonical_name".
    virtual void set_canonical_name(const wchar_t* name) = 0;
    // Null is the empty name.
    virtual void set_localized_name(const wchar_t* name) = 0;
    // Stores a copy; opaque black for null. What the getter gave before keeps its colour. No memory is
    // MVNK_Memory_Exception 1101, "m_pen_color", and leaves the old one.
    virtual void set_pen_color(const PX_RGB32* color) = 0;
    // From -1 on. Else -1 and 601.
    virtual void set_pen_width(float width) = 0;
    // From 0 on. Else 0 and 602.
    virtual void set_pen_speed(float speed) = 0;

    // No memory is MVNK_Memory_Exception 1101, "new_one".
    virtual PX_Pen* clone() const = 0;
};

// How many pens the device may have, and within which limits. A flag outside its enum throws PX_Severe_Error
// 1104.
//
// The limits hold each other, so the order of setting matters: on a new object, whose widest pen is 1, the
// least width of 2 comes after a larger greatest one. The defaults are repaired without a word, against the
// limits of the moment, and are not looked at again when a limit changes.
class PX_EXPORT PX_PhysPen_Capabilities {
public:
    virtual ~PX_PhysPen_Capabilities();

    virtual long get_max_number_of_physical_pens() const = 0;
    virtual bool get_programmable_pen_widths() const = 0;
    virtual bool get_programmable_pen_speeds() const = 0;
    virtual bool get_hardware_polygon_fills() const = 0;
    virtual bool get_area_fill_correction() const = 0;
    virtual float get_max_pen_width() const = 0;
    virtual float get_min_pen_width() const = 0;
    virtual float get_max_pen_speed() const = 0;
    virtual float get_min_pen_speed() const = 0;
    virtual int get_max_pen_optimization() const = 0;
    virtual long get_default_num_of_phys_pens() const = 0;
    virtual float get_default_pen_width() const = 0;
    virtual float get_default_pen_speed() const = 0;
    virtual int get_default_pen_optimization() const = 0;

    virtual const wchar_t* get_abilities() const = 0;
    virtual PX_Ability_Value::Enum get_one_ability(PX_Pen_Ability_Flags::Enum flag) const = 0;
    virtual void set_abilities(PX_Ability_Value::Enum value) = 0;
    virtual void set_abilities(const wchar_t* text) = 0;
    virtual void set_one_ability(PX_Ability_Value::Enum value, PX_Pen_Ability_Flags::Enum flag) = 0;

    virtual const wchar_t* get_caps_state() const = 0;
    virtual bool get_one_caps_state(PX_Pen_User_Flags::Enum flag) const = 0;
    virtual void set_caps_state(bool on) = 0;
    virtual void set_caps_state(const wchar_t* text) = 0;
    virtual void set_one_caps_state(bool on, PX_Pen_User_Flags::Enum flag) = 0;

    virtual const wchar_t* get_ui_owner() const = 0;
    virtual PX_UI_Owner::Enum get_one_ui_owner(PX_PhysPen_UI_Owner_Flags::Enum flag) const = 0;
    virtual void set_ui_owner(PX_UI_Owner::Enum owner) = 0;
    virtual void set_ui_owner(const wchar_t* text) = 0;
    virtual void set_one_ui_owner(PX_UI_Owner::Enum owner, PX_PhysPen_UI_Owner_Flags::Enum flag) = 0;

    // From 0 on. Else 0 and 603.
    virtual void set_max_number_of_physical_pens(long number) = 0;
    virtual void set_programmable_pen_widths(bool on) = 0;
    virtual void set_programmable_pen_speeds(bool on) = 0;
    virtual void set_hardware_polygon_fills(bool on) = 0;
    virtual void set_area_fill_correction(bool on) = 0;
    // From -1 and from the least width on. Else the least width and 604.
    virtual void set_max_pen_width(float width) = 0;
    // From -1 up to the greatest width. Else -1 and 605.
    virtual void set_min_pen_width(float width) = 0;
    // From 0 and from the least speed on. Else the least speed and 606.
    virtual void set_max_pen_speed(float speed) = 0;
    // From 0 up to the greatest speed. Else 0 and 607.
    virtual void set_min_pen_speed(float speed) = 0;
    // A negative one is 0.
    virtual void set_max_pen_optimization(int level) = 0;
    // A negative one is 0. It may be above the greatest number; the validator refuses it then.
    virtual void set_default_num_of_phys_pens(long number) = 0;
    // Outside the limits it is the least width.
    virtual void set_default_pen_width(float width) = 0;
    // Outside the limits it is the least speed.
    virtual void set_default_pen_speed(float speed) = 0;
    // Negative or above the greatest level it is 0.
    virtual void set_default_pen_optimization(int level) = 0;

    // With the values as they are stored, also where a setter would refuse them by now. No memory is
    // MVNK_Memory_Exception 1101, "new_one".
    virtual PX_PhysPen_Capabilities* clone() const = 0;
};

// The pens as the user set them up. Every setter marks its datum as neither validated nor default. A flag
// outside the enum throws PX_Severe_Error 1104.
class PX_EXPORT PX_PhysPen_Configuration {
public:
    virtual ~PX_PhysPen_Configuration();

    // Null after it was set to null.
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Pen>> get_physical_pen_list() const = 0;
    virtual long get_number_of_physical_pens() const = 0;
    virtual bool get_pen_changing_enable() const = 0;
    virtual bool get_area_fill_correction() const = 0;
    virtual int get_pen_optimization() const = 0;

    virtual bool get_one_validated(PX_Pen_Config_Flags::Enum flag) const = 0;
    virtual bool get_validated() const = 0;
    virtual void set_one_validated(bool validated, PX_Pen_Config_Flags::Enum flag) = 0;
    virtual void set_validated(bool validated) = 0;
    virtual bool get_one_default(PX_Pen_Config_Flags::Enum flag) const = 0;
    virtual bool get_default() const = 0;
    virtual void set_one_default(bool is_default, PX_Pen_Config_Flags::Enum flag) = 0;
    virtual void set_default(bool is_default) = 0;

    // Stores a copy, pen by pen; null releases the list. No memory is MVNK_Memory_Exception 1101,
    // "m_physical_pen_list"; list and flags then stay.
    virtual void set_physical_pen_list(const PX_Named_Object_List<PX_Pen>* list) = 0;
    // A negative number or level is 0.
    virtual void set_number_of_physical_pens(long number) = 0;
    virtual void set_pen_changing_enable(bool on) = 0;
    virtual void set_area_fill_correction(bool on) = 0;
    virtual void set_pen_optimization(int level) = 0;

    // With the flags. No memory is MVNK_Memory_Exception 1101, "new_one".
    virtual PX_PhysPen_Configuration* clone() const = 0;
};

// Brings the pens in line with the device, above all the list with the number of pens. Use_Nearest takes the
// nearest value; any other strategy acts as Use_Default.
//
// A missing root is MVNK_Error 1103, "plotter_caps or plotter_cfg", a missing domain object "pen_caps or
// pen_cfg". A missing plotter validator is 1103, "plotter validator", after the repair it was to record, a
// missing class factory, for what makes lists and pens, 1103 "class_factory". Each validate_xxx ends by
// marking its datum as validated, each default operation as default and validated, also where the abilities
// made it leave the value. What was written before a failure stays.
class PX_EXPORT PX_PhysPen_Validator {
public:
    virtual ~PX_PhysPen_Validator();

    // First each pen within the limits, then the list as a whole. A list or pen that could not be made is
    // MVNK_Memory_Exception 1101, "workpenlist" or "workpen".
    virtual void validate_pen_list(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_num_phys_pens(PX_Validation_Strategy::Enum strategy) = 0;
    // Only a device of at most one pen may have its changing enabled.
    virtual void validate_pen_changing(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_area_fill_correction(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_pen_optimization(PX_Validation_Strategy::Enum strategy) = 0;
    // The number before the list, which is made to fit it.
    virtual void validate_all_pen(PX_Validation_Strategy::Enum strategy) = 0;

    // A new list, the highest number first, of pens with the default width and speed, or none at all where
    // the device keeps no list. 1101 as above.
    virtual void set_pen_list_to_default() = 0;
    // A default above the device's greatest number is MVNK_Error 611, a default level above the greatest
    // 610: nothing is stored then.
    virtual void set_num_phys_pens_to_default() = 0;
    virtual void set_pen_changing_to_default() = 0;
    virtual void set_area_fill_correction_to_default() = 0;
    virtual void set_pen_optimization_to_default() = 0;
    virtual void set_all_physpen_to_defaults() = 0;

protected:
    // The greatest, or the default if that is as near. 610 and 611 as above.
    virtual void set_num_phys_pens_to_nearest() = 0;
    virtual void set_pen_optimization_to_nearest() = 0;
    // Drops the pens whose name is no number of a pen that the device can have, and the later one of two with
    // one number; then, if the count of the rest is not the configured number, puts the missing ones up to
    // that number at the head. True when anything changed; otherwise the configuration is not written to.
    // 1101 as above, and then nothing is stored; null arguments are 1103, "pen_caps or pen_cfg".
    virtual bool synchronize_pen_list(PX_Smart_Pointer<PX_PhysPen_Capabilities> capabilities,
                                      PX_Smart_Pointer<PX_PhysPen_Configuration> configuration) = 0;
};
