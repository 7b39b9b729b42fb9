#pragma once

// Values that are mended where they are stored instead of being refused.

inline float px_not_negative(float value) {
    return value < 0.0F ? 0.0F : value;
}

// 0 to 360; anything else, negative numbers too, is 0.
inline short px_degrees(short value) {
    return static_cast<unsigned short>(value) > 360 ? short{0} : value;
}
