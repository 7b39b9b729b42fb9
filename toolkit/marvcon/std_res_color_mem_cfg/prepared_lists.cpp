#include "toolkit/marvcon/std_res_color_mem_cfg/prepared_lists.h"

namespace {

// The larger area goes first, then the larger X.
bool goes_first(const PX_RCM_ResName& one, const PX_RCM_ResName& other) {
    const float area = one.resolution_x * one.resolution_y;
    const float other_area = other.resolution_x * other.resolution_y;
    return area > other_area || (!(other_area > area) && one.resolution_x > other.resolution_x);
}

}  // namespace

bool px_sorts_before(const PX_RCM_ResName& inserted, const PX_RCM_ResName& element, bool ascending) {
    return ascending ? goes_first(element, inserted) : goes_first(inserted, element);
}

bool px_sorts_before(const PX_RCM_PreparedColorCountDepth& inserted,
                     const PX_RCM_PreparedColorCountDepth& element, bool ascending) {
    const auto& less = ascending ? inserted : element;
    const auto& more = ascending ? element : inserted;
    return less.num_colors <= more.num_colors && less.color_depth <= more.color_depth;
}
