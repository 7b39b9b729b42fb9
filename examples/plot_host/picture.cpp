#include "examples/plot_host/picture.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <fstream>
#include <initializer_list>
#include <sstream>
#include <stdexcept>
#include <system_error>

#include "examples/common/text.h"

namespace plot_host {
namespace {

constexpr double panel_width = 480;
constexpr double drawing_width = 400;
constexpr double drawing_height = 420;
constexpr double drawing_left = 60;
constexpr double drawing_top = 80;
constexpr double legend_top = drawing_top + drawing_height + 50;
constexpr double legend_step = 24;

// Where bounds are equal all of them are seen: a wide line, and two that take turns on top of it.
struct Look {
    const char* name;
    const char* stroke;
};
constexpr std::array<Look, 3> looks = {{
    {"Printable bounds", "stroke='#9cc4ea' stroke-width='6'"},
    {"Margins", "stroke='#1b7f3b' stroke-width='2.5' stroke-dasharray='12 12'"},
    {"Actual printable bounds",
     "stroke='#c0392b' stroke-width='2.5' stroke-dasharray='12 12' stroke-dashoffset='12'"},
}};

std::string escaped(const std::string& text) {
    std::u32string safe;
    for (const char32_t c : text::characters_of(text::on_one_line(text))) {
        switch (c) {
            case U'&':
                safe += U"&amp;";
                break;
            case U'<':
                safe += U"&lt;";
                break;
            case U'>':
                safe += U"&gt;";
                break;
            case U'"':
                safe += U"&quot;";
                break;
            case U'\'':
                safe += U"&#39;";
                break;
            case 0xFFFE:
            case 0xFFFF:
                safe += U'\uFFFD';  // XML does not have these two
                break;
            default:
                safe += c;
        }
    }
    return text::to_utf8(safe);
}

// Cut where it would run into the other panel, between characters and not within one.
std::string shortened(const std::string& text) {
    constexpr std::size_t longest = 46;
    std::u32string characters = text::characters_of(text);
    if (characters.size() > longest)
        characters = characters.substr(0, longest - 3) + U"...";
    return escaped(text::to_utf8(characters));
}

bool is_measure(float number) {
    return std::isfinite(number) && number > 0;
}

// The upper right corner of all that is drawn; zeros for a sheet that was never chosen.
PX_Float_XY corner_of(const Sheet& sheet) {
    if (!is_measure(sheet.media.x) || !is_measure(sheet.media.y))
        return {};
    PX_Float_XY corner = sheet.media;
    for (const PX_Float_Rectangle& bounds : sheet.bounds) {
        if (std::isfinite(bounds.x_max) && std::isfinite(bounds.y_max))
            corner = {std::max(corner.x, bounds.x_max), std::max(corner.y, bounds.y_max)};
    }
    return corner;
}

class Panel {
public:
    Panel(std::ostream& out, double left, double scale) : m_out(out), m_left(left), m_scale(scale) {}

    void draw(const Sheet& sheet) {
        text(24, 30, "font-size='16' font-weight='bold'", shortened(sheet.title));
        text(24, 54, "",
             shortened("Size: " + (sheet.size.empty() ? "(none)" : sheet.size)) +
                 (sheet.turned ? ", turned" : ""));
        const bool chosen = corner_of(sheet).x > 0;
        if (chosen)
            draw_sheet(sheet);
        else
            text(drawing_left, drawing_top + 30, "", "No sheet was chosen.");
        legend(0, "fill='#ffffff' stroke='#444444' stroke-width='1'", "Media bounds",
               extent(sheet.media.x, sheet.media.y));
        for (std::size_t at = 0; at < looks.size(); ++at)
            legend(static_cast<int>(at) + 1, looks[at].stroke, looks[at].name, numbers(sheet.bounds[at]));
    }

private:
    void draw_sheet(const Sheet& sheet) {
        rectangle({0, sheet.media.x, 0, sheet.media.y}, "fill='#ffffff' stroke='#444444' stroke-width='1'");
        for (std::size_t at = 0; at < looks.size(); ++at) {
            // The bounds count both ends.
            PX_Float_Rectangle bounds = sheet.bounds[at];
            bounds.x_max += 1;
            bounds.y_max += 1;
            rectangle(bounds, std::string("fill='none' ") + looks[at].stroke);
        }
        const double middle = drawing_left + sheet.media.x * m_scale / 2;
        text(middle, drawing_top + drawing_height + 20, "font-size='12' text-anchor='middle'",
             extent(sheet.media.x, sheet.media.y));
    }

