#pragma once

#include <string>
#include <vector>

#include "tests/examples/sweep/draw.h"
#include "toolkit/marvcon/marvcon.h"

using Custom_Items = PX_Named_Object_List<PX_Custom_Config_Item>;

// What a user, or a file that came along, could hold for the settings of the device: mostly values of theirs,
// some that the device has not or that are of another type, and for some settings nothing.
PX_Smart_Pointer<Custom_Items> draw_custom_items(Draw& draw, const PX_Plotter_Definition& device);

// Those that the device has a setting for: any other ends a run.
PX_Smart_Pointer<Custom_Items> known_to(const PX_Plotter_Definition& device, const Custom_Items& items);

struct Custom_Outcome {
    long changed = 0;  // items
    std::vector<std::string> faults{};
};

// Compares what the configuration holds with what it held before the run.
Custom_Outcome outcome_of_run(const PX_Plotter_Definition& device, const Custom_Items& before);
