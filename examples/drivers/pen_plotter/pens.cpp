#include "examples/drivers/pen_plotter/pens.h"

#include <cmath>
#include <cwchar>
#include <initializer_list>
#include <iterator>
#include <limits>
#include <utility>

#include "examples/common/made.h"

namespace {

using Ability = PX_Pen_Ability_Flags;
using Value = PX_Ability_Value;

struct Own_Pen {
    const wchar_t* name;
    PX_RGB32 colour;
    float width;
    float speed;
};
const Own_Pen own_pens[] = {
    {L"Black", {0, 0, 0, 255}, 0.35F, 36},     {L"Red", {220, 0, 0, 255}, 0.35F, 36},
    {L"Green", {0, 128, 0, 255}, 0.35F, 36},   {L"Blue", {0, 0, 220, 255}, 0.35F, 36},
    {L"Cyan", {0, 160, 200, 255}, 0.5F, 30},   {L"Magenta", {200, 0, 160, 255}, 0.5F, 30},
    {L"Orange", {240, 140, 0, 255}, 0.5F, 30}, {L"Brown", {120, 70, 30, 255}, 0.7F, 24},
};
constexpr long pen_count = std::size(own_pens);

void furnish(PX_Pen& pen) {
    const long place = place_of(pen);
    if (place < 1 || place > pen_count)
        return;
    const Own_Pen& own = own_pens[place - 1];
    pen.set_localized_name(own.name);
    pen.set_pen_color(&own.colour);
    pen.set_pen_width(own.width);
    pen.set_pen_speed(own.speed);
}

// How the eye weighs the three.
int distance(const PX_RGB32& one, Drawing_Colour other) {
    const int red = one.red - other.red;
    const int green = one.green - other.green;
    const int blue = one.blue - other.blue;
    return 3 * red * red + 6 * green * green + blue * blue;
}

}  // namespace

PX_Smart_Pointer<PX_PhysPen_Capabilities> carousel_capabilities(const PX_Plotter_Class_Factory& factory) {
    auto capabilities = made(factory.MK_Create_Pen_Capabilities(), L"phys_pen_capabilities");
    capabilities->set_max_number_of_physical_pens(pen_count);
    capabilities->set_default_num_of_phys_pens(pen_count);
    capabilities->set_programmable_pen_widths(true);
    capabilities->set_programmable_pen_speeds(true);
    // The greatest before the least, and the defaults last: they hold each other.
    capabilities->set_max_pen_width(2.0F);
    capabilities->set_min_pen_width(0.1F);
    capabilities->set_default_pen_width(0.35F);
    capabilities->set_max_pen_speed(60);
    capabilities->set_min_pen_speed(2);
    capabilities->set_default_pen_speed(36);
    capabilities->set_max_pen_optimization(1);
    capabilities->set_default_pen_optimization(1);
    for (const auto& [flag, value] : std::initializer_list<std::pair<Ability::Enum, Value::Enum>>{
             {Ability::Pen_Ability_Number, Value::Ability_Settable_Listed},
             {Ability::Pen_Ability_List, Value::Ability_Required},
             {Ability::Pen_Ability_Changing, Value::Ability_Settable},
             {Ability::Pen_Ability_Area_Fill, Value::Ability_Settable},
             {Ability::Pen_Ability_Optimization_Check, Value::Ability_Settable},
             {Ability::Pen_Ability_Optimization, Value::Ability_Settable}})
        capabilities->set_one_ability(value, flag);
    return capabilities;
}

void Carousel_Validator::set_pen_list_to_default() {
    PX_Std_PhysPen_Validator::set_pen_list_to_default();
    const auto configuration = m_plotter->get_plotter_configuration()->get_phys_pen_configuration();
    // In place: the list stays the default that it has been made.
    if (const auto pens = configuration->get_physical_pen_list()) {
        for (const auto& pen : *pens)
            furnish(*pen);
    }
}

bool Carousel_Validator::synchronize_pen_list(PX_Smart_Pointer<PX_PhysPen_Capabilities> capabilities,
                                              PX_Smart_Pointer<PX_PhysPen_Configuration> configuration) {
    const auto before = configuration->get_physical_pen_list();
    if (!PX_Std_PhysPen_Validator::synchronize_pen_list(capabilities, configuration))
        return false;
    for (const auto& pen : *configuration->get_physical_pen_list()) {
        if (!before || !before->find(pen->get_canonical_name()))
            furnish(*pen);
    }
    return true;
}

long place_of(const PX_Pen& pen) {
    return std::wcstol(pen.get_canonical_name(), nullptr, 10);
}

PX_Smart_Pointer<PX_Pen> nearest_pen(const PX_PhysPen_Configuration& configuration, Drawing_Colour colour,
                                     double width) {
    PX_Smart_Pointer<PX_Pen> nearest;
    std::pair best{std::numeric_limits<int>::max(), std::numeric_limits<double>::infinity()};
    const auto pens = configuration.get_physical_pen_list();
    if (!pens)
        return nearest;
    for (const auto& pen : *pens) {
        const std::pair here{distance(*pen->get_pen_color(), colour),
                             std::abs(double{pen->get_pen_width()} - width)};
        if (here < best) {
            best = here;
            nearest = pen;
        }
    }
    return nearest;
}
