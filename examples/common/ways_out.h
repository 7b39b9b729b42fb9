#pragma once

#include <vector>

#include "toolkit/marvcon/marvcon.h"

// The framing of a serial line, under its canonical name.
struct Line_Protocol {
    const wchar_t* name;
    PX_Data_Bits::Enum data_bits;
    PX_Parity::Enum parity;
};

// What a device takes on a serial line. The first protocol is the default.
struct Serial_Settings {
    std::vector<Line_Protocol> protocols;
    std::vector<long> rates;
    long default_rate;
    long handshakes;
    PX_Handshake::Enum default_handshake;
};

// Four ways to a device: a file, which is the default and gets the extension, serial lines, parallel ports,
// and the machine's printers. The time-out is the default, in milliseconds, of every way.
PX_Smart_Pointer<PX_Plotter_IO_Capabilities> ways_out(const Serial_Settings& line, const wchar_t* extension,
                                                      long timeout, const PX_Plotter_Class_Factory& factory);
