#pragma once

#include <vector>

#include "examples/drivers/ppd/ppd_file.h"
#include "toolkit/marvcon/marvcon.h"

inline constexpr const char* ppd_resolution_keyword = "Resolution";

// A choice of resolution, in dots per inch.
struct Ppd_Resolution : Ppd_Choice {
    PX_Float_XY dpi;
};

struct Ppd_Resolutions {
    std::vector<Ppd_Resolution> choices;
    std::wstring default_choice;
    bool is_option;  // rather than a default alone
};

// Those whose names say how many dots, such as "600dpi" or "600x1200dpi"; without any, the one that the file
// calls its default. None when that has no numbers either.
Ppd_Resolutions ppd_resolutions(const Ppd_File& file);
