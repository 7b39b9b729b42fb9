#pragma once

#include "toolkit/marvcon/std_meta_cfg/capabilities.h"
#include "toolkit/marvcon/std_meta_cfg/catalogue.h"
