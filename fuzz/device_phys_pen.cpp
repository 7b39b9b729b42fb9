#include <algorithm>
#include <cwchar>
#include <set>

#include "fuzz/device.h"

namespace fuzz {

namespace {

// A driver's pen, which takes any width, also one that is no number.
class Any_Pen : public PX_Std_Pen {
public:
    float get_pen_width() const override { return m_width; }
    void set_pen_width(float width) override { m_width = width; }
    PX_Pen* clone() const override {
        auto* const copy = support::named<Any_Pen>(get_canonical_name());
        copy->set_pen_speed(get_pen_speed());
        copy->set_pen_width(m_width);
        return copy;
    }

private:
    float m_width = 0;
};

PX_Pen* pen(Input& input) {
    constexpr const wchar_t* names[] = {L"1", L"2", L"3", L"4", L"5",  L"6",          L"7",
                                        L"8", L"9", L"x", L"",  L"01", L"99999999999"};
    if (input.rarely())
        return nullptr;
    const wchar_t* const name = input.one_of(names);
    PX_Pen* const pen = input.rarely() ? support::named<Any_Pen>(name) : support::named<PX_Std_Pen>(name);
    set_all(input, *pen, &PX_Pen::set_pen_width, &PX_Pen::set_pen_speed);
    return pen;
}

}  // namespace

// Whatever becomes the number of pens stays small: a list is made of that many.
void fill(Input& input, PX_PhysPen_Capabilities& caps, PX_PhysPen_Configuration& cfg) {
    using Caps = PX_PhysPen_Capabilities;
    using Cfg = PX_PhysPen_Configuration;
    fill_abilities(input, caps);
    attempt([&] { caps.set_max_number_of_physical_pens(input.rarely() ? input.number() : input.up_to(40)); });
    caps.set_default_num_of_phys_pens(input.up_to(40));
    // The greatest width and speed once more: the defaults may then be outside.
    set_all(input, caps, &Caps::set_max_pen_width, &Caps::set_min_pen_width, &Caps::set_max_pen_speed,
            &Caps::set_min_pen_speed, &Caps::set_max_pen_optimization, &Caps::set_default_pen_width,
            &Caps::set_default_pen_speed, &Caps::set_default_pen_optimization,
            &Caps::set_area_fill_correction, &Caps::set_max_pen_width, &Caps::set_max_pen_speed,
            &Caps::set_max_pen_optimization);
    PX_Named_Object_List<PX_Pen> pens;
    for (int left = input.up_to(8); left > 0; --left)
        pens.append(pen(input));
    cfg.set_physical_pen_list(input.rarely() ? nullptr : &pens);
    cfg.set_number_of_physical_pens(input.up_to(50));
    set_all(input, cfg, &Cfg::set_pen_changing_enable, &Cfg::set_area_fill_correction,
            &Cfg::set_pen_optimization);
}

void tell(std::wostream& out, const PX_PhysPen_Configuration& cfg) {
    tell_all(out, cfg.get_number_of_physical_pens(), cfg.get_pen_changing_enable(),
             cfg.get_area_fill_correction(), cfg.get_pen_optimization());
    const auto pens = cfg.get_physical_pen_list();
    if (!pens)
        return tell_all(out, L"no list");
    for (const auto& pen : *pens) {
        if (pen)
            tell_all(out, pen->get_canonical_name(), pen->get_pen_width(), pen->get_pen_speed());
        else
            tell_all(out, L"no pen");
    }
}

void check(const PX_PhysPen_Capabilities& caps, const PX_PhysPen_Configuration& before,
           const PX_PhysPen_Configuration& cfg) {
    using Ability = PX_Pen_Ability_Flags;
    using Datum = PX_Pen_Config_Flags;
    const auto is_required = [&](Ability::Enum ability) {
        return caps.get_one_ability(ability) == PX_Ability_Value::Ability_Required;
    };
    const auto is_checked = [&](Ability::Enum ability, Datum::Enum datum) {
        return is_required(ability) && !before.get_one_validated(datum);
    };
    const long most = caps.get_max_number_of_physical_pens(), number = cfg.get_number_of_physical_pens();
    if (is_checked(Ability::Pen_Ability_Changing, Datum::Pen_Config_Changing))
        require(!cfg.get_pen_changing_enable() || most <= 1, "the pens of a carousel are not changed");
    if (is_checked(Ability::Pen_Ability_Area_Fill, Datum::Pen_Config_Area_Fill))
        require(!cfg.get_area_fill_correction() || caps.get_area_fill_correction(), "the area fill is there");
    if (is_checked(Ability::Pen_Ability_Optimization_Check, Datum::Pen_Config_Optimization) &&
        is_required(Ability::Pen_Ability_Optimization))
        require(cfg.get_pen_optimization() <= caps.get_max_pen_optimization(), "the level of optimization");
    // Without a list the default leaves the number.
    if (!is_required(Ability::Pen_Ability_List))
        return;
    if (is_checked(Ability::Pen_Ability_Number, Datum::Pen_Config_Number))
        require(number <= most, "the number of pens");
    if (!is_checked(Ability::Pen_Ability_List, Datum::Pen_Config_List))
        return;
    const auto pens = cfg.get_physical_pen_list();
    if (number == 0)
        return require(!pens || pens->is_empty(), "no pens, no list");
    std::set<long> numbers;
    require(pens.get() != nullptr, "there is a list");
    for (const auto& pen : *pens) {
        const long its_number = pen ? std::wcstol(pen->get_canonical_name(), nullptr, 10) : 0;
        require(!pen || (its_number >= 1 && its_number <= std::max(most, number)), "the number of a pen");
        require(!pen || numbers.insert(its_number).second, "no two pens of one number");
    }
}

}  // namespace fuzz
