#pragma once

#include <filesystem>

#include "examples/drivers/ppd/ppd_file.h"
#include "toolkit/marvcon/marvcon.h"

// The device that a description tells of. Throws Ppd_Error for a file that cannot be used.
PX_Smart_Pointer<PX_Plotter_Definition> open_ppd_device(const std::filesystem::path& description,
                                                        PX_Smart_Pointer<PX_Error_Handler> handler);
