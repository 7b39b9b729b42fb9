#include "toolkit/marvcon/std_res_color_mem_cfg/nearest.h"

#include <cmath>
#include <limits>

#include "toolkit/marvcon/std_res_color_mem_cfg/datum.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/validator.h"

// The searches for what comes nearest to the snapshot. On a tie the earlier entry stays.

namespace {

// Exact for numbers of 32 bits, and defined for all.
double apart(long one, long other) {
    return std::fabs(static_cast<double>(one) - static_cast<double>(other));
}

// The number of colours counts for a tenth, since it is so much the larger.
double distance(const PX_ResColorMem& mode, const PX_ResColorMem_Settings& had) {
    const float colors = static_cast<float>(apart(mode.get_num_colors(), had.get_num_colors())) * 0.1F;
    double distance = double{colors};
    distance += apart(mode.get_color_depth(), had.get_color_depth());
    distance += apart(mode.get_num_undithered_colors(), had.get_num_undithered_colors());
    // For every candidate, whatever its own system, so that the ranking stays. That is meant.
    const int system = had.get_color_system();
    if (system >= PX_Color_System::Color_System_0 && system <= PX_Color_System::Color_System_4)
        distance += 100.0;
    return distance;
}

// The effective resolution counts in full, the physical half and the addressable a tenth.
float distance(const PX_Resolution& resolution, const PX_ResColorMem_Settings& had) {
    const auto physical = resolution.get_phys_resolution_xy();
    const auto addressable = resolution.get_addr_resolution_xy();
    const auto effective = resolution.get_effective_resolution_xy();
    const auto had_physical = had.get_phys_resolution_xy();
    const auto had_addressable = had.get_addr_resolution_xy();
    const auto had_effective = had.get_effective_resolution_xy();
    float distance = 0.5F * std::fabs(physical->x - had_physical->x);
    distance += 0.5F * std::fabs(physical->y - had_physical->y);
    distance += 0.1F * std::fabs(addressable->x - had_addressable->x);
    distance += 0.1F * std::fabs(addressable->y - had_addressable->y);
    distance += std::fabs(effective->x - had_effective->x);
    distance += std::fabs(effective->y - had_effective->y);
    return distance;
}

// The name of the entry that is nearest, and nearer than `farthest`; empty when there is none.
template <class Entry, class Distance>
PX_String nearest_name(const PX_Smart_Pointer<PX_Named_Object_List<Entry>>& list,
                       const PX_ResColorMem_Settings& had, Distance farthest) {
    const Entry* best = nullptr;
    Distance best_distance = farthest;
    if (list) {
        for (const auto& entry : *list) {
            if (!px_is_there(entry))
                continue;
            const Distance here = distance(*entry, had);
            if (best_distance > here) {
                best_distance = here;
                best = entry.get();
            }
        }
    }
    return best ? best->get_canonical_name() : L"";
}

}  // namespace

double px_color_mode_score(const PX_ResColorMem_Settings& had, const PX_ResColorMem& mode) {
    return distance(mode, had);
}

float px_resolution_score(const PX_ResColorMem_Settings& had, const PX_Resolution& resolution) {
    return distance(resolution, had);
}

void PX_Std_ResColorMem_Validator::set_res_color_mem_to_nearest() {
    const PX_RCM_Datum datum(m_plotter, L"PX_Std_ResColorMem_Validator::set_res_color_mem_to_nearest");
    const PX_String name =
        nearest_name(datum.capabilities->get_res_color_mem_list(), *px_rcm_snapshot(datum), 2147483647.0);
    datum.configuration->set_res_color_mem(datum.capabilities->get_res_color_mem(name).get());
}

void PX_Std_ResColorMem_Validator::set_resolution_to_nearest() {
    const PX_RCM_Datum datum(m_plotter, L"PX_Std_ResColorMem_Validator::set_resolution_to_nearest");
    const auto had = px_rcm_snapshot(datum);
    const auto mode = px_configured_mode(datum);
    if (!mode)
        datum.fail(PX_Code::Null_Argument, L"res_color_mem_list");
    const PX_String name = nearest_name(mode->get_resolution_list(), *had, std::numeric_limits<float>::max());
    datum.configuration->set_resolution(mode->get_resolution(name).get());
}

void PX_Std_ResColorMem_Validator::set_RastColorVsResPref_to_nearest() {
    const PX_RCM_Datum datum(m_plotter, L"PX_Std_ResColorMem_Validator::set_RastColorVsResPref_to_nearest");
    // Called for what is out of range alone.
    const bool is_below = datum.configuration->get_rast_color_vs_res_pref() < 101;
    datum.configuration->set_rast_color_vs_res_pref(is_below ? 0 : 100);
}
