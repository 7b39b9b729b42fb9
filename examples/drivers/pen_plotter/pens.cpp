#include "examples/drivers/pen_plotter/pens.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr Drawing_Colour carousel[] = {
    {0, 0, 0},     {220, 0, 0},   {0, 128, 0},   {0, 0, 220},
    {0, 160, 200}, {200, 0, 160}, {240, 140, 0}, {120, 70, 30},
};

// How the eye weighs the three.
int distance(Drawing_Colour one, Drawing_Colour other) {
    const int red = one.red - other.red;
    const int green = one.green - other.green;
    const int blue = one.blue - other.blue;
    return 3 * red * red + 6 * green * green + blue * blue;
}

}  // namespace

int nearest_pen(Drawing_Colour colour) {
    const auto nearest = std::ranges::min_element(
        carousel, {}, [colour](Drawing_Colour pen) { return distance(pen, colour); });
    return static_cast<int>(std::distance(std::begin(carousel), nearest)) + 1;
}
