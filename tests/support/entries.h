#pragma once

#include "toolkit/marvcon/marvcon.h"

// Entries of any catalogue.
namespace support {

using Strategy = PX_Validation_Strategy;

// A number as any of the enumerations, most of whose values only drivers name.
struct Number {
    int value;
    template <class Enum>
    operator Enum() const {
        return static_cast<Enum>(value);
    }
};

template <class Entry>
Entry* named(const wchar_t* name) {
    auto* const entry = new Entry;
    entry->set_canonical_name(name);
    return entry;
}

template <class Entry>
void withdraw(const PX_Smart_Pointer<Entry>& entry) {
    entry->set_caps_type(PX_Caps_Type::Caps_Type_Withdrawn);
}

template <class Entry>
void drop(const PX_Smart_Pointer<PX_Named_Object_List<Entry>>& list, const wchar_t* name) {
    list->remove(list->find(name).get());
}

}  // namespace support
