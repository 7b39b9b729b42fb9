#pragma once

#include "toolkit/marvcon/std_phys_pen_cfg/capabilities.h"
#include "toolkit/marvcon/std_phys_pen_cfg/configuration.h"
#include "toolkit/marvcon/std_phys_pen_cfg/pen.h"
#include "toolkit/marvcon/std_phys_pen_cfg/validator.h"
