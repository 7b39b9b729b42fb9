#pragma once

#include "toolkit/core/exception.h"
#include "toolkit/core/flags.h"
#include "toolkit/core/smart_pointer.h"
#include "toolkit/marvcon/std_init_term_cfg/dev_string.h"
#include "toolkit/marvcon/std_plval/interface.h"

inline constexpr PX_Source px_std_init_term_cfg_source = PX_SOURCE(L"std_init_term_cfg");

// The three byte strings that a driver sends to its device. The same numbers serve for abilities, owners and
// the flags of the configuration.
struct PX_InitTerm_Ability_Flags {
    enum Enum : int {
        No_InitTerm_Datum = -1,
        Preinit_String = 0,      // sent before the device is initialised
        Postinit_String = 1,     // sent after it
        Termination_String = 2,  // sent at the end of the job
    };
    static constexpr PX_Flag_Range range{3, L"PX_InitTerm_Ability_Flags::Enum",
                                         px_std_init_term_cfg_source.header_path};
};

// The strings again, as the owners of their user interface are numbered.
struct PX_InitTerm_UI_Owner_Flags {
    enum Enum : int {
        No_InitTerm_Datum = -1,
        Preinit_String = 0,
        Postinit_String = 1,
        Termination_String = 2,
    };
    static constexpr PX_Flag_Range range{3, L"PX_InitTerm_UI_Owner_Flags::Enum",
                                         px_std_init_term_cfg_source.header_path};
};

class PX_EXPORT PX_InitTerm_Abilities : public PX_Flag_Set<PX_Abilities, PX_InitTerm_Ability_Flags> {};
class PX_EXPORT PX_InitTerm_UI_Owner : public PX_Flag_Set<PX_UI_Ownership, PX_InitTerm_UI_Owner_Flags> {};
class PX_EXPORT PX_InitTerm_Default : public PX_Flag_Set<PX_Boolean_Flags, PX_InitTerm_Ability_Flags> {};
class PX_EXPORT PX_InitTerm_Validated : public PX_Flag_Set<PX_Boolean_Flags, PX_InitTerm_Ability_Flags> {};

// What the device can do for each string, and who shows it to the user. A flag outside the enum throws
// PX_Severe_Error 1104.
class PX_EXPORT PX_InitTerm_Capabilities {
public:
    virtual ~PX_InitTerm_Capabilities();

    virtual const wchar_t* get_abilities() const = 0;
    virtual PX_Ability_Value::Enum get_one_ability(PX_InitTerm_Ability_Flags::Enum flag) const = 0;
    virtual void set_abilities(PX_Ability_Value::Enum value) = 0;
    virtual void set_abilities(const wchar_t* text) = 0;
    virtual void set_one_ability(PX_Ability_Value::Enum value, PX_InitTerm_Ability_Flags::Enum flag) = 0;

    virtual const wchar_t* get_ui_owner() const = 0;
    virtual PX_UI_Owner::Enum get_one_ui_owner(PX_InitTerm_UI_Owner_Flags::Enum flag) const = 0;
    virtual void set_ui_owner(PX_UI_Owner::Enum owner) = 0;
    virtual void set_ui_owner(const wchar_t* text) = 0;
    virtual void set_one_ui_owner(PX_UI_Owner::Enum owner, PX_InitTerm_UI_Owner_Flags::Enum flag) = 0;

    // No memory is MVNK_Memory_Exception 1101, detail "new_one".
    virtual PX_InitTerm_Capabilities* clone() const = 0;
};

// The strings themselves. Every setter copies its bytes and marks its datum as neither validated nor default,
// also when the bytes are the same as before. No memory for them is std::bad_alloc, and the old string stays.
// A flag outside the enum throws PX_Severe_Error 1104.
class PX_EXPORT PX_InitTerm_Configuration {
public:
    virtual ~PX_InitTerm_Configuration();

    virtual bool get_one_validated(PX_InitTerm_Ability_Flags::Enum flag) const = 0;
    virtual bool get_validated() const = 0;
    virtual void set_one_validated(bool validated, PX_InitTerm_Ability_Flags::Enum flag) = 0;
    virtual void set_validated(bool validated) = 0;
    virtual bool get_one_default(PX_InitTerm_Ability_Flags::Enum flag) const = 0;
    virtual bool get_default() const = 0;
    virtual void set_one_default(bool is_default, PX_InitTerm_Ability_Flags::Enum flag) = 0;
    virtual void set_default(bool is_default) = 0;

    // Null when the string was taken away by its setter.
    virtual PX_Smart_Pointer<PX_Dev_String> get_preinit_string() const = 0;
    virtual PX_Smart_Pointer<PX_Dev_String> get_postinit_string() const = 0;
    virtual PX_Smart_Pointer<PX_Dev_String> get_termination_string() const = 0;

    // From bytes, a null pointer or a length below 1 takes the string away; from a string, only a null
    // pointer does: an empty string stays there as an empty one.
    virtual void set_preinit_string(unsigned char* bytes, long length) = 0;
    virtual void set_preinit_string(const PX_Dev_String* string) = 0;
    virtual void set_postinit_string(unsigned char* bytes, long length) = 0;
    virtual void set_postinit_string(const PX_Dev_String* string) = 0;
    virtual void set_termination_string(unsigned char* bytes, long length) = 0;
    virtual void set_termination_string(const PX_Dev_String* string) = 0;

    // The strings are copied, the flags with them. No memory is MVNK_Memory_Exception 1101, detail "new_one".
    virtual PX_InitTerm_Configuration* clone() const = 0;
};

// Any bytes are valid, and the default of every string is the empty one. A missing root or domain object is
// MVNK_Error 1103, "plotter_caps or plotter_cfg" or "initterm_caps or initterm_cfg".
class PX_EXPORT PX_InitTerm_Validator {
public:
    virtual ~PX_InitTerm_Validator();

    // Each marks its datum as validated. No change bit is raised. Capabilities need not be there.
    virtual void validate_preinit_string(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_postinit_string(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_termination_string(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_all_init_term(PX_Validation_Strategy::Enum strategy) = 0;

    // Each empties its string if its ability is above 0 and leaves it as it is otherwise; the datum is marked
    // as validated and default in both cases.
    virtual void set_all_init_term_to_defaults() = 0;
    virtual void set_preinit_string_to_default() = 0;
    virtual void set_postinit_string_to_default() = 0;
    virtual void set_termination_string_to_default() = 0;
};
