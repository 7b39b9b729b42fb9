#pragma once

#include "toolkit/core/clamps.h"

// 0 to 360; anything else, negative numbers too, is 0.
inline short px_degrees(short value) {
    return static_cast<unsigned short>(value) > 360 ? short{0} : value;
}
