#pragma once

#include "toolkit/marvcon/marvcon.h"

namespace plot_host {

// Makes the custom items of a choice those of the device, in its order. An item that the device has no
// setting for goes, for the validator fails over it; a setting that the choice does not name comes at its
// default. The values of the others are still to be validated.
void fit_custom_items(const PX_Plotter_Definition& device);

}  // namespace plot_host
