#pragma once

#include "toolkit/marvcon/std_init_term_cfg/capabilities.h"
#include "toolkit/marvcon/std_init_term_cfg/configuration.h"
#include "toolkit/marvcon/std_init_term_cfg/validator.h"
