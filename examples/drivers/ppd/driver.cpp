#include "examples/drivers/ppd/driver.h"

#include <algorithm>
#include <cmath>
#include <locale>
#include <sstream>
#include <utility>

#include "examples/common/placement.h"
#include "examples/drivers/ppd/definition.h"
#include "examples/drivers/ppd/options.h"

namespace {

// Bytes that are no number of the user's language.
std::ostringstream plain_words() {
    std::ostringstream words;
    words.imbue(std::locale::classic());
    return words;
}

std::string beginning(const PX_Plotter_Definition& device, const Placement& place) {
    const auto media = device.get_plotter_configuration()->get_media_configuration();
    const auto settings = [&](Ppd_Section section) {
        return ppd_settings_code(ppd_file_of(device), device, section);
    };
    std::ostringstream words = plain_words();
    words << "%!PS-Adobe-3.0\n"
          << "%%Pages: 1\n"
          << "%%BoundingBox: 0 0 " << std::ceil(place.sheet_width()) << ' ' << std::ceil(place.sheet_height())
          << "\n%%EndComments\n"
          << "%%BeginProlog\n"
          << settings(Ppd_Section::Prolog) << "%%EndProlog\n"
          << "%%BeginSetup\n"
          // An interpreter of the first language level has one sheet and does not ask.
          << "/setpagedevice where { pop << /PageSize [" << place.sheet_width() << ' ' << place.sheet_height()
          << "] /NumCopies " << std::max(1L, long{media->get_number_of_copies()})
          << " >> setpagedevice } if\n"
          << settings(Ppd_Section::Setup) << "%%EndSetup\n"
          << "%%Page: 1 1\n"
          << "%%BeginPageSetup\n"
          << settings(Ppd_Section::Page_Setup)
          // Behind every setting: a new page device forgets them.
          << "1 setlinecap 1 setlinejoin\n"
          << "%%EndPageSetup\n";
    return words.str();
}

// The ends are round: a line without a length is a dot already.
void dot_as_square(const Drawing_Line& line, const Placement& place, Plot_Output& output) {
    const Drawing_Point at = place(line.points.front());
    const double side = line.width * place.scale();
    std::ostringstream words = plain_words();
    words << "newpath " << at.x - side / 2 << ' ' << at.y - side / 2 << " moveto " << side << " 0 rlineto 0 "
          << side << " rlineto " << -side << " 0 rlineto fill\n";
    output.write(words.str());
    output.tell(line.points.size());
}

void circle(const Drawing_Line& line, const Placement& place, Plot_Output& output) {
    const Drawing_Point at = place(line.points.front());
    std::ostringstream words = plain_words();
    words << "newpath " << at.x << ' ' << at.y << ' ' << line.radius * place.scale() << " 0 360 arc stroke\n";
    output.write(words.str());
    output.tell(1);
}

void stroke(const Drawing_Line& line, const Placement& place, const PX_Plotter_Options& options,
            Plot_Output& output) {
    // What an old interpreter takes in one path.
    constexpr std::size_t longest_path = 1000;
    std::ostringstream look = plain_words();
    look << line.colour.red / 255.0 << ' ' << line.colour.green / 255.0 << ' ' << line.colour.blue / 255.0
         << " setrgbcolor " << line.width * place.scale() << " setlinewidth [";
    for (const double length : line.dashes)
        look << length * place.scale() << ' ';
    look << "] 0 setdash\n";
    output.write(look.str());
    if (line.radius > 0)
        return circle(line, place, output);
    if (line.is_dot() && options.fat_dots_as_squares())
        return dot_as_square(line, place, output);
    // Each path begins where the one before ended.
    for (std::size_t begin = 0; begin + 1 < line.points.size(); begin += longest_path) {
        const std::size_t end = std::min(begin + longest_path, line.points.size() - 1);
        std::ostringstream path = plain_words();
        for (std::size_t at = begin; at <= end; ++at) {
            const Drawing_Point point = place(line.points[at]);
            path << point.x << ' ' << point.y << (at == begin ? " moveto\n" : " lineto\n");
        }
        output.write(path.str() + "stroke\n");
        output.tell(end - begin);
    }
    output.tell(1);
}

}  // namespace

PX_Smart_Pointer<PX_Plotter_Definition> Ppd_Driver::open(const std::filesystem::path& device,
                                                         PX_Smart_Pointer<PX_Error_Handler> handler) const {
    return open_ppd_device(device, std::move(handler));
}

std::vector<PX_Device_Finding> Ppd_Driver::check(const PX_Plotter_Definition& device) const {
    std::vector<PX_Device_Finding> findings = Driver::check(device);
    std::erase_if(findings, [](const PX_Device_Finding& finding) {
        return finding.fault == PX_Device_Fault::Memory_Default;
    });
    return findings;
}

void Ppd_Driver::set_up_job(const PX_Plotter_Definition& device, Plot_Output& output) const {
    output.write(ppd_settings_code(ppd_file_of(device), device, Ppd_Section::Job_Control));
}

Driver::Draw Ppd_Driver::prepare(const PX_Plotter_Definition& device, const Drawing& drawing,
                                 const PX_Plotter_Options& options) const {
    const Placement place(drawing, device);
    return [&device, &drawing, &options, place](Plot_Output& output) {
        output.write(beginning(device, place));
        for (const Drawing_Line& line : drawing.lines)
            stroke(line, place, options, output);
        output.write("showpage\n%%Trailer\n%%EOF\n");
    };
}
