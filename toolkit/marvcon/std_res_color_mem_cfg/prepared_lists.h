#pragma once

#include "toolkit/core/atomic_list.h"
#include "toolkit/host/string.h"

// What the lists that a user interface shows are made of: each kind with the sameness and the order that its
// list goes by.

// An effective resolution, under the name of the first that had it.
struct PX_EXPORT PX_RCM_ResName {
    float resolution_x = 0;
    float resolution_y = 0;
    PX_String name;

    // The name does not count.
    bool operator==(const PX_RCM_ResName& other) const {
        return resolution_x == other.resolution_x && resolution_y == other.resolution_y;
    }
};

// By the density of pixels; among equals, by the larger X. What is equal in both keeps its order.
PX_EXPORT bool px_sorts_before(const PX_RCM_ResName& inserted, const PX_RCM_ResName& element, bool ascending);

// A number of colours at a depth, with the names of the colour mode.
struct PX_EXPORT PX_RCM_PreparedColorCountDepth {
    PX_String canonical_name;
    PX_String localized_name;
    long num_colors = 0;
    long color_depth = 0;

    // The canonical name does not count.
    bool operator==(const PX_RCM_PreparedColorCountDepth& other) const {
        return num_colors == other.num_colors && color_depth == other.color_depth &&
               localized_name == other.localized_name;
    }
};

// A partial order on purpose: both numbers have to agree, and what does not compare moves on. What is equal
// in both comes out in reverse.
PX_EXPORT bool px_sorts_before(const PX_RCM_PreparedColorCountDepth& inserted,
                               const PX_RCM_PreparedColorCountDepth& element, bool ascending);
