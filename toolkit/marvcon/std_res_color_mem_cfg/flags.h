#pragma once

#include "toolkit/core/exception.h"
#include "toolkit/core/flags.h"

inline constexpr PX_Source px_std_res_color_mem_cfg_source = PX_SOURCE(L"std_res_color_mem_cfg");

// What the device can do for each datum. The numbers that only bear a number belong to hosts and drivers.
struct PX_ResColorMem_Ability_Flags {
    enum Enum : int {
        No_RCM_Ability = -1,
        RCM_Res_Color_Mem_List = 0,  // above 0: the device has colour modes
        RCM_Res_Color_Mem = 1,       // from 4 the default mode counts, from 3 the default resolution may
        RCM_Resolution_List = 2,     // above 0: the device has resolutions
        RCM_Resolution = 3,          // from 4 the default resolution counts
        RCM_Dithering_List = 4,      // not read, as the memory areas' below
        RCM_Dithering = 5,           // exactly 5: the resolution's dithering method has to be there
        RCM_Mem_Area_List = 6,
        RCM_Mem_Area = 7,  // exactly 5: the installed memory has to be that of an area
        RCM_Ability_8 = 8,
        RCM_Ability_9 = 9,
        RCM_Ability_10 = 10,
        RCM_ISM_Max_Mem = 11,  // above 0 the datum has a default, as the next ones
        RCM_OLE_Max_Mem = 12,
        RCM_HardSoftNo_Dithering = 13,
        RCM_Color_Vs_Mono = 14,
        RCM_Rast_Color_Vs_Res_Pref = 15,
        RCM_Installed_Memory = 16,
        RCM_Ability_17 = 17,
        RCM_Ability_18 = 18,
        RCM_Icm_Method = 19,
        RCM_Icm_Intent = 20,
        RCM_Dm_Color = 21,
        RCM_Ability_22 = 22,
        RCM_Lines_Overwrite = 23,  // 0: lines always overwrite
    };
    static constexpr PX_Flag_Range range{24, L"PX_ResColorMem_Ability_Flags::Enum",
                                         px_std_res_color_mem_cfg_source.header_path};
};

// Named by hosts and drivers.
struct PX_ResColorMem_User_Flags {
    enum Enum : int { No_RCM_User_Flag = -1 };
    static constexpr PX_Flag_Range range{15, L"PX_ResColorMem_User_Flags::Enum",
                                         px_std_res_color_mem_cfg_source.header_path};
};

// Named by hosts and drivers.
struct PX_ResColorMem_UI_Owner_Flags {
    enum Enum : int { No_RCM_UI_Owner = -1 };
    static constexpr PX_Flag_Range range{14, L"PX_ResColorMem_UI_Owner_Flags::Enum",
                                         px_std_res_color_mem_cfg_source.header_path};
};

// The data of a configuration.
struct PX_ResColorMem_Config_Flags {
    enum Enum : int {
        No_RCM_Datum = -1,
        RCM_Cfg_Res_Color_Mem = 0,
        RCM_Cfg_Resolution = 1,
        RCM_Cfg_Icm_Method = 2,
        RCM_Cfg_Icm_Intent = 3,
        RCM_Cfg_Dm_Color = 4,
        RCM_Cfg_ISM_Max_Mem = 5,
        RCM_Cfg_OLE_Max_Mem = 6,
        RCM_Cfg_HardSoftNo_Dithering = 7,
        RCM_Cfg_Color_Vs_Mono = 8,  // its bit is never raised
        RCM_Cfg_Rast_Color_Vs_Res_Pref = 9,
        RCM_Cfg_Installed_Memory = 10,
        RCM_Cfg_Lines_Overwrite = 11,
    };
    static constexpr PX_Flag_Range range{12, L"PX_ResColorMem_Config_Flags::Enum",
                                         px_std_res_color_mem_cfg_source.header_path};
};

// The bit of a datum in the change word: what a run had to repair.
constexpr long px_rcm_change_bit(PX_ResColorMem_Config_Flags::Enum datum) {
    return 1L << datum;
}

// Numbers that the domain's failures carry; each is that of its text.
struct PX_RCM_Code {
    static constexpr unsigned int Default_Mode = 401;
    static constexpr unsigned int Default_Resolution = 403;
};

class PX_EXPORT PX_ResColorMem_Abilities : public PX_Flag_Set<PX_Abilities, PX_ResColorMem_Ability_Flags> {};
class PX_EXPORT PX_ResColorMem_Caps_State : public PX_Flag_Set<PX_Boolean_Flags, PX_ResColorMem_User_Flags> {
};
class PX_EXPORT PX_ResColorMem_UI_Owner : public PX_Flag_Set<PX_UI_Ownership, PX_ResColorMem_UI_Owner_Flags> {
};
class PX_EXPORT PX_ResColorMem_Default : public PX_Flag_Set<PX_Boolean_Flags, PX_ResColorMem_Config_Flags> {};
class PX_EXPORT PX_ResColorMem_Validated : public PX_Flag_Set<PX_Boolean_Flags, PX_ResColorMem_Config_Flags> {
};
