#pragma once

#include <ostream>

#include "examples/common/driver.h"
#include "examples/plot_host/destination.h"
#include "examples/plot_host/host.h"
#include "examples/plot_host/host_error_handler.h"

namespace plot_host {

// What a plot is, where it goes and who is told.
struct Plot_Order {
    const Drawing& drawing;
    const std::filesystem::path& drawing_path;
    const Destination& destination;
    User user;
};

// Sends the plot to where the device's configuration says. Done, Not_Sent or Interrupted; why it was not sent
// is told on `err`, the number of bytes on `out`.
Exit_Code send_plot(const Plot_Order& order, const Driver& driver, PX_Plotter_Definition& device,
                    const PX_Smart_Pointer<Host_Error_Handler>& handler, Host_Platform& platform,
                    std::ostream& out, std::ostream& err);

}  // namespace plot_host
