#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <vector>

// A drawing of lines, as it is read from a small part of SVG: svg with a viewBox, g, line, polyline, polygon,
// and path of straight lines; stroke and stroke-width.

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

struct Drawing_Line {
    std::vector<Drawing_Point> points;  // two or more
    Drawing_Colour colour;
    double width;
};

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
