#include "toolkit/host/object.h"

#include <new>

PX_Object::~PX_Object() = default;

void* PX_Object::operator new(std::size_t size) noexcept {
    return ::operator new(size, std::nothrow);
}

void PX_Object::operator delete(void* block) noexcept {
    ::operator delete(block);
}
