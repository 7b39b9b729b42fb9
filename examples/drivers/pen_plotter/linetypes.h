#pragma once

#include <vector>

#include "toolkit/marvcon/marvcon.h"

// The patterns that the plotter draws by itself, by the numbers of its language, 1 upward; their sizes are in
// millimetres.
PX_Smart_Pointer<PX_Linetype_Capabilities> pen_plotter_linetypes(const PX_Plotter_Class_Factory& factory);

// The pattern of the device that is most like these dashes, the lengths of strokes and gaps in turn; 0 for a
// solid line.
int nearest_linetype(const PX_Linetype_Capabilities& linetypes, const std::vector<double>& dashes);
