#pragma once

// Values that are mended where they are stored instead of being refused.

template <class Number>
constexpr Number px_not_negative(Number value) {
    return value < 0 ? Number{0} : value;
}

// A value within the limits, both included; else, and for what is not a number, the other one.
template <class Number>
constexpr Number px_within_or(Number value, Number least, Number most, Number otherwise) {
    return value >= least && value <= most ? value : otherwise;
}
