#pragma once

#include "toolkit/marvcon/marvcon.h"

// The ways to a PostScript printer, of which a description says nothing: a file, the usual serial lines,
// parallel ports, and the machine's printers. The default is the file.
PX_Smart_Pointer<PX_Plotter_IO_Capabilities> ppd_io_capabilities(const PX_Plotter_Class_Factory& factory);
