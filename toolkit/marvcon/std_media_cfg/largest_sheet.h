#pragma once

#include "toolkit/host/geometry.h"

// Whether a sheet is within the largest one that a device takes. The two ways of selection differ on purpose
// in what a roll does to the height. `roll_height` is called only where the height of the roll counts.

// Of a size by source: the roll height is the limit where the source feeds a roll that is limited.
template <class Height>
bool px_fits_source(const PX_Float_XY& sheet, const PX_Float_XY& largest, bool is_roll, Height roll_height) {
    return sheet.x <= largest.x && sheet.y <= (is_roll ? roll_height() : largest.y);
}

// Of a size that is chosen directly: the roll height widens the limit here for any size, with or without a
// roll.
template <class Height>
bool px_fits_directly(const PX_Float_XY& sheet, const PX_Float_XY& largest, Height roll_height) {
    return !(sheet.x > largest.x) && (sheet.y <= largest.y || !(sheet.y > roll_height()));
}
