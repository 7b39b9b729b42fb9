#include "tests/support/allocations.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t allocations = 0;
int successes_left = -1;  // -1: no failure is ordered
bool fails_for_good = false;

void* allocate(std::size_t size) {
    ++allocations;
    if (successes_left == 0) {
        successes_left = fails_for_good ? 0 : -1;
        return nullptr;
    }
    if (successes_left > 0)
        --successes_left;
    return std::malloc(size ? size : 1);
}

}  // namespace

void* operator new(std::size_t size) {
    if (void* const block = allocate(size))
        return block;
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}

void* operator new[](std::size_t size) {
    return operator new(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}

void operator delete[](void* block) noexcept {
    std::free(block);
}

void operator delete[](void* block, std::size_t) noexcept {
    std::free(block);
}

namespace support {

std::size_t allocation_count() {
    return allocations;
}

Out_Of_Memory::Out_Of_Memory(int successes, bool for_good) {
    fails_for_good = for_good;
    successes_left = successes;
}

Out_Of_Memory::~Out_Of_Memory() {
    successes_left = -1;
}

}  // namespace support
