#pragma once

#include <filesystem>

#include "examples/drivers/ppd/ppd_file.h"
#include "toolkit/marvcon/marvcon.h"

// The device that a description tells of. Throws Ppd_Error for a file that cannot be used.
PX_Smart_Pointer<PX_Plotter_Definition> open_ppd_device(const std::filesystem::path& description,
                                                        PX_Smart_Pointer<PX_Error_Handler> handler);

// The description that a device of open_ppd_device was made of; it lives as long as the device. Another
// device has none: std::bad_cast.
const Ppd_File& ppd_file_of(const PX_Plotter_Definition& device);
