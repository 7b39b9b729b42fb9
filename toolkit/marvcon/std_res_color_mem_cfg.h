#pragma once

#include "toolkit/marvcon/std_res_color_mem_cfg/capabilities.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/catalogue.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/configuration.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/memory_areas.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/nearest.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/settings.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/validator.h"
