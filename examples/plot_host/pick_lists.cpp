#include "examples/plot_host/pick_lists.h"

#include <memory>
#include <string>

#include "toolkit/report.h"

namespace plot_host {
namespace {

std::string shown(const wchar_t* name) {
    return px_on_one_line(name);
}

// The list for the modes with undithered colours, then that for those without.
template <class Prepare, class Print>
void print_both(std::ostream& out, const char* what, Prepare prepare, Print print) {
    for (const bool undithered : {true, false}) {
        const auto list = prepare(undithered);
        out << what << " of the modes " << (undithered ? "with" : "without") << " undithered colours"
            << (list->is_empty() ? ": none\n" : "\n");
        const std::unique_ptr<typename std::decay_t<decltype(*list)>::iterator> each(list->get_iterator());
        while (each && each->has_next())
            print(*each->next());
    }
}

}  // namespace

void print_resolutions(std::ostream& out, const PX_Plotter_Definition& device) {
    const auto color = device.get_plotter_capabilities()->get_res_color_mem_capabilities();
    print_both(
        out, "Resolutions", [&](bool undithered) { return color->get_prepared_resolutions(undithered); },
        [&](const PX_RCM_ResName& entry) {
            out << "    " << entry.resolution_x << " x " << entry.resolution_y << "  " << shown(entry.name)
                << '\n';
        });
}

void print_colors(std::ostream& out, const PX_Plotter_Definition& device) {
    const auto color = device.get_plotter_capabilities()->get_res_color_mem_capabilities();
    print_both(
        out, "Colours", [&](bool undithered) { return color->get_prepared_num_colors(undithered); },
        [&](const PX_RCM_PreparedColorCountDepth& entry) {
            out << "    " << entry.num_colors << " at " << entry.color_depth << " bits  "
                << shown(entry.localized_name) << '\n';
        });
}

}  // namespace plot_host
