#pragma once

#include "toolkit/core/exception.h"
#include "toolkit/core/flags.h"

inline constexpr PX_Source px_std_raster_caps_source = PX_SOURCE(L"std_raster_caps");

// How a device wants its raster data turned. Named by hosts and drivers, as the flags below; a new object has
// the value 0.
struct PX_Raster_Orientation_Prefs {
    enum Enum : int {};
};

// Named by hosts and drivers.
struct PX_Raster_Ability_Flags {
    enum Enum : int { No_Raster_Ability = -1 };
    static constexpr PX_Flag_Range range{4, L"PX_Raster_Ability_Flags::Enum",
                                         px_std_raster_caps_source.header_path};
};

// Named by hosts and drivers.
struct PX_Raster_User_Flags {
    enum Enum : int { No_Raster_User_Flag = -1 };
    static constexpr PX_Flag_Range range{5, L"PX_Raster_User_Flags::Enum",
                                         px_std_raster_caps_source.header_path};
};

class PX_EXPORT PX_Raster_Abilities : public PX_Flag_Set<PX_Abilities, PX_Raster_Ability_Flags> {};
class PX_EXPORT PX_Raster_Caps_State : public PX_Flag_Set<PX_Boolean_Flags, PX_Raster_User_Flags> {};

// How the device prefers to take raster data. A driver fills it in and a host reads it: nothing in the
// toolkit does. A flag outside its enum throws PX_Severe_Error 1104.
class PX_EXPORT PX_Raster_Capabilities {
public:
    virtual ~PX_Raster_Capabilities();

    virtual const wchar_t* get_abilities() const = 0;
    virtual PX_Ability_Value::Enum get_one_ability(PX_Raster_Ability_Flags::Enum flag) const = 0;
    virtual void set_abilities(PX_Ability_Value::Enum value) = 0;
    virtual void set_abilities(const wchar_t* text) = 0;
    virtual void set_one_ability(PX_Ability_Value::Enum value, PX_Raster_Ability_Flags::Enum flag) = 0;

    virtual const wchar_t* get_caps_state() const = 0;
    virtual bool get_one_caps_state(PX_Raster_User_Flags::Enum flag) const = 0;
    virtual void set_caps_state(bool on) = 0;
    virtual void set_caps_state(const wchar_t* text) = 0;
    virtual void set_one_caps_state(bool on, PX_Raster_User_Flags::Enum flag) = 0;

    // Any value is stored and given back.
    virtual PX_Raster_Orientation_Prefs::Enum get_orientation_prefs() const = 0;
    virtual void set_orientation_prefs(PX_Raster_Orientation_Prefs::Enum orientation) = 0;

    // No memory is MVNK_Memory_Exception 1101, detail "new_one".
    virtual PX_Raster_Capabilities* clone() const = 0;
};
