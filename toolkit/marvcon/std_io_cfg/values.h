#pragma once

// The kind of a connection.
struct PX_IO_Type {
    enum Enum : int {
        No_IO_Type = -1,
        Driver_Method = 0,  // exists only as a method of the driver
        Driver_Plain = 1,   // of any driver but those of the types 1 and 2
        File = 2,
        Driver_System = 3,  // of drivers of the types 1 and 2 alone
        Serial = 4,         // a COM port
        Parallel = 5,       // any other local port
        Network = 6,        // a network or shared printer, and a local port that is redirected to a share
    };
};

// How a serial line frames its characters.
struct PX_Data_Bits {
    enum Enum : int {
        Data_Bits_Undefined = -1,
        Data_Bits_5 = 0,
        Data_Bits_6 = 1,
        Data_Bits_7 = 2,
        Data_Bits_8 = 3,
        Data_Bits_16 = 4,
        Data_Bits_16X = 5,
    };
};

// How long a serial line rests between two characters.
struct PX_Stop_Bits {
    enum Enum : int {
        Stop_Bits_Undefined = -1,
        Stop_Bits_1 = 0,
        Stop_Bits_1_5 = 1,
        Stop_Bits_2 = 2,
    };
};

// What the parity bit of a character tells.
struct PX_Parity {
    enum Enum : int {
        Parity_Undefined = -1,
        Parity_None = 0,
        Parity_Odd = 1,
        Parity_Even = 2,
        Parity_Mark = 3,
        Parity_Space = 4,
    };
};

// How the two ends of a line hold each other back: single bits, combined in a long.
struct PX_Handshake {
    enum Enum : int {
        No_Handshake = 0,
        Handshake_Xon_In = 0x1,
        Handshake_Xon_Out = 0x2,
        Handshake_Cts_Out = 0x4,  // output waits for CTS
        Handshake_Rts_Disable = 0x8,
        Handshake_Rts_Enable = 0x10,
        Handshake_Rts_Handshake = 0x20,
        Handshake_Rts_Toggle = 0x40,
        Handshake_Dtr_Disable = 0x80,
        Handshake_Dtr_Enable = 0x100,
        Handshake_Dtr_Handshake = 0x200,
        Handshake_Dsr_Out = 0x400,  // output waits for DSR
        Handshake_Rlsd = 0x800,     // carrier detect
    };
};
