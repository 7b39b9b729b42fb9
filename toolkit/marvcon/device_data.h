#pragma once

#include "toolkit/marvcon/device_data/plotter_device_data.h"
#include "toolkit/marvcon/device_data/plotter_options.h"
