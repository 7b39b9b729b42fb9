#include "examples/drivers/pen_plotter/settings.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "examples/common/made.h"

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
    auto setting = made_named(factory.MK_Create_Custom_Capability(), L"ends", ends, L"Line ends");
    setting->set_data_type(PX_Data_Type::Data_String);
    const auto values = made(factory.MK_Create_Custom_Capability_Value_List(), L"values");
    for (const Ends& one : all_ends) {
        const auto value = made(factory.MK_Create_Custom_Capability_Value(), L"value");
        const PX_Std_String_Custom_Data name(one.name);
        value->set_data_value(&name);
        values->append(value);
    }
    setting->set_num_values(std::ssize(all_ends));
    setting->set_value_list(values.get());
    const PX_Std_String_Custom_Data name(default_ends.name);
    setting->set_default_data_value(&name);
    return setting;
}

// Null where the configuration has no value of that class.
template <class Data>
PX_Smart_Pointer<PX_Custom_Data> value_of(const PX_Plotter_Configuration& configuration,
                                          const wchar_t* name) {
    const auto settings = configuration.get_custom_configuration();
    const auto item = settings ? settings->get_custom(name) : nullptr;
    auto value = item ? item->get_config_value() : nullptr;
    return dynamic_cast<Data*>(value.get()) ? value : nullptr;
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
    const auto value = value_of<PX_Long_Custom_Data>(configuration, force);
    return value ? static_cast<const PX_Long_Custom_Data&>(*value).data() : default_force;
}

int line_ends(const PX_Plotter_Configuration& configuration) {
    const auto value = value_of<PX_String_Custom_Data>(configuration, ends);
    const std::wstring_view name =
        value ? static_cast<const PX_String_Custom_Data&>(*value).data() : default_ends.name;
    const auto found = std::ranges::find(all_ends, name, &Ends::name);
    return found == std::end(all_ends) ? default_ends.number : found->number;
}
