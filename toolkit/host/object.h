#pragma once

#include <cstddef>
#include <new>

#include "toolkit/host/export.h"

// The root of nearly all classes. It holds no count: counts live in the pool behind PX_Smart_Pointer.
//
// A new expression on a derived class gives a null pointer when there is no memory; it throws no
// std::bad_alloc of its own. Whoever allocates a PX_Object tests the result.
class PX_EXPORT PX_Object {
public:
    PX_Object() = default;
    PX_Object(const PX_Object&) = default;
    PX_Object& operator=(const PX_Object&) = default;
    virtual ~PX_Object();

    static void* operator new(std::size_t size) noexcept;
    static void* operator new(std::size_t size, const std::nothrow_t&) noexcept;
    static void* operator new(std::size_t size, void* place) noexcept;
    static void operator delete(void* block) noexcept;
    static void operator delete(void* block, const std::nothrow_t&) noexcept;
    static void operator delete(void* block, void* place) noexcept;
};
