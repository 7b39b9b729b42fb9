#pragma once

#include <ostream>

#include "toolkit/marvcon/marvcon.h"

namespace plot_host {

// What a dialogue would offer: the prepared lists of the device, best first.
void print_resolutions(std::ostream& out, const PX_Plotter_Definition& device);
void print_colors(std::ostream& out, const PX_Plotter_Definition& device);

}  // namespace plot_host
