#pragma once

#include "toolkit/marvcon/std_io_cfg/capabilities.h"
#include "toolkit/marvcon/std_io_cfg/catalogue.h"
#include "toolkit/marvcon/std_io_cfg/configuration.h"
#include "toolkit/marvcon/std_io_cfg/line_settings.h"
#include "toolkit/marvcon/std_io_cfg/validator.h"
