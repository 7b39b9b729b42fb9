#pragma once

#include "toolkit/core/caps_name.h"
#include "toolkit/core/exception.h"
#include "toolkit/core/flags.h"
#include "toolkit/core/smart_pointer.h"

inline constexpr PX_Source px_std_meta_cfg_source = PX_SOURCE(L"std_meta_cfg");

// The twelve abilities of a model. Drivers and host agree on what each stands for; the toolkit attaches no
// meaning to them.
struct PX_Model_Ability_Flags {
    enum Enum : int {
        No_Model_Ability = -1,
        Model_Ability_0 = 0,
        Model_Ability_1 = 1,
        Model_Ability_2 = 2,
        Model_Ability_3 = 3,
        Model_Ability_4 = 4,
        Model_Ability_5 = 5,
        Model_Ability_6 = 6,
        Model_Ability_7 = 7,
        Model_Ability_8 = 8,
        Model_Ability_9 = 9,
        Model_Ability_10 = 10,
        Model_Ability_11 = 11,
    };
    static constexpr PX_Flag_Range range{12, L"PX_Model_Ability_Flags::Enum",
                                         px_std_meta_cfg_source.header_path};
};

class PX_EXPORT PX_Model_Ability : public PX_Flag_Set<PX_Abilities, PX_Model_Ability_Flags> {};

// The kind of a driver. Those of the types 1 and 2 print through the system's own printers.
struct PX_Driver_Type {
    enum Enum : int {
        Driver_Type_Undefined = -1,
        Driver_Type_System_1 = 1,
        Driver_Type_System_2 = 2,
    };
};

// A group of models.
class PX_EXPORT PX_Family {
public:
    virtual ~PX_Family();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    // Whether the user may define models of this family.
    virtual void supports_user_defined_model(bool supported) = 0;
    virtual bool supports_user_defined_model() const = 0;
    // Null stores the empty name and throws MVNK_Error 901.
    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    // No memory is MVNK_Memory_Exception 1101, detail "new_one".
    virtual PX_Family* clone() const = 0;
};

// What finds the device on the operating system. A null text in a setter other than those of the two names is
// MVNK_Memory_Exception 1101 with the field's name as detail, and the stored text stays. A flag outside the
// enum throws PX_Severe_Error 1104.
class PX_EXPORT PX_Model {
public:
    virtual ~PX_Model();

    virtual const wchar_t* get_abilities() const = 0;
    virtual PX_Ability_Value::Enum get_one_ability(PX_Model_Ability_Flags::Enum flag) const = 0;
    virtual void set_abilities(PX_Ability_Value::Enum value) = 0;
    virtual void set_abilities(const wchar_t* text) = 0;
    virtual void set_one_ability(PX_Ability_Value::Enum value, PX_Model_Ability_Flags::Enum flag) = 0;

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    virtual const wchar_t* get_user_defined_model_pathname() const = 0;
    virtual const wchar_t* get_user_defined_model_basename() const = 0;
    virtual const wchar_t* get_win_device_name() const = 0;
    virtual const wchar_t* get_win_driver_name() const = 0;
    virtual const wchar_t* get_short_net_name() const = 0;
    virtual const wchar_t* get_friendly_net_name() const = 0;
    virtual long get_dm_driver_version() const = 0;
    virtual bool get_default_system_cfg() const = 0;
    virtual const wchar_t* get_platform() const = 0;
    virtual const wchar_t* get_locale() const = 0;
    virtual bool get_file_only() const = 0;

    // Null stores the empty name and throws MVNK_Error 902.
    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_user_defined_model_pathname(const wchar_t* text) = 0;
    virtual void set_user_defined_model_basename(const wchar_t* text) = 0;
    virtual void set_win_device_name(const wchar_t* text) = 0;
    virtual void set_win_driver_name(const wchar_t* text) = 0;
    virtual void set_short_net_name(const wchar_t* text) = 0;
    virtual void set_friendly_net_name(const wchar_t* text) = 0;
    virtual void set_dm_driver_version(long version) = 0;
    virtual void set_default_system_cfg(bool on) = 0;
    virtual void set_platform(const wchar_t* text) = 0;
    virtual void set_locale(const wchar_t* text) = 0;
    virtual void set_file_only(bool on) = 0;

    // No memory is MVNK_Memory_Exception 1101, detail "new_one".
    virtual PX_Model* clone() const = 0;
};

// Which driver and which device a definition stands for. There is always a family and a model. A null
// argument of a setter is MVNK_Memory_Exception 1101 with the field's name as detail, and the stored value
// stays.
class PX_EXPORT PX_Meta_Capabilities {
public:
    virtual ~PX_Meta_Capabilities();

    virtual const wchar_t* get_driver_pathname() const = 0;
    virtual const wchar_t* get_driver_version() const = 0;
    virtual const wchar_t* get_driver_description() const = 0;
    // The version of this toolkit that the driver was written for.
    virtual long get_toolkit_version() const = 0;
    virtual PX_Smart_Pointer<PX_Family> get_family() const = 0;
    virtual PX_Smart_Pointer<PX_Model> get_model() const = 0;
    virtual PX_Driver_Type::Enum get_driver_type() const = 0;
    // Whether the host's user interface puts custom items first.
    virtual bool get_show_custom_first() const = 0;
    // Whether TrueType text goes to the device as text.
    virtual bool get_truetype_as_text() const = 0;

    virtual void set_driver_pathname(const wchar_t* text) = 0;
    virtual void set_driver_version(const wchar_t* text) = 0;
    virtual void set_driver_description(const wchar_t* text) = 0;
    virtual void set_toolkit_version(long version) = 0;
    // The detail of a null one is "family", and "new_model" for a model; a clone is stored.
    virtual void set_family(const PX_Family* family) = 0;
    virtual void set_model(const PX_Model* model) = 0;
    virtual void set_driver_type(PX_Driver_Type::Enum type) = 0;
    virtual void set_show_custom_first(bool first) = 0;
    virtual void set_truetype_as_text(bool as_text) = 0;

    // No memory is MVNK_Memory_Exception 1101, detail "new_one".
    virtual PX_Meta_Capabilities* clone() const = 0;
};
