#pragma once

#include "toolkit/core/exception.h"
#include "toolkit/core/flags.h"

inline constexpr PX_Source px_std_linetype_caps_source = PX_SOURCE(L"std_linetype_caps");

// The line patterns of the hardware, 0 to 17. Named by hosts and drivers, as the flags below.
struct PX_Line_Pattern {
    enum Enum : int {};
    static constexpr int count = 18;
};

// Named by hosts and drivers.
struct PX_Linetype_Ability_Flags {
    enum Enum : int { No_Linetype_Ability = -1 };
    static constexpr PX_Flag_Range range{2, L"PX_Linetype_Ability_Flags::Enum",
                                         px_std_linetype_caps_source.header_path};
};

// Named by hosts and drivers.
struct PX_Linetype_User_Flags {
    enum Enum : int { No_Linetype_User_Flag = -1 };
    static constexpr PX_Flag_Range range{4, L"PX_Linetype_User_Flags::Enum",
                                         px_std_linetype_caps_source.header_path};
};

class PX_EXPORT PX_Linetype_Abilities : public PX_Flag_Set<PX_Abilities, PX_Linetype_Ability_Flags> {};
class PX_EXPORT PX_Linetype_Caps_State : public PX_Flag_Set<PX_Boolean_Flags, PX_Linetype_User_Flags> {};

// Which patterns the hardware has, four to a digit. Patterns are not range checked: one without a place in
// the text reads as false and is not written.
class PX_EXPORT PX_Linetype_Linefont_Caps : public PX_Boolean_Flags {
public:
    PX_Linetype_Linefont_Caps() : PX_Boolean_Flags(digits_for(PX_Line_Pattern::count)) {}
};

// Which line patterns the device draws by itself, and how large each is. A driver fills it in and a host
// reads it: nothing in the toolkit does, and no configuration chooses among the patterns. An ability or user
// flag outside its enum throws PX_Severe_Error 1104; a pattern never throws.
class PX_EXPORT PX_Linetype_Capabilities {
public:
    virtual ~PX_Linetype_Capabilities();

    virtual const wchar_t* get_linefont_capabilities() const = 0;
    virtual bool get_linefont_capability(PX_Line_Pattern::Enum pattern) const = 0;
    // The unit is the driver's. 0 until it is set, and for a pattern outside 0 to 17.
    virtual float get_linefont_size(PX_Line_Pattern::Enum pattern) const = 0;

    virtual const wchar_t* get_abilities() const = 0;
    virtual PX_Ability_Value::Enum get_one_ability(PX_Linetype_Ability_Flags::Enum flag) const = 0;
    virtual void set_abilities(PX_Ability_Value::Enum value) = 0;
    virtual void set_abilities(const wchar_t* text) = 0;
    virtual void set_one_ability(PX_Ability_Value::Enum value, PX_Linetype_Ability_Flags::Enum flag) = 0;

    virtual const wchar_t* get_caps_state() const = 0;
    virtual bool get_one_caps_state(PX_Linetype_User_Flags::Enum flag) const = 0;
    virtual void set_caps_state(bool on) = 0;
    virtual void set_caps_state(const wchar_t* text) = 0;
    virtual void set_one_caps_state(bool on, PX_Linetype_User_Flags::Enum flag) = 0;

    // All that the text has room for, the spare ones behind the last pattern too.
    virtual void set_linefont_capabilities(bool on) = 0;
    virtual void set_linefont_capabilities(const wchar_t* text) = 0;
    virtual void set_linefont_capability(bool on, PX_Line_Pattern::Enum pattern) = 0;
    // Does nothing for a pattern outside 0 to 17.
    virtual void set_linefont_size(PX_Line_Pattern::Enum pattern, float size) = 0;

    // No memory is MVNK_Memory_Exception 1101, detail "new_one".
    virtual PX_Linetype_Capabilities* clone() const = 0;
};
