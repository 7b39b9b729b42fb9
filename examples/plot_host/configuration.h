#pragma once

#include "toolkit/marvcon/marvcon.h"

namespace plot_host {

// Everything at its start, out of the device's own factory; the device does not hold it yet.
PX_Smart_Pointer<PX_Plotter_Configuration> new_configuration(const PX_Plotter_Definition& device);

}  // namespace plot_host
