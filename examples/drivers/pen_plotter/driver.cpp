#include "examples/drivers/pen_plotter/driver.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "examples/common/placement.h"
#include "examples/drivers/pen_plotter/definition.h"
#include "examples/drivers/pen_plotter/pens.h"

namespace {

// The plotter counts in fortieths of a millimetre, from the lower left corner of the sheet.
std::string position(Drawing_Point point) {
    constexpr double steps_per_point = 25.4 / 72 * 40;
    return std::to_string(std::lround(point.x * steps_per_point)) + ',' +
           std::to_string(std::lround(point.y * steps_per_point));
}

// An instruction stays short: it has to fit into the plotter's own buffer.
void stroke(const Drawing_Line& line, const Placement& place, Plot_Output& output) {
    constexpr std::size_t most_points = 16;
    std::string words = "PU" + position(place(line.points.front())) + ';';
    output.tell(1);
    for (std::size_t at = 1; at < line.points.size();) {
        const std::size_t begin = at;
        const std::size_t end = std::min(at + most_points, line.points.size());
        for (const char* before = "PD"; at < end; ++at, before = ",")
            words += before + position(place(line.points[at]));
        output.write(words + ";\n");
        words.clear();
        output.tell(end - begin);
    }
}

}  // namespace

PX_Smart_Pointer<PX_Plotter_Definition> Pen_Plotter_Driver::open(
    const std::filesystem::path& device, PX_Smart_Pointer<PX_Error_Handler> handler) const {
    return open_pen_plotter(device, std::move(handler));
}

void Pen_Plotter_Driver::draw(const PX_Plotter_Definition& device, const Drawing& drawing,
                              Plot_Output& output) const {
    const Placement place(drawing, device);
    std::vector<std::pair<int, const Drawing_Line*>> lines;
    for (const Drawing_Line& line : drawing.lines)
        lines.emplace_back(nearest_pen(line.colour), &line);
    std::ranges::stable_sort(lines, {}, [](const auto& line) { return line.first; });

    output.write("IN;\n");
    int held = 0;
    for (const auto& [pen, line] : lines) {
        if (pen != std::exchange(held, pen))
            output.write("PU;SP" + std::to_string(pen) + ";\n");
        stroke(*line, place, output);
    }
    output.write("PU;SP0;\n");
}
