#pragma once

#include "toolkit/core/exception.h"
#include "toolkit/core/flags.h"

inline constexpr PX_Source px_std_io_cfg_source = PX_SOURCE(L"std_io_cfg");

// Which data of the output a device has: any ability but 0. The numbers that only bear a number belong to
// hosts and drivers, here and below.
struct PX_Plotter_IO_Ability_Flags {
    enum Enum : int {
        No_IO_Ability = -1,
        IO_Methods = 0,  // the method list is used at all
        IO_Ability_1 = 1,
        IO_Type = 2,  // without it the type is -1 and the port name empty
        IO_Ability_3 = 3,
        IO_System_Ports = 4,  // ports are taken from those of the machine
        IO_Protocol = 5,
        IO_Baud_Rate = 6,
        IO_Handshake = 7,
        IO_Output_Timeout = 8,
        IO_Input_Timeout = 9,
        IO_Ability_10 = 10,
        IO_Pathname = 11,
    };
    static constexpr PX_Flag_Range range{12, L"PX_Plotter_IO_Ability_Flags::Enum",
                                         px_std_io_cfg_source.header_path};
};

// What of a method counts.
struct PX_IO_Method_Ability_Flags {
    enum Enum : int {
        No_Method_Ability = -1,
        Method_Ability_0 = 0,
        Method_Ability_1 = 1,
        Method_Ability_2 = 2,
        Method_Ability_3 = 3,
        Method_Ability_4 = 4,
        Method_Ability_5 = 5,
        Method_Ability_6 = 6,
        Method_Protocol_List = 7,
        Method_Ability_8 = 8,
        Method_Baud_Rate_List = 9,
        Method_Ability_10 = 10,
        Method_Ability_11 = 11,
        Method_Ability_12 = 12,
        Method_Ability_13 = 13,
        Method_Ability_14 = 14,
        Method_Default_Protocol = 15,  // without it no protocol applies
        Method_Ability_16 = 16,
        Method_Default_Baud_Rate = 17,  // without it no baud rate applies
        Method_Default_Handshake = 18,  // without it no handshake applies
        Method_Ability_19 = 19,
    };
    static constexpr PX_Flag_Range range{20, L"PX_IO_Method_Ability_Flags::Enum",
                                         px_std_io_cfg_source.header_path};
};

// What the machine tells of a port; nothing in the toolkit asks for it.
struct PX_IO_Port_Ability_Flags {
    enum Enum : int {
        No_Port_Ability = -1,
        Port_Usable = 0,
        Port_Bidi = 1,
        Port_Protocols = 2,
        Port_Baud_Rates = 3,
        Port_Handshakes = 4,
        Port_Ability_5 = 5,
    };
    static constexpr PX_Flag_Range range{6, L"PX_IO_Port_Ability_Flags::Enum",
                                         px_std_io_cfg_source.header_path};
};

// Named by hosts and drivers, as the owners below.
struct PX_Plotter_IO_User_Flags {
    enum Enum : int {
        No_IO_User_Flag = -1,
        IO_User_Flag_0 = 0,
        IO_User_Flag_1 = 1,
        IO_User_Flag_2 = 2,
        IO_User_Flag_3 = 3,
    };
    static constexpr PX_Flag_Range range{4, L"PX_Plotter_IO_User_Flags::Enum",
                                         px_std_io_cfg_source.header_path};
};

// Who shows the user interface of what.
struct PX_IO_UI_Owner_Flags {
    enum Enum : int {
        No_IO_UI_Owner = -1,
        IO_UI_Owner_0 = 0,
        IO_UI_Owner_1 = 1,
        IO_UI_Owner_2 = 2,
        IO_UI_Owner_3 = 3,
        IO_UI_Owner_4 = 4,
        IO_UI_Owner_5 = 5,
        IO_UI_Owner_6 = 6,
        IO_UI_Owner_7 = 7,
        IO_UI_Owner_8 = 8,
    };
    static constexpr PX_Flag_Range range{9, L"PX_IO_UI_Owner_Flags::Enum", px_std_io_cfg_source.header_path};
};

// The data of a configuration.
struct PX_IO_Config_Flags {
    enum Enum : int {
        No_IO_Config_Flag = -1,
        IO_Config_Portname = 0,
        IO_Config_Type = 1,
        IO_Config_Protocol = 2,
        IO_Config_Baud_Rate = 3,
        IO_Config_Handshake = 4,
        IO_Config_Input_Timeout = 5,
        IO_Config_Output_Timeout = 6,
        IO_Config_Pathname = 7,
    };
    static constexpr PX_Flag_Range range{8, L"PX_IO_Config_Flags::Enum", px_std_io_cfg_source.header_path};
};

// The bits of the I/O change word: what a run had to repair.
struct PX_IO_Change {
    enum Enum : int {
        Portname = 0x1,  // always together with the type
        Type = 0x2,
        Protocol = 0x4,
        Baud_Rate = 0x8,
        Handshake = 0x10,
        Input_Timeout = 0x20,
        Output_Timeout = 0x40,
        Pathname = 0x80,
    };
};

// Numbers that the domain's failures carry; each is that of its text.
struct PX_IO_Code {
    static constexpr unsigned int No_Methods = 210;
    static constexpr unsigned int No_Usable_Rate = 215;
    static constexpr unsigned int No_Usable_Protocol = 217;
    // Told to the error handler; the run goes on.
    static constexpr unsigned int Port_Not_Usable = 241;
};

class PX_EXPORT PX_Plotter_IO_Abilities : public PX_Flag_Set<PX_Abilities, PX_Plotter_IO_Ability_Flags> {};
class PX_EXPORT PX_IO_Method_Abilities : public PX_Flag_Set<PX_Abilities, PX_IO_Method_Ability_Flags> {};
class PX_EXPORT PX_IO_Port_Abilities : public PX_Flag_Set<PX_Abilities, PX_IO_Port_Ability_Flags> {};
class PX_EXPORT PX_Plotter_IO_Caps_State : public PX_Flag_Set<PX_Boolean_Flags, PX_Plotter_IO_User_Flags> {};
class PX_EXPORT PX_IO_UI_Owner : public PX_Flag_Set<PX_UI_Ownership, PX_IO_UI_Owner_Flags> {};
class PX_EXPORT PX_IO_Default : public PX_Flag_Set<PX_Boolean_Flags, PX_IO_Config_Flags> {};
class PX_EXPORT PX_IO_Validated : public PX_Flag_Set<PX_Boolean_Flags, PX_IO_Config_Flags> {};
