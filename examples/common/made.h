#pragma once

#include "toolkit/marvcon/marvcon.h"

// Takes what a creator or a new expression has made. Without memory that is null, and here
// MVNK_Memory_Exception 1101 with `what` as detail.
template <class T>
PX_Smart_Pointer<T> made(T* object, const wchar_t* what) {
    if (!object)
        throw MVNK_Memory_Exception(PX_Code::No_Memory, L"made", what);
    return PX_Smart_Pointer<T>(object);
}

// The same, of a catalogue's object under its name and the text that is shown for it.
template <class T>
PX_Smart_Pointer<T> made_named(T* object, const wchar_t* what, const wchar_t* name, const wchar_t* shown) {
    auto named = made(object, what);
    named->set_canonical_name(name);
    named->set_localized_name(shown);
    return named;
}
