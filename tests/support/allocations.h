#pragma once

#include <cstddef>

// A program that links allocations.cpp has its operator new watched.
namespace support {

// Calls of any operator new since the program began.
std::size_t allocation_count();

// While it lives, operator new fails once, or from then on, after `successes` more calls of it.
class Out_Of_Memory {
public:
    explicit Out_Of_Memory(int successes = 0, bool for_good = false);
    ~Out_Of_Memory();
    Out_Of_Memory(const Out_Of_Memory&) = delete;
    Out_Of_Memory& operator=(const Out_Of_Memory&) = delete;
};

}  // namespace support
