#pragma once

#include <memory>
#include <new>

#include "toolkit/core/frame.h"

// A new object of the standard class with its properties copied by `copy(new_one)`, which uses the new
// object's setters. No memory for it or for what it holds is MVNK_Memory_Exception 1101, detail "new_one";
// what fails on the way deletes the new object and passes through the frame of `function`.
template <class Std, class Copy>
Std* px_clone(const wchar_t* function, const wchar_t* file, Copy&& copy) {
    try {
        std::unique_ptr<Std> new_one(px_frame(function, [] { return new Std; }));
        if (new_one) {
            px_frame(function, [&] { copy(*new_one); });
            return new_one.release();
        }
    } catch (const std::bad_alloc&) {
    }
    throw MVNK_Memory_Exception(PX_Code::No_Memory, function, L"new_one", file);
}
