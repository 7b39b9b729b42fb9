#pragma once

#include "toolkit/marvcon/std_res_color_mem_cfg/interface.h"

// Whether a resolution has an area that counts for that much installed memory. Each pass takes up to three
// names: the first has only to be there, the second not to be withdrawn, and the third is the one whose
// memory counts. It is meant so; this is no loop over single names.
PX_EXPORT bool px_is_memory_of_an_area(const PX_ResColorMem_Capabilities& device,
                                       const PX_Resolution& resolution, long memory);
