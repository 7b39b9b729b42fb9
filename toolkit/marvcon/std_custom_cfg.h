#pragma once

#include "toolkit/marvcon/std_custom_cfg/capabilities.h"
#include "toolkit/marvcon/std_custom_cfg/catalogue.h"
#include "toolkit/marvcon/std_custom_cfg/configuration.h"
#include "toolkit/marvcon/std_custom_cfg/custom_data.h"
#include "toolkit/marvcon/std_custom_cfg/validator.h"
