#pragma once

#include <filesystem>

#include "toolkit/marvcon/marvcon.h"

// The name that stands for the plotter where other devices have a description.
inline constexpr const char* pen_plotter_name = "pen-plotter";

// The plotter without a configuration. Every measure of paper is in points, 1/72 inch.
PX_Smart_Pointer<PX_Plotter_Definition> open_pen_plotter(const std::filesystem::path& name,
                                                         PX_Smart_Pointer<PX_Error_Handler> handler);
