#pragma once

#include <filesystem>

#include "examples/common/driver.h"

namespace plot_host {

// The driver that the program has for a device; any name but the pen plotter's is that of a description.
// Where the driver for those could not be built, it throws std::runtime_error, one line for the user.
const Driver& find_driver(const std::filesystem::path& device);

}  // namespace plot_host
