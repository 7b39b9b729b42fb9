#pragma once

#include <array>
#include <filesystem>
#include <string>

#include "toolkit/marvcon/marvcon.h"

namespace plot_host {

// A sheet as a configuration holds it, in the unit of its device.
struct Sheet {
    std::string title;
    std::string size;
    bool turned;
    PX_Float_XY media;
    // Printable bounds, margins, actual printable bounds.
    std::array<PX_Float_Rectangle, 3> bounds;
};

Sheet take_sheet(const PX_Plotter_Configuration& configuration, const std::string& title);

// An SVG picture of both, side by side and to one scale. Throws std::runtime_error, one line for the user,
// when it cannot be written.
void draw_sheets(const std::filesystem::path& path, const Sheet& before, const Sheet& after);

}  // namespace plot_host
