#pragma once

#include <sstream>

#include "fuzz/support.h"
#include "tests/support/device.h"
#include "tests/support/entries.h"

// Devices and choices made out of an input, a function a domain. What one of them sets up need not fit
// together, and seldom does.
namespace fuzz {

using support::Number;

void fill(Input& input, PX_Media_Capabilities& caps, PX_Media_Configuration& cfg);
void fill(Input& input, PX_PhysPen_Capabilities& caps, PX_PhysPen_Configuration& cfg);
void fill(Input& input, PX_Plotter_IO_Capabilities& caps, PX_Plotter_IO_Configuration& cfg);
void fill(Input& input, PX_ResColorMem_Capabilities& caps, PX_ResColorMem_Configuration& cfg);
void fill(Input& input, PX_InitTerm_Capabilities& caps, PX_InitTerm_Configuration& cfg);
void fill(Input& input, PX_Custom_Capabilities& caps, PX_Custom_Configurations& cfg);

// All data of a configuration, but for the flags.
void tell(std::wostream& out, const PX_Media_Configuration& cfg);
void tell(std::wostream& out, const PX_PhysPen_Configuration& cfg);
void tell(std::wostream& out, const PX_Plotter_IO_Configuration& cfg);
void tell(std::wostream& out, const PX_ResColorMem_Configuration& cfg);
void tell(std::wostream& out, const PX_InitTerm_Configuration& cfg);
void tell(std::wostream& out, const PX_Custom_Configurations& cfg);

// What holds after a run that ended well, of the data that had to be validated. `before` is a clone from
// before the run.
void check(const PX_PhysPen_Capabilities& caps, const PX_PhysPen_Configuration& before,
           const PX_PhysPen_Configuration& cfg);

inline void tell_one(std::wostream& out, const PX_Smart_Pointer<PX_Float_XY>& pair) {
    if (pair)
        out << pair->x << L' ' << pair->y;
}
inline void tell_one(std::wostream& out, const PX_Smart_Pointer<PX_Float_Rectangle>& bounds) {
    if (bounds)
        out << bounds->x_min << L' ' << bounds->x_max << L' ' << bounds->y_min << L' ' << bounds->y_max;
}
template <class Value>
void tell_one(std::wostream& out, const Value& text_or_number) {
    out << text_or_number;
}
template <class... Values>
void tell_all(std::wostream& out, const Values&... values) {
    ((tell_one(out, values), out << L'|'), ...);
}

// For a call that may refuse what it is given.
template <class Call>
void attempt(Call call) {
    try {
        call();
    } catch (const PX_Exception&) {
    }
}

// Calls a setter with whatever it takes. A list is at most taken away.
template <class Object, class Contract, class Value>
void set(Input& input, Object& object, void (Contract::*setter)(Value)) {
    const auto give = [&](auto value) { attempt([&] { (object.*setter)(value); }); };
    if constexpr (std::is_same_v<Value, bool>) {
        give(input.flag());
    } else if constexpr (std::is_floating_point_v<Value>) {
        give(input.real());
    } else if constexpr (std::is_enum_v<Value>) {
        give(Number{input.number<int>()});
    } else if constexpr (std::is_integral_v<Value>) {
        give(input.number<Value>());
    } else if constexpr (std::is_same_v<Value, const wchar_t*>) {
        give(input.name_or_null());
    } else if constexpr (std::is_same_v<Value, const PX_Float_XY*>) {
        const float x = input.real();
        const PX_Float_XY pair(x, input.real());
        give(input.rarely() ? nullptr : &pair);
    } else if constexpr (std::is_same_v<Value, const PX_Float_Rectangle*>) {
        const float x_min = input.real(), x_max = input.real(), y_min = input.real();
        const PX_Float_Rectangle bounds(x_min, x_max, y_min, input.real());
        give(input.rarely() ? nullptr : &bounds);
    } else if (input.rarely(32)) {
        give(nullptr);
    }
}
template <class Object, class... Setters>
void set_all(Input& input, Object& object, Setters... setters) {
    (set(input, object, setters), ...);
}

// Appends up to three entries, each filled by `fill(input, entry)`.
template <class Std, class List>
void append(Input& input, const PX_Smart_Pointer<List>& list) {
    for (int left = list ? input.up_to(3) : 0; left > 0; --left) {
        const PX_Smart_Pointer entry(new Std);
        if constexpr (requires { entry->set_canonical_name(L""); })
            entry->set_canonical_name(input.name());
        entry->set_caps_type(input.rarely() ? Number{input.up_to(5) - 1} : Number{0});
        if constexpr (!std::is_same_v<Std, PX_Std_Caps_Name_List_Object>)
            fill(input, *entry);
        list->append(entry.get());
    }
}
// Has some entries change after they were chosen.
template <class List>
void spoil(Input& input, const PX_Smart_Pointer<List>& list) {
    if (!list || !input.rarely(4))
        return;
    for (const auto& entry : *list) {
        if (input.rarely(4))
            entry->set_caps_type(Number{input.up_to(4)});
        if (input.rarely(4))
            fill(input, *entry);
    }
    if (input.rarely(4) && !list->is_empty())
        list->remove((*list->begin()).get());
}

// All of one value, or digit by digit.
template <class Capabilities>
void fill_abilities(Input& input, Capabilities& caps) {
    if (const int value = input.up_to(9); value <= 5)
        return caps.set_abilities(static_cast<PX_Ability_Value::Enum>(value));
    // As many as any domain has, the last one for all that the input leaves.
    std::wstring abilities;
    for (int left = input.up_to(50); left >= 0; --left)
        abilities += static_cast<wchar_t>(L'0' + (input.rarely(64) ? input.up_to(8) - 1 : input.up_to(5)));
    abilities.resize(51, abilities.back());
    caps.set_abilities(abilities.c_str());
}

}  // namespace fuzz
