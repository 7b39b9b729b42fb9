#pragma once

// The parity of a serial line.
struct PX_Parity {
    enum Enum : int {
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
