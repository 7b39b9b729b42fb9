#pragma once

#include "toolkit/core/exception.h"
#include "toolkit/core/flags.h"

inline constexpr PX_Source px_std_media_cfg_source = PX_SOURCE(L"std_media_cfg");

// What the device can do for each datum. A gate decides what a run of the plotter validator does with the
// datum; a default test decides whether a default is written: "listed" from an ability of 4, "above 0"
// from 1. The numbers that are not named here belong to hosts and drivers.
struct PX_Media_Ability_Flags {
    enum Enum : int {
        No_Media_Ability = -1,
        Ability_Media_Selection_Method = 0,  // gate and default test, above 0
        Ability_Media_Source = 1,            // gate
        Ability_Media_Source_Default = 2,    // default test, listed
        Ability_Media_Source_Entry = 3,
        Ability_Media_Source_Entry_Default = 4,
        Ability_Media_Size = 5,          // gate of the size and of the margins
        Ability_Media_Size_Default = 6,  // of the size, the margins and the actual printable bounds
        Ability_Media_Destination = 7,
        Ability_Media_Destination_Default = 8,
        Ability_Media_Margins_Default =
            9,  // of the margins and the actual printable bounds, beside that of the size
        Ability_Media_Type = 10,
        Ability_Media_Type_Default = 11,
        Ability_Actual_Printable_Bounds = 13,
        Ability_Media_Stapling =
            18,  // compared when not 0, a default and a search term when listed; so the next three
        Ability_Media_Collating = 19,
        Ability_Media_Folding = 20,
        Ability_Media_Cutting = 21,
        Ability_Duplexing = 22,  // gate and default test, above 0, as the next four
        Ability_Number_Of_Copies = 23,
        Ability_Longplot_Reduction = 25,
        Ability_Dm_Scale = 28,
        Ability_Dm_Orientation = 29,
        Ability_Media_Size_Limit = 47,  // above 0: sizes beyond the largest sheet are not valid
        Ability_Roll_Limit = 50,        // above 0, with a roll: the height of the roll is the limit
    };
    static constexpr PX_Flag_Range range{51, L"PX_Media_Ability_Flags::Enum",
                                         px_std_media_cfg_source.header_path};
};

// Named by hosts and drivers.
struct PX_Media_User_Flags {
    enum Enum : int { No_Media_User_Flag = -1 };
    static constexpr PX_Flag_Range range{19, L"PX_Media_User_Flags::Enum",
                                         px_std_media_cfg_source.header_path};
};

// Named by hosts and drivers.
struct PX_Media_UI_Owner_Flags {
    enum Enum : int { No_Media_UI_Owner = -1 };
    static constexpr PX_Flag_Range range{23, L"PX_Media_UI_Owner_Flags::Enum",
                                         px_std_media_cfg_source.header_path};
};

// The data of a configuration.
struct PX_Media_Config_Flags {
    enum Enum : int {
        No_Media_Datum = -1,
        Cfg_Selection_Method = 0,
        Cfg_Media_Type = 1,
        Cfg_Media_Source = 2,
        Cfg_Media_Source_Entry = 3,
        Cfg_Media_Size = 4,
        Cfg_Media_Destination = 5,
        Cfg_Number_Of_Copies = 6,
        Cfg_Duplexing = 7,
        Cfg_Margins = 8,
        Cfg_Longplot_Reduction = 9,
        Cfg_Dm_Scale = 10,
        Cfg_Dm_Orientation = 11,
        Cfg_Actual_Printable_Bounds = 12,
        Cfg_Media_Collating = 13,
        Cfg_Media_Stapling = 14,
        Cfg_Media_Cutting = 15,
        Cfg_Media_Folding = 16,
    };
    static constexpr PX_Flag_Range range{17, L"PX_Media_Config_Flags::Enum",
                                         px_std_media_cfg_source.header_path};
};

// The bits of the media change word: what a run had to repair.
struct PX_Media_Change {
    enum Enum : int {
        Source = 0x1,
        Size = 0x2,
        Destination = 0x4,
        Duplexing = 0x8,
        Number_Of_Copies = 0x10,
        Margins = 0x20,
        Selection_Method = 0x40,
        Type = 0x80,
        Longplot_Reduction = 0x200,
        Dm_Scale = 0x400,
        Dm_Orientation = 0x800,
        Actual_Printable_Bounds = 0x1000,
        // With the destination, always all of them.
        Collating = 0x2000,
        Stapling = 0x4000,
        Cutting = 0x8000,
        Folding = 0x10000,
        Source_Entry = 0x20000,
        Size_Nearest_Failed = 0x40000,  // none was near enough: the size is the default
    };
};

// Numbers that the domain's failures carry; each is that of its text.
struct PX_Media_Code {
    static constexpr unsigned int Default_Type = 303;
    static constexpr unsigned int Default_Source = 304;
    static constexpr unsigned int No_Sources = 305;
    static constexpr unsigned int Source_Missing = 308;
    static constexpr unsigned int Default_Size_Of_Source = 309;
    static constexpr unsigned int Default_Size = 310;
    static constexpr unsigned int Default_Destination = 311;
    static constexpr unsigned int No_Destinations = 312;
    static constexpr unsigned int Default_Duplexing = 315;
    static constexpr unsigned int Default_Dm_Scale = 316;
    static constexpr unsigned int Default_Longplot_Reduction = 317;
    static constexpr unsigned int No_Types = 318;
    static constexpr unsigned int No_Settings = 319;
    static constexpr unsigned int No_Sizes = 320;
    static constexpr unsigned int Default_Selection_Method = 321;
    static constexpr unsigned int No_Entries = 322;
    static constexpr unsigned int Entry_Missing = 323;
    static constexpr unsigned int Default_Entry = 324;
};

class PX_EXPORT PX_Media_Abilities : public PX_Flag_Set<PX_Abilities, PX_Media_Ability_Flags> {};
class PX_EXPORT PX_Media_Caps_State : public PX_Flag_Set<PX_Boolean_Flags, PX_Media_User_Flags> {};
class PX_EXPORT PX_Media_UI_Owner : public PX_Flag_Set<PX_UI_Ownership, PX_Media_UI_Owner_Flags> {};
class PX_EXPORT PX_Media_Default : public PX_Flag_Set<PX_Boolean_Flags, PX_Media_Config_Flags> {};
class PX_EXPORT PX_Media_Validated : public PX_Flag_Set<PX_Boolean_Flags, PX_Media_Config_Flags> {};
