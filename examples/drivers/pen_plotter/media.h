#pragma once

#include "toolkit/marvcon/marvcon.h"

// Four sheets, put on the bed by hand one at a time.
PX_Smart_Pointer<PX_Media_Capabilities> pen_plotter_media(const PX_Plotter_Class_Factory& factory);
