#include <stdexcept>

#include "examples/drivers/pen_plotter/definition.h"
#include "examples/drivers/pen_plotter/driver.h"
#include "examples/plot_host/find_driver.h"

namespace plot_host {

const Driver& find_driver(const std::filesystem::path& device) {
    static const Pen_Plotter_Driver pen_plotter;
    if (device != pen_plotter_name)
        throw std::runtime_error("no driver for '" + device.string() +
                                 "': this program was built without the one for printer descriptions");
    return pen_plotter;
}

}  // namespace plot_host
