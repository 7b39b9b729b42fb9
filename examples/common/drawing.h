#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <vector>

// A drawing of lines, as it is read from a small part of SVG: svg with a viewBox, g, line, polyline, polygon,
// circle, and path of straight lines; stroke, stroke-width and stroke-dasharray.

// The drawing cannot be used. One line for the user, with the path and the line of the file.
class Drawing_Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct Drawing_Point {
    double x;
    double y;
};

struct Drawing_Colour {
    std::uint8_t red;
    std::uint8_t green;
    std::uint8_t blue;

    friend bool operator==(const Drawing_Colour&, const Drawing_Colour&) = default;
};

// A line, or a circle round its only point.
struct Drawing_Line {
    std::vector<Drawing_Point> points;  // two or more; one for a circle
    Drawing_Colour colour;
    double width;
    double radius = 0;                // above 0: a circle
    std::vector<double> dashes = {};  // strokes and gaps in turn, an even number; none: a solid line

    // Not more than a point.
    bool is_dot() const;
};

// A circle as a closed line of so many sides to a right angle.
Drawing_Line tessellated(const Drawing_Line& circle, int sides);

// From the lower left corner, y upwards, in units of its own.
struct Drawing {
    double width;
    double height;
    std::vector<Drawing_Line> lines;

    std::size_t count_points() const;
};

// What has no stroke is left out, as SVG has it. Whatever else the file asks for is an error: half a drawing
// is none.
Drawing read_drawing(const std::filesystem::path& path);
