#pragma once

#include "toolkit/marvcon/std_raster_caps/capabilities.h"
