#pragma once

#include "toolkit/core/caps_type.h"
#include "toolkit/core/object_list.h"
#include "toolkit/core/smart_pointer.h"
#include "toolkit/marvcon/std_custom_cfg/custom_data_interface.h"

// The settings that a driver adds of its own.
//
// In every class, here and in the configuration: a setter of a value copies it into a new one of the standard
// class, null takes the value away. A value whose type() is none of the five, or not that of its class, is
// MVNK_Error 701; no memory is 1101, with the member's name where the setter itself finds it. Either leaves
// the old value. A name setter copies; null is stored as the empty text and then throws MVNK_Error 1103,
// detail "canonical_name" or "localized_name". A list setter copies deep, and null takes the list away; no
// memory is MVNK_Memory_Exception 1101, and the old list stays. The clone shares nothing; no memory for it is
// 1101, detail "new_one".

// One allowed value of a setting.
class PX_EXPORT PX_Custom_Capability_Value {
public:
    virtual ~PX_Custom_Capability_Value();

    // That of the value; Data_Undefined without one.
    virtual PX_Data_Type::Enum get_data_type() const = 0;
    virtual PX_Smart_Pointer<PX_Custom_Data> get_data_value() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;
    virtual void set_data_value(const PX_Custom_Data* value) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;

    virtual PX_Custom_Capability_Value* clone() const = 0;
};

// One setting: what its values may be, a range or a list, and its default. It shows either its range or its
// list; what is stored of the other is kept and cloned all the same.
class PX_EXPORT PX_Custom_Capability {
public:
    virtual ~PX_Custom_Capability();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    // Data_Undefined in a new one, which no value is of: the driver must set it.
    virtual PX_Data_Type::Enum get_data_type() const = 0;
    // False: any value of the right type will do.
    virtual bool get_verifiable() const = 0;
    virtual bool get_is_range_type() const = 0;
    // 0 unless it is of range type.
    virtual double get_range_min() const = 0;
    virtual double get_range_max() const = 0;
    // 0 if it is of range type.
    virtual long get_num_values() const = 0;
    virtual PX_Smart_Pointer<PX_Object_List<PX_Custom_Capability_Value>> get_value_list() const = 0;
    virtual PX_Smart_Pointer<PX_Custom_Data> get_default_data_value() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;
    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_data_type(PX_Data_Type::Enum type) = 0;
    virtual void set_verifiable(bool on) = 0;
    virtual void set_is_range_type(bool on) = 0;
    virtual void set_range_min(double min) = 0;
    virtual void set_range_max(double max) = 0;
    // A negative number becomes 0. It is the driver's word: nothing counts the list.
    virtual void set_num_values(long count) = 0;
    // The detail for no memory is "new_list".
    virtual void set_value_list(const PX_Object_List<PX_Custom_Capability_Value>* list) = 0;
    virtual void set_default_data_value(const PX_Custom_Data* value) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;

    virtual PX_Custom_Capability* clone() const = 0;
};
