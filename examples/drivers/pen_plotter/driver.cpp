#include "examples/drivers/pen_plotter/driver.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "examples/common/placement.h"
#include "examples/drivers/pen_plotter/definition.h"
#include "examples/drivers/pen_plotter/pens.h"

namespace {

constexpr double mm_per_point = 25.4 / 72;

struct Stroke {
    PX_Smart_Pointer<PX_Pen> pen;
    long place;
    const Drawing_Line* line;
};

// The plotter counts in fortieths of a millimetre, from the lower left corner of the sheet.
std::string position(Drawing_Point point) {
    constexpr double steps_per_point = mm_per_point * 40;
    return std::to_string(std::lround(point.x * steps_per_point)) + ',' +
           std::to_string(std::lround(point.y * steps_per_point));
}

std::string number(float value) {
    char text[32];
    const auto end = std::to_chars(text, std::end(text), value).ptr;
    return {text, end};
}

// Tells how wide it is and how fast it may go.
void take_up(const PX_Pen& pen, Plot_Output& output) {
    const std::string place = std::to_string(place_of(pen));
    output.write("PU;SP" + place + ";PW" + number(pen.get_pen_width()) + "," + place + ";VS" +
                 number(pen.get_pen_speed()) + "," + place + ";\n");
}

// An instruction stays short: it has to fit into the plotter's own buffer.
void draw_line(const Drawing_Line& line, const Placement& place, Plot_Output& output) {
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
    const auto pens = device.get_plotter_configuration()->get_phys_pen_configuration();
    std::vector<Stroke> strokes;
    for (const Drawing_Line& line : drawing.lines) {
        const auto pen = nearest_pen(*pens, line.colour, line.width * place.scale() * mm_per_point);
        if (!pen)
            throw std::runtime_error("the choice has no pen to draw with");
        strokes.push_back({pen, place_of(*pen), &line});
    }
    if (pens->get_pen_optimization() > 0)
        std::ranges::stable_sort(strokes, {}, &Stroke::place);

    output.write("IN;\n");
    long held = 0;
    for (const auto& [pen, place_in_carousel, line] : strokes) {
        if (place_in_carousel != std::exchange(held, place_in_carousel))
            take_up(*pen, output);
        draw_line(*line, place, output);
    }
    output.write("PU;SP0;\n");
}
