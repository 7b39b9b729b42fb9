#pragma once

// Values that are mended where they are stored instead of being refused.

template <class Number>
constexpr Number px_not_negative(Number value) {
    return value < 0 ? Number{0} : value;
}
