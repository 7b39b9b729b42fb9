#pragma once

#include <utility>

#include "toolkit/core/exception.h"

// Adds `name` to a passing exception's trace and throws it on as a plain PX_Exception. That a severe error or
// a warning reads as an error afterwards is meant.
[[noreturn]] inline void px_pass_on(PX_Exception& passing, const wchar_t* name) {
    passing.push_frame(name);
    throw PX_Exception(passing);
}

// The frame of a named function round a call that may fail, not round the function's own throws. `name` is a
// literal.
template <class Call>
decltype(auto) px_frame(const wchar_t* name, Call&& call) {
    try {
        return std::forward<Call>(call)();
    } catch (PX_Exception& passing) {
        px_pass_on(passing, name);
    }
}

// The same for a function that lets a memory exception keep its class.
template <class Call>
decltype(auto) px_memory_frame(const wchar_t* name, Call&& call) {
    try {
        return std::forward<Call>(call)();
    } catch (MVNK_Memory_Exception& passing) {
        passing.push_frame(name);
        throw MVNK_Memory_Exception(passing);
    } catch (PX_Exception& passing) {
        px_pass_on(passing, name);
    }
}
