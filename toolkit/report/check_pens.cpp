#include "toolkit/report/domain_checks.h"

using Ability = PX_Pen_Ability_Flags;
using Change = PX_Pen_Change;
using Fault = PX_Device_Fault;

namespace {

constexpr PX_Gate<Ability> gates[] = {{Ability::Pen_Ability_Number, L"number of pens"},
                                      {Ability::Pen_Ability_List, L"list of pens"},
                                      {Ability::Pen_Ability_Changing, L"pen changing"},
                                      {Ability::Pen_Ability_Area_Fill, L"area fill correction"},
                                      {Ability::Pen_Ability_Optimization_Check, L"pen optimization"}};

// A pen that is put to the default, or made anew, is to be valid.
void check_measure_of_pen(float least, float preset, float greatest, const wchar_t* name, bool is_validated,
                          const PX_Findings& found) {
    if (!is_validated)
        return;
    if (least > greatest)
        found.repeats(std::wstring(L"limits of the ") + name, Fault::Limits_Reversed, Change::List);
    else if (preset < least || preset > greatest)
        found.repeats(std::wstring(L"default ") + name, Fault::Default_Out_Of_Range, Change::List);
}

}  // namespace

void px_check_pens(const PX_PhysPen_Capabilities& device, const PX_Plotter_Class_Factory* factory,
                   const PX_Findings& found) {
    const auto of = [&](Ability::Enum flag) { return px_ability_of(device, gates, flag); };
    px_check_gates(device, gates, found);

    // Looked at whatever the abilities are.
    if (device.get_default_num_of_phys_pens() > device.get_max_number_of_physical_pens())
        found.throws(L"default number of pens", Fault::Default_Out_Of_Range, PX_Pen_Code::Default_Number);
    if (device.get_default_pen_optimization() > device.get_max_pen_optimization())
        found.throws(L"default pen optimization", Fault::Default_Out_Of_Range,
                     PX_Pen_Code::Default_Optimization);

    // A list is made for any number, and shortened to the greatest.
    const bool number_has_default =
        of(Ability::Pen_Ability_Number).is_above_none() && of(Ability::Pen_Ability_List).is_required();
    const bool number_is_validated = of(Ability::Pen_Ability_Number).is_validated();
    const bool list_is_validated = of(Ability::Pen_Ability_List).is_validated();
    if (!number_has_default && (number_is_validated || list_is_validated))
        found.repeats(
            L"number of pens", Fault::Default_Not_Written,
            px_bits_if(number_is_validated, Change::Number) | px_bits_if(list_is_validated, Change::List));
    // It makes the lists, an empty one too, and the pens.
    if (list_is_validated && !factory)
        found.throws(L"class factory", Fault::Object_Missing, PX_Code::Null_Argument, L"class_factory");
    const bool pens_are_validated = list_is_validated && device.get_max_number_of_physical_pens() > 0;
    check_measure_of_pen(device.get_min_pen_width(), device.get_default_pen_width(),
                         device.get_max_pen_width(), L"pen width", pens_are_validated, found);
    check_measure_of_pen(device.get_min_pen_speed(), device.get_default_pen_speed(),
                         device.get_max_pen_speed(), L"pen speed", pens_are_validated, found);
    if (of(Ability::Pen_Ability_Optimization_Check).is_validated() &&
        !of(Ability::Pen_Ability_Optimization).is_above_none())
        found.repeats(L"pen optimization", Fault::Default_Not_Written, Change::Optimization);
}
