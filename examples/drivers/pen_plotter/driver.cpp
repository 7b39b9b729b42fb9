#include "examples/drivers/pen_plotter/driver.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "examples/common/placement.h"
#include "examples/common/text.h"
#include "examples/drivers/pen_plotter/definition.h"
#include "examples/drivers/pen_plotter/linetypes.h"
#include "examples/drivers/pen_plotter/pens.h"
#include "examples/drivers/pen_plotter/settings.h"

namespace {

constexpr double mm_per_point = 25.4 / 72;
// The plotter counts in fortieths of a millimetre, from the lower left corner of the sheet.
constexpr double steps_per_point = mm_per_point * 40;

struct Stroke {
    PX_Smart_Pointer<PX_Pen> pen;
    long place;
    const Drawing_Line* line;
};

std::string steps(double points) {
    return std::to_string(std::lround(points * steps_per_point));
}

std::string position(Drawing_Point point) {
    return steps(point.x) + ',' + steps(point.y);
}

// The plot of one drawing: what the plotter holds, and what it has been told.
class Pen_Plot {
public:
    Pen_Plot(const PX_Plotter_Definition& device, const Placement& place, const PX_Plotter_Options& options,
             Plot_Output& output)
        : m_linetypes(device.get_plotter_capabilities()->get_linetype_capabilities()),
          m_force(pen_force(*device.get_plotter_configuration())),
          m_place(place),
          m_options(options),
          m_output(output) {
        m_output.write("IN;LA1," + std::to_string(line_ends(*device.get_plotter_configuration())) + ";\n");
    }

    void draw(const Stroke& stroke) {
        take_up(stroke);
        const Drawing_Line& line = *stroke.line;
        set_linetype(nearest_linetype(*m_linetypes, line.dashes));
        const double width = line.width * m_place.scale() * mm_per_point;
        if (line.radius > 0)
            circle(line.points.front(), line.radius * m_place.scale());
        else if (line.is_dot() && width > double{stroke.pen->get_pen_width()})
            fat_dot(line);
        else
            draw_line(line);
    }
    void finish() { m_output.write("PU;SP0;\n"); }

private:
    // With its width, how fast it may go, and how hard it is pressed.
    void take_up(const Stroke& stroke) {
        if (stroke.place == std::exchange(m_held, stroke.place))
            return;
        const std::string place = std::to_string(stroke.place);
        m_output.write("PU;SP" + place + ";PW" + text::shortest(stroke.pen->get_pen_width()) + "," + place +
                       ";VS" + text::shortest(stroke.pen->get_pen_speed()) + "," + place + ";FS" +
                       std::to_string(m_force) + "," + place + ";\n");
    }

    void set_linetype(int linetype) {
        if (linetype == std::exchange(m_linetype, linetype))
            return;
        const auto pattern = static_cast<PX_Line_Pattern::Enum>(linetype);
        m_output.write(linetype == 0 ? "LT;\n"
                                     : "LT" + std::to_string(linetype) + "," +
                                           text::shortest(m_linetypes->get_linefont_size(pattern)) + ",1;\n");
    }

    // An instruction stays short: it has to fit into the plotter's own buffer.
    void draw_line(const Drawing_Line& line) {
        constexpr std::size_t most_points = 16;
        std::string words = "PU" + position(m_place(line.points.front())) + ';';
        m_output.tell(1);
        for (std::size_t at = 1; at < line.points.size();) {
            const std::size_t begin = at;
            const std::size_t end = std::min(at + most_points, line.points.size());
            for (const char* before = "PD"; at < end; ++at, before = ",")
                words += before + position(m_place(line.points[at]));
            m_output.write(words + ";\n");
            words.clear();
            m_output.tell(end - begin);
        }
    }

    void circle(Drawing_Point centre, double radius) {
        m_output.write("PU" + position(m_place(centre)) + ";CI" + steps(radius) + ";\n");
        m_output.tell(1);
    }

    // One that the pen cannot make by touching the paper is drawn round.
    void fat_dot(const Drawing_Line& dot) {
        const Drawing_Point at = dot.points.front();
        const double half = dot.width / 2;
        if (!m_options.fat_dots_as_squares()) {
            Drawing_Line ring = dot;
            ring.points = {at};
            ring.radius = half;
            ring = rendered(ring, m_options);
            return ring.radius > 0 ? circle(at, half * m_place.scale()) : draw_line(ring);
        }
        Drawing_Line square = dot;
        square.points = {{at.x - half, at.y - half},
                         {at.x + half, at.y - half},
                         {at.x + half, at.y + half},
                         {at.x - half, at.y + half},
                         {at.x - half, at.y - half}};
        draw_line(square);
    }

    const PX_Smart_Pointer<PX_Linetype_Capabilities> m_linetypes;
    const long m_force;
    const Placement& m_place;
    const PX_Plotter_Options& m_options;
    Plot_Output& m_output;
    long m_held = 0;
    int m_linetype = 0;
};

}  // namespace

PX_Smart_Pointer<PX_Plotter_Definition> Pen_Plotter_Driver::open(
    const std::filesystem::path& device, PX_Smart_Pointer<PX_Error_Handler> handler) const {
    return open_pen_plotter(device, std::move(handler));
}

Driver::Draw Pen_Plotter_Driver::prepare(const PX_Plotter_Definition& device, const Drawing& drawing,
                                         const PX_Plotter_Options& options) const {
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

    return [&device, &options, place, strokes](Plot_Output& output) {
        Pen_Plot plot(device, place, options, output);
        for (const Stroke& stroke : strokes)
            plot.draw(stroke);
        plot.finish();
    };
}