    // Upwards is upwards: the lower left corner of every sheet stands at the same height.
    void rectangle(const PX_Float_Rectangle& bounds, const std::string& look) {
        const double width = (double{bounds.x_max} - bounds.x_min) * m_scale;
        const double height = (double{bounds.y_max} - bounds.y_min) * m_scale;
        if (!std::isfinite(width) || !std::isfinite(height) || width < 0 || height < 0)
            return;  // its numbers are in the legend
        m_out << "<rect x='" << m_left + drawing_left + bounds.x_min * m_scale << "' y='"
              << drawing_top + drawing_height - bounds.y_max * m_scale << "' width='" << width << "' height='"
              << height << "' " << look << "/>\n";
    }

    void legend(int row, const std::string& look, const char* name, const std::string& values) {
        const double y = legend_top + row * legend_step;
        m_out << "<rect x='" << m_left + 24 << "' y='" << y - 12 << "' width='26' height='14' fill='none' "
              << (row == 0 ? "stroke='#444444' stroke-width='1'" : look) << "/>\n";
        text(62, y, "", name);
        text(236, y, "", values);
    }

    // `content` is escaped.
    void text(double x, double y, const char* look, const std::string& content) {
        m_out << "<text x='" << m_left + x << "' y='" << y << "' " << look << ">" << content << "</text>\n";
    }

    static std::string extent(float x, float y) {
        std::ostringstream words;
        words << x << " x " << y;
        return words.str();
    }

    static std::string numbers(const PX_Float_Rectangle& bounds) {
        std::ostringstream words;
        words << "x " << bounds.x_min << " to " << bounds.x_max << ", y " << bounds.y_min << " to "
              << bounds.y_max;
        return words.str();
    }

    std::ostream& m_out;
    double m_left;
    double m_scale;
};

}  // namespace

Sheet take_sheet(const PX_Plotter_Configuration& configuration, const std::string& title) {
    const auto media = configuration.get_media_configuration();
    const auto had = media->get_media_settings();
    return {title,
            text::to_utf8(media->get_media_size()),
            media->get_dm_orientation() == PX_Dm_Orientation::Dm_Orientation_Turned,
            *had->get_media_bounds(),
            {*had->get_printable_bounds(), *media->get_margins(), *media->get_actual_printable_bounds()}};
}

void draw_sheets(const std::filesystem::path& path, const Sheet& before, const Sheet& after) {
    double scale = 1;
    for (const Sheet* const sheet : {&before, &after}) {
        const PX_Float_XY corner = corner_of(*sheet);
        if (corner.x > 0)
            scale = std::min({scale, drawing_width / corner.x, drawing_height / corner.y});
    }
    const double height = legend_top + static_cast<double>(looks.size()) * legend_step + 24;
    std::ofstream out(path, std::ios::binary);
    out << "<svg xmlns='http://www.w3.org/2000/svg' width='" << 2 * panel_width << "' height='" << height
        << "' viewBox='0 0 " << 2 * panel_width << ' ' << height
        << "' font-family='sans-serif' font-size='13' fill='#222222'>\n"
        << "<rect width='100%' height='100%' fill='#f4f4f2'/>\n";
    Panel(out, 0, scale).draw(before);
    out << "<line x1='" << panel_width << "' y1='20' x2='" << panel_width << "' y2='" << height - 20
        << "' stroke='#cccccc'/>\n";
    Panel(out, panel_width, scale).draw(after);
    out << "</svg>" << std::endl;
    if (!out)
        throw std::runtime_error("the picture cannot be drawn to '" + path.string() +
                                 "': " + std::generic_category().message(errno));
}

}  // namespace plot_host
