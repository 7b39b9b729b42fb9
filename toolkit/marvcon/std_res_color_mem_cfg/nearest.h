#pragma once

#include "toolkit/marvcon/std_res_color_mem_cfg/interface.h"

// Each tells the score of a nearest search: how far an entry lies from what the user had, `had` being the
// snapshot of the configuration. The least one wins.
PX_EXPORT double px_color_mode_score(const PX_ResColorMem_Settings& had, const PX_ResColorMem& mode);
PX_EXPORT float px_resolution_score(const PX_ResColorMem_Settings& had, const PX_Resolution& resolution);
