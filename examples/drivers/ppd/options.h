#pragma once

#include <string>

#include "examples/drivers/ppd/ppd_file.h"
#include "toolkit/marvcon/marvcon.h"

// The options of the description that no other domain of the device tells of, a setting each: named by its
// keyword, its values the names of its choices, in the order of the file, its default that of the file.
//
// - Which options are told elsewhere, every part of the driver says for itself (ppd_xxx_keywords): none is in
//   two places. What an option has besides the choices that a domain takes, such as job storage under the
//   keyword of collating, is not to be had.
// - What is installed is no choice of a plot: it stays as the description has it.
// - Values of the user's own (CustomXxx) are no choices here. An option with one choice leaves none.
// - Constraints between settings are not looked at.
PX_Smart_Pointer<PX_Custom_Capabilities> ppd_custom_capabilities(const Ppd_File& file,
                                                                 const PX_Plotter_Class_Factory& factory);

// What selects the values that the configuration holds for these settings. What it holds besides, and a value
// that is not the device's, adds nothing.
std::string ppd_settings_code(const Ppd_File& file, const PX_Plotter_Definition& device, Ppd_Section section);
