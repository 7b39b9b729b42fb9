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
void fill(Input& input, PX_Plotter_IO_Capabilities& caps, PX_Plotter_IO_Configuration& cfg);
void fill(Input& input, PX_ResColorMem_Capabilities& caps, PX_ResColorMem_Configuration& cfg);
void fill(Input& input, PX_InitTerm_Capabilities& caps, PX_InitTerm_Configuration& cfg);
void fill(Input& input, PX_Custom_Capabilities& caps, PX_Custom_Configurations& cfg);

// All data of a configuration, but for the flags.
void tell(std::wostream& out, const PX_Media_Configuration& cfg);
void tell(std::wostream& out, const PX_Plotter_IO_Configuration& cfg);
void tell(std::wostream& out, const PX_ResColorMem_Configuration& cfg);
void tell(std::wostream& out, const PX_InitTerm_Configuration& cfg);
void tell(std::wostream& out, const PX_Custom_Configurations& cfg);

inline void tell(std::wostream& out, const PX_Float_XY* pair) {
    if (pair)
        out << pair->x << L' ' << pair->y;
    out << L'|';
}
inline void tell(std::wostream& out, const PX_Float_Rectangle* bounds) {
    if (bounds)
        out << bounds->x_min << L' ' << bounds->x_max << L' ' << bounds->y_min << L' ' << bounds->y_max;
    out << L'|';
}
// Texts and numbers.
template <class... Values>
void tell_all(std::wostream& out, const Values&... values) {
    static_cast<void>((out << ... << (out << values, L'|')));
}

// For a call that may refuse what it is given.
template <class Call>
void attempt(Call call) {
    try {
        call();
    } catch (const PX_Exception&) {
    }
}

inline PX_Caps_Type::Enum caps_type(Input& input) {
    return input.rarely() ? Number{input.up_to(5) - 1} : Number{0};
}
inline PX_Float_XY pair(Input& input) {
    const float x = input.real();
    return {x, input.real()};
}
inline PX_Float_Rectangle rectangle(Input& input) {
    const PX_Float_XY x = pair(input), y = pair(input);
    return {x.x, x.y, y.x, y.y};
}

// Appends up to three entries, each filled by `fill_entry(input, entry)`.
template <class Std, template <class> class List, class Entry, class Fill_Entry>
void append(Input& input, const PX_Smart_Pointer<List<Entry>>& list, Fill_Entry fill_entry) {
    for (int left = input.up_to(3); left > 0; --left) {
        const PX_Smart_Pointer<Entry> entry(new Std);
        if constexpr (requires { entry->set_canonical_name(L""); })
            entry->set_canonical_name(input.name());
        entry->set_caps_type(caps_type(input));
        fill_entry(input, *entry);
        list->append(entry);
    }
}
inline void append_names(Input& input,
                         const PX_Smart_Pointer<PX_Named_Object_List<PX_Caps_Name_List_Object>>& list) {
    append<PX_Std_Caps_Name_List_Object>(input, list, [](Input&, PX_Caps_Name_List_Object&) {});
}
// Has some entries change after they were chosen.
template <class List, class Fill_Entry>
void spoil(Input& input, const PX_Smart_Pointer<List>& list, Fill_Entry fill_entry) {
    if (!list || !input.rarely(4))
        return;
    for (const auto& entry : *list) {
        if (input.rarely(4))
            entry->set_caps_type(Number{input.up_to(4)});
        if (input.rarely(4))
            fill_entry(input, *entry);
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
