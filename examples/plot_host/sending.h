#pragma once

#include <filesystem>
#include <ostream>

#include "examples/common/driver.h"
#include "examples/plot_host/destination.h"
#include "examples/plot_host/host.h"
#include "examples/plot_host/host_error_handler.h"

namespace plot_host {

// A device that is open, and who is told of what becomes of its plot.
struct Session {
    const Driver& driver;
    PX_Plotter_Definition& device;
    Host_Platform& platform;
    PX_Smart_Pointer<Host_Error_Handler> handler;
    std::ostream& out;
    std::ostream& err;
    User user;
};

// What a plot is and where it goes.
struct Plot_Order {
    const Drawing& drawing;
    const std::filesystem::path& drawing_path;
    const Destination& destination;
    const PX_Plotter_Options& options;
};

// Sends the plot to where the device's configuration says. Done, Not_Sent or Interrupted; why it was not sent
// is told on `err`, the number of bytes on `out`.
Exit_Code send_plot(const Plot_Order& order, const Session& session);

}  // namespace plot_host
