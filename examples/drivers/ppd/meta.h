#pragma once

#include "examples/drivers/ppd/ppd_file.h"
#include "toolkit/marvcon/marvcon.h"

// Maker, model and driver as far as the description tells them.
PX_Smart_Pointer<PX_Meta_Capabilities> ppd_meta_capabilities(const Ppd_File& file,
                                                             const PX_Plotter_Class_Factory& factory);
