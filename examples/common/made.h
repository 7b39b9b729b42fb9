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
