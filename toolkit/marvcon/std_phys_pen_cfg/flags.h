#pragma once

#include "toolkit/core/exception.h"
#include "toolkit/core/flags.h"

inline constexpr PX_Source px_std_phys_pen_cfg_source = PX_SOURCE(L"std_phys_pen_cfg");

// What the device can do for each datum. The numbers that only bear a number belong to hosts and drivers.
struct PX_Pen_Ability_Flags {
    enum Enum : int {
        No_Pen_Ability = -1,
        Pen_Ability_Number = 0,  // above 0 the number of pens may come from the device's default
        Pen_Ability_1 = 1,
        Pen_Ability_Area_Fill = 2,
        Pen_Ability_3 = 3,
        Pen_Ability_4 = 4,
        Pen_Ability_5 = 5,
        // Gates the validation of the pen optimization, while its default asks number 14. They differ on
        // purpose.
        Pen_Ability_Optimization_Check = 6,
        Pen_Ability_7 = 7,
        Pen_Ability_8 = 8,
        Pen_Ability_9 = 9,
        Pen_Ability_10 = 10,
        Pen_Ability_11 = 11,
        Pen_Ability_12 = 12,
        Pen_Ability_13 = 13,
        Pen_Ability_Optimization = 14,
        Pen_Ability_Changing = 15,
        Pen_Ability_List = 16,  // exactly 5: a list of pens is kept for this device
        Pen_Ability_17 = 17,
        Pen_Ability_18 = 18,
    };
    static constexpr PX_Flag_Range range{19, L"PX_Pen_Ability_Flags::Enum",
                                         px_std_phys_pen_cfg_source.header_path};
};

// Named by hosts and drivers, as the owners below.
struct PX_Pen_User_Flags {
    enum Enum : int {
        No_Pen_User_Flag = -1,
        Pen_User_Flag_0 = 0,
        Pen_User_Flag_1 = 1,
        Pen_User_Flag_2 = 2,
        Pen_User_Flag_3 = 3,
        Pen_User_Flag_4 = 4,
        Pen_User_Flag_5 = 5,
        Pen_User_Flag_6 = 6,
        Pen_User_Flag_7 = 7,
        Pen_User_Flag_8 = 8,
        Pen_User_Flag_9 = 9,
        Pen_User_Flag_10 = 10,
        Pen_User_Flag_11 = 11,
        Pen_User_Flag_12 = 12,
        Pen_User_Flag_13 = 13,
        Pen_User_Flag_14 = 14,
        Pen_User_Flag_15 = 15,
    };
    static constexpr PX_Flag_Range range{16, L"PX_Pen_User_Flags::Enum",
                                         px_std_phys_pen_cfg_source.header_path};
};

// Who shows the user interface of what.
struct PX_PhysPen_UI_Owner_Flags {
    enum Enum : int {
        No_Pen_UI_Owner = -1,
        Pen_UI_Owner_0 = 0,
        Pen_UI_Owner_1 = 1,
        Pen_UI_Owner_2 = 2,
        Pen_UI_Owner_3 = 3,
        Pen_UI_Owner_4 = 4,
        Pen_UI_Owner_5 = 5,
        Pen_UI_Owner_6 = 6,
    };
    static constexpr PX_Flag_Range range{7, L"PX_PhysPen_UI_Owner_Flags::Enum",
                                         px_std_phys_pen_cfg_source.header_path};
};

// The data of a configuration.
struct PX_Pen_Config_Flags {
    enum Enum : int {
        No_Pen_Config_Flag = -1,
        Pen_Config_Number = 0,
        Pen_Config_List = 1,
        Pen_Config_Area_Fill = 2,
        Pen_Config_Optimization = 3,
        Pen_Config_Changing = 4,
    };
    static constexpr PX_Flag_Range range{5, L"PX_Pen_Config_Flags::Enum",
                                         px_std_phys_pen_cfg_source.header_path};
};

// The bits of the pens' change word: what a run had to repair.
struct PX_Pen_Change {
    enum Enum : int {
        Number = 0x1,
        Changing = 0x2,
        Area_Fill = 0x4,
        Optimization = 0x8,
        List = 0x10,
    };
};

// Numbers that the domain's failures carry; each is that of its text.
struct PX_Pen_Code {
    static constexpr unsigned int Pen_Width = 601;
    static constexpr unsigned int Pen_Speed = 602;
    static constexpr unsigned int Max_Number = 603;
    static constexpr unsigned int Max_Width = 604;
    static constexpr unsigned int Min_Width = 605;
    static constexpr unsigned int Max_Speed = 606;
    static constexpr unsigned int Min_Speed = 607;
    static constexpr unsigned int Default_Optimization = 610;
    static constexpr unsigned int Default_Number = 611;
};

class PX_EXPORT PX_PhysPens_Abilities : public PX_Flag_Set<PX_Abilities, PX_Pen_Ability_Flags> {};
class PX_EXPORT PX_PhysPens_Caps_State : public PX_Flag_Set<PX_Boolean_Flags, PX_Pen_User_Flags> {};
class PX_EXPORT PX_PhysPen_UI_Owner : public PX_Flag_Set<PX_UI_Ownership, PX_PhysPen_UI_Owner_Flags> {};
class PX_EXPORT PX_PhysPens_Default : public PX_Flag_Set<PX_Boolean_Flags, PX_Pen_Config_Flags> {};
class PX_EXPORT PX_PhysPens_Validated : public PX_Flag_Set<PX_Boolean_Flags, PX_Pen_Config_Flags> {};
