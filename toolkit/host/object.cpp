#include "toolkit/host/object.h"

#include <new>

PX_Object::~PX_Object() = default;

void* PX_Object::operator new(std::size_t size) noexcept {
    return ::operator new(size, std::nothrow);
}

void* PX_Object::operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return operator new(size);
}

void* PX_Object::operator new(std::size_t /*size*/, void* place) noexcept {
    return place;
}

void PX_Object::operator delete(void* block) noexcept {
    ::operator delete(block);
}

void PX_Object::operator delete(void* block, const std::nothrow_t&) noexcept {
    operator delete(block);
}

void PX_Object::operator delete(void* /*block*/, void* /*place*/) noexcept {
}
