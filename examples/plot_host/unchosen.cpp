#include "examples/plot_host/unchosen.h"

#include <sstream>
#include <string>

namespace plot_host {
namespace {

// By number, such as "0 (size 5), 3 (size 2.5)".
std::string patterns_of(const PX_Linetype_Capabilities& lines) {
    std::ostringstream words;
    for (int number = 0; number < PX_Line_Pattern::count; ++number) {
        const auto pattern = static_cast<PX_Line_Pattern::Enum>(number);
        if (lines.get_linefont_capability(pattern))
            words << (words.view().empty() ? "" : ", ") << number << " (size "
                  << lines.get_linefont_size(pattern) << ')';
    }
    return words.view().empty() ? "none" : words.str();
}

}  // namespace

void print_unchosen(std::ostream& out, const PX_Plotter_Definition& device) {
    const auto capabilities = device.get_plotter_capabilities();
    const auto lines = capabilities->get_linetype_capabilities();
    const auto raster = capabilities->get_raster_capabilities();
    out << "The device draws these line patterns by itself: " << (lines ? patterns_of(*lines) : "none")
        << "\nIts raster orientation is "
        << (raster ? std::to_string(raster->get_orientation_prefs()) : "not told") << ".\n";
}

}  // namespace plot_host
