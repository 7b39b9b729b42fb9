#pragma once

#include <optional>

#include "toolkit/core/exception.h"
#include "toolkit/core/flags.h"
#include "toolkit/core/smart_pointer.h"

inline constexpr PX_Source px_std_plval_source = PX_SOURCE(L"std_plval");

// What a validate_xxx does with a datum that fails.
struct PX_Validation_Strategy {
    enum Enum : int {
        Use_Default = 0,  // the datum goes to its default
        Use_Nearest = 1,  // to the nearest value that the device allows; to its default where no rule exists
    };
};

// How far validate_all goes. The policies differ for abilities 1 to 4 only: ability 0 is always put to its
// default and ability 5 is always validated.
struct PX_Validation_Policy {
    enum Enum : int {
        Keep_All = 0,
        Keep_Conditional = 1,
        Validate_Conditional = 2,
        Reset_Conditional = 3,
    };
};

// What is done with one datum.
struct PX_Validator_Action {
    enum Enum : int {
        Set_To_Default = 0,  // whatever its validated flag says
        No_Action = 1,
        Validate = 2,  // unless its validated flag is set
    };
};

// What a run does with a datum of that ability; nothing for an ability outside 0 to 5. A policy outside its
// enum acts as Reset_Conditional.
PX_EXPORT std::optional<PX_Validator_Action::Enum> px_validator_action(PX_Ability_Value::Enum ability,
                                                                       PX_Validation_Policy::Enum policy,
                                                                       bool validate_settable);

// The bits of a domain mask.
struct PX_Domain_Mask {
    enum Enum : int {
        IO = 1,
        Media = 2,
        Custom = 4,
        Res_Color_Mem = 8,
        Phys_Pens = 16,
        Init_Term = 32,
        Raster = 64,     // capabilities only
        Linetype = 128,  // capabilities only
    };
};

// Brings the user's choices in line with what the device can do, datum by datum in one fixed order, and keeps
// in change words what had to be altered. One validator belongs to one definition and one thread.
class PX_EXPORT PX_Plotter_Validator {
public:
    virtual ~PX_Plotter_Validator();

    // Clears all change words, walks every datum, then all custom data. True when any change word is set or
    // any custom name is recorded. A failure ends the run: what was done stays, and so do the change words.
    // It arrives as a plain PX_Exception: 1001 for an ability outside its range, 1103 for a root or a domain
    // that is missing, and the codes of the domains.
    virtual bool validate_all(PX_Validation_Strategy::Enum strategy, PX_Validation_Policy::Enum policy,
                              bool validate_settable) = 0;

    // A domain mask: the domains with a change in their configuration, or in their capabilities.
    virtual long get_config_changed() const = 0;
    virtual long get_caps_changed() const = 0;

    // The change words of the configuration: one bit a datum.
    virtual long get_media_cfg_changes() const = 0;
    virtual long get_io_cfg_changes() const = 0;
    virtual long get_phys_pen_cfg_changes() const = 0;
    virtual long get_res_color_mem_cfg_changes() const = 0;
    virtual long get_init_term_cfg_changes() const = 0;
    virtual bool get_one_custom_cfg_change(const wchar_t* name) const = 0;

    // The change words of the capabilities: a driver that alters its capabilities raises them.
    virtual long get_media_caps_changes() const = 0;
    virtual long get_io_caps_changes() const = 0;
    virtual long get_phys_pen_caps_changes() const = 0;
    virtual long get_res_color_mem_caps_changes() const = 0;
    virtual long get_init_term_caps_changes() const = 0;
    virtual long get_raster_caps_changes() const = 0;
    virtual long get_linetype_caps_changes() const = 0;
    virtual bool get_one_custom_caps_change(const wchar_t* name) const = 0;

    // Each stores the whole word. A validate_xxx raises its bit by getting the word and setting it again.
    virtual void set_media_cfg_changes(long changes) = 0;
    virtual void set_io_cfg_changes(long changes) = 0;
    virtual void set_phys_pen_cfg_changes(long changes) = 0;
    virtual void set_res_color_mem_cfg_changes(long changes) = 0;
    virtual void set_init_term_cfg_changes(long changes) = 0;
    // Records a name; a null one is the empty text.
    virtual void set_one_custom_cfg_change(const wchar_t* name) = 0;
    virtual void set_media_caps_changes(long changes) = 0;
    virtual void set_io_caps_changes(long changes) = 0;
    virtual void set_phys_pen_caps_changes(long changes) = 0;
    virtual void set_res_color_mem_caps_changes(long changes) = 0;
    virtual void set_init_term_caps_changes(long changes) = 0;
    virtual void set_raster_caps_changes(long changes) = 0;
    virtual void set_linetype_caps_changes(long changes) = 0;
    virtual void set_one_custom_caps_change(const wchar_t* name) = 0;

    // Put every datum, or those of the domains of a mask, to its default. The change words stay.
    virtual void set_all_to_defaults() = 0;
    virtual void set_selected_to_defaults(long mask) = 0;
    virtual void set_selected_rescolormem_data_to_defaults() = 0;

    // Removes the sizes and descriptions that the user defined, if the mask has the media bit. False when
    // there are no capabilities. No change word is raised.
    virtual bool delete_user_defined_caps(long mask) = 0;
};
