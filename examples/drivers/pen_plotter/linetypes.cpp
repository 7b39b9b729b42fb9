#include "examples/drivers/pen_plotter/linetypes.h"

#include <cmath>
#include <limits>
#include <numeric>

#include "examples/common/made.h"

namespace {

// The parts of a pattern in hundredths of its length.
struct Linetype {
    int number;
    float size;
    std::vector<double> parts;
};
const Linetype own_linetypes[] = {
    {1, 2, {0, 100}},         // dots
    {2, 4, {50, 50}},         // dashes
    {3, 4, {70, 30}},         // longer ones
    {4, 8, {80, 10, 0, 10}},  // with a dot
    {5, 8, {70, 10, 10, 10}}, {6, 10, {50, 10, 10, 10, 10, 10}},
};

// How much of a line's length is drawn other than the dashes ask for. The more parts differ in number, the
// less alike they are.
double difference(const Linetype& linetype, const std::vector<double>& dashes, double length) {
    const auto count = static_cast<double>(linetype.parts.size());
    double sum = 100 * std::abs(count - static_cast<double>(dashes.size()));
    for (std::size_t at = 0; at < linetype.parts.size() && at < dashes.size(); ++at)
        sum += std::abs(linetype.parts[at] - dashes[at] * 100 / length);
    return sum;
}

}  // namespace

PX_Smart_Pointer<PX_Linetype_Capabilities> pen_plotter_linetypes(const PX_Plotter_Class_Factory& factory) {
    auto capabilities = made(factory.MK_Create_Linetype_Capabilities(), L"linetype_capabilities");
    for (const Linetype& linetype : own_linetypes) {
        const auto pattern = static_cast<PX_Line_Pattern::Enum>(linetype.number);
        capabilities->set_linefont_capability(true, pattern);
        capabilities->set_linefont_size(pattern, linetype.size);
    }
    return capabilities;
}

int nearest_linetype(const PX_Linetype_Capabilities& linetypes, const std::vector<double>& dashes) {
    const double length = std::accumulate(dashes.begin(), dashes.end(), 0.0);
    int nearest = 0;
    if (!(length > 0))
        return nearest;
    double least = std::numeric_limits<double>::infinity();
    for (const Linetype& linetype : own_linetypes) {
        const double here = difference(linetype, dashes, length);
        if (linetypes.get_linefont_capability(static_cast<PX_Line_Pattern::Enum>(linetype.number)) &&
            here < least) {
            least = here;
            nearest = linetype.number;
        }
    }
    return nearest;
}
