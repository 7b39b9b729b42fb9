#pragma once

#include <ostream>

#include "toolkit/marvcon/marvcon.h"

namespace plot_host {

// What the device has of what nobody chooses: its line patterns and how it wants its raster.
void print_unchosen(std::ostream& out, const PX_Plotter_Definition& device);

}  // namespace plot_host
