#pragma once

#include "toolkit/core/smart_pointer.h"

// Where an entry of a catalogue comes from.
struct PX_Caps_Type {
    enum Enum : int {
        Caps_Type_Device = 0,
        Caps_Type_Modified = 1,
        Caps_Type_User = 2,       // defined by the user; delete_user_defined_caps removes such entries
        Caps_Type_Withdrawn = 3,  // stands in its list and is treated as absent
    };
};

// An entry that was found and is not withdrawn.
template <class Entry>
bool px_is_there(const PX_Smart_Pointer<Entry>& entry) {
    return entry && entry->get_caps_type() != PX_Caps_Type::Caps_Type_Withdrawn;
}
