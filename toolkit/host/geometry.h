#pragma once

#include <cstdint>

// Two single-precision numbers, X then Y; the unit is the owner's.
struct PX_Float_XY {
    float x = 0;
    float y = 0;

    PX_Float_XY() = default;
    PX_Float_XY(float x_value, float y_value) : x(x_value), y(y_value) {}
    friend bool operator==(const PX_Float_XY&, const PX_Float_XY&) = default;
};

// Bounds that count both ends: the extent along an axis is max - min + 1.
struct PX_Float_Rectangle {
    float x_min = 0;
    float x_max = 0;
    float y_min = 0;
    float y_max = 0;

    PX_Float_Rectangle() = default;
    PX_Float_Rectangle(float left, float right, float bottom, float top)
        : x_min(left), x_max(right), y_min(bottom), y_max(top) {}
    float x_extent() const { return x_max - x_min + 1.0F; }
    float y_extent() const { return y_max - y_min + 1.0F; }
    friend bool operator==(const PX_Float_Rectangle&, const PX_Float_Rectangle&) = default;
};

// The host's rectangle in whole device units.
struct PX_Int_Rectangle {
    std::int32_t x_min = 0;
    std::int32_t x_max = 0;
    std::int32_t y_min = 0;
    std::int32_t y_max = 0;

    friend bool operator==(const PX_Int_Rectangle&, const PX_Int_Rectangle&) = default;
};

// A colour; alpha 255 is opaque.
struct PX_RGB32 {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t alpha = 255;

    PX_RGB32() = default;
    PX_RGB32(std::uint8_t r, std::uint8_t g, std::uint8_t b, std::uint8_t a)
        : red(r), green(g), blue(b), alpha(a) {}
    friend bool operator==(const PX_RGB32&, const PX_RGB32&) = default;
};
