#pragma once

#include "toolkit/marvcon/std_phys_pen_cfg/flags.h"

// What holds for the numbers of every pen. Not-a-number is no width and no speed.

inline constexpr float px_least_pen_width = -1.0F;

constexpr bool px_is_pen_width(float width) {
    return width >= px_least_pen_width;
}
constexpr bool px_is_pen_speed(float speed) {
    return speed >= 0.0F;
}

// Stores a value that its limits accept; else the repaired one, and then throws MVNK_Error.
template <class Number>
void px_store_or_repair(Number& field, Number value, bool is_accepted, Number repaired, unsigned int code,
                        const wchar_t* function) {
    field = is_accepted ? value : repaired;
    if (!is_accepted)
        throw MVNK_Error(code, function, nullptr, px_std_phys_pen_cfg_source.file_tag);
}
