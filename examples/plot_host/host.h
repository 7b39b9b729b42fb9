#pragma once

#include <filesystem>
#include <functional>
#include <ostream>

#include "toolkit/marvcon/marvcon.h"

namespace plot_host {

// A driver's way to open a device. It throws std::runtime_error, one line for the user, for a file that
// cannot be used, and leaves a device without a configuration.
using Open_Device = std::function<PX_Smart_Pointer<PX_Plotter_Definition>(
    const std::filesystem::path& description, PX_Smart_Pointer<PX_Error_Handler> handler)>;

// The exit codes of the program.
enum Exit_Code : int {
    Done = 0,
    Toolkit_Failed = 1,
    Bad_Input = 2,  // with exactly one line on `err`
};

Exit_Code run(int count, const char* const* words, const Open_Device& open_device, std::ostream& out,
              std::ostream& err);

}  // namespace plot_host
