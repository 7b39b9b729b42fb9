#include "examples/plot_host/find_driver.h"

#include "examples/drivers/pen_plotter/definition.h"
#include "examples/drivers/pen_plotter/driver.h"
#include "examples/drivers/ppd/driver.h"

namespace plot_host {

const Driver& find_driver(const std::filesystem::path& device) {
    static const Pen_Plotter_Driver pen_plotter;
    static const Ppd_Driver described;
    if (device == pen_plotter_name)
        return pen_plotter;
    return described;
}

}  // namespace plot_host
