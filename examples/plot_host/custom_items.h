#pragma once

#include <string>
#include <vector>

#include "toolkit/marvcon/marvcon.h"

namespace plot_host {

// What the device calls the setting of that canonical name, with that name in parentheses where it differs.
std::string title_of_setting(const PX_Plotter_Capabilities& capabilities, const wchar_t* name);

// Makes the custom items of a choice ready for the validator, which fails over an item that the device has no
// setting for: such items go. Returns a line for each of them, and for each item that is still the default
// that it was before the choice was read.
std::vector<std::string> fit_custom_items(const PX_Plotter_Definition& device);

}  // namespace plot_host
