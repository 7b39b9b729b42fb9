#include <unistd.h>

#include <iostream>

#include "examples/drivers/pen_plotter/definition.h"
#include "examples/drivers/pen_plotter/driver.h"
#include "examples/drivers/ppd/driver.h"
#include "examples/plot_host/host.h"

int main(int count, char** words) {
    const Pen_Plotter_Driver pen_plotter;
    const Ppd_Driver described;
    const auto driver_of = [&](const std::filesystem::path& device) -> const Driver& {
        if (device == pen_plotter_name)
            return pen_plotter;
        return described;
    };
    const bool is_terminal = isatty(STDERR_FILENO) != 0;
    return plot_host::run(count, words, driver_of, std::cout, std::cerr,
                          {is_terminal && isatty(STDIN_FILENO) != 0, is_terminal});
}
