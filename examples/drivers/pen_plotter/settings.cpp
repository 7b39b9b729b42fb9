#include "examples/drivers/pen_plotter/settings.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "examples/common/listed_setting.h"
#include "examples/common/made.h"
#include "toolkit/report.h"

namespace {

constexpr const wchar_t* force = L"PenForce";
constexpr double least_force = 10;
constexpr double greatest_force = 66;
constexpr long default_force = 30;

constexpr const wchar_t* ends = L"LineEnds";
struct Ends {
    const wchar_t* name;
    int number;
};
constexpr Ends all_ends[] = {{L"Butt", 1}, {L"Square", 2}, {L"Round", 4}};
constexpr const Ends& default_ends = all_ends[2];

PX_Smart_Pointer<PX_Custom_Capability> force_setting(const PX_Plotter_Class_Factory& factory) {
    auto setting = made_named(factory.MK_Create_Custom_Capability(), L"force", force, L"Pen force (g)");
    setting->set_data_type(PX_Data_Type::Data_Long);
    setting->set_is_range_type(true);
    setting->set_range_min(least_force);
    setting->set_range_max(greatest_force);
    const PX_Std_Long_Custom_Data value(default_force);
    setting->set_default_data_value(&value);
    return setting;
}

PX_Smart_Pointer<PX_Custom_Capability> ends_setting(const PX_Plotter_Class_Factory& factory) {
    std::vector<std::wstring> names;
    for (const Ends& one : all_ends)
        names.emplace_back(one.name);
    return listed_setting(factory, ends, L"Line ends", names, default_ends.name);
}

// The default where the configuration has no value of that kind.
template <class Kind>
Kind chosen(const PX_Plotter_Configuration& configuration, const wchar_t* name, const Kind& otherwise) {
    const auto settings = configuration.get_custom_configuration();
    const auto item = settings ? settings->get_custom(name) : nullptr;
    const PX_Item_Value value = item ? px_item_value_of(*item) : PX_Item_Value();
    const Kind* const found = std::get_if<Kind>(&value);
    return found ? *found : otherwise;
}

}  // namespace

PX_Smart_Pointer<PX_Custom_Capabilities> pen_plotter_settings(const PX_Plotter_Class_Factory& factory) {
    auto settings = made(factory.MK_Create_Custom_Capabilities(), L"custom_capabilities");
    const auto list = settings->get_custom_list();
    list->append(force_setting(factory));
    list->append(ends_setting(factory));
    return settings;
}

long pen_force(const PX_Plotter_Configuration& configuration) {
    return chosen(configuration, force, default_force);
}

int line_ends(const PX_Plotter_Configuration& configuration) {
    const auto name = chosen<std::wstring>(configuration, ends, default_ends.name);
    const auto found = std::ranges::find(all_ends, name, &Ends::name);
    return found == std::end(all_ends) ? default_ends.number : found->number;
}
