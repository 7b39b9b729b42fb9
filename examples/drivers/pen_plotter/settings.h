#pragma once

#include "toolkit/marvcon/marvcon.h"

// What the plotter can be told beside what every plotter can: the force on a pen in grams, a range, and the
// ends of its lines, a list.
PX_Smart_Pointer<PX_Custom_Capabilities> pen_plotter_settings(const PX_Plotter_Class_Factory& factory);

// As the configuration has them; of a setting that it does not name, the plotter's own default.
long pen_force(const PX_Plotter_Configuration& configuration);
// The plotter's number for the chosen ends.
int line_ends(const PX_Plotter_Configuration& configuration);
