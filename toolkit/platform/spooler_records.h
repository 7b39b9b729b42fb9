#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <span>

#include "toolkit/platform/win_types.h"

// What the enumerations of the print spooler give.

// The records of one enumeration, with room on the stack for those of most machines.
template <class Record>
class PX_Spooler_Records {
public:
    enum class Result { Listed, Failed, No_Memory };

    // `enumerate(BYTE* records, DWORD size, DWORD* needed, DWORD* count)` is asked once, and once more where
    // the first buffer was too small. There are no records unless they were listed.
    template <class Enumerate>
    Result ask(Enumerate enumerate) {
        DWORD needed = 0;
        DWORD count = 0;
        m_records = {};
        BYTE* buffer = m_first;
        BOOL listed = enumerate(buffer, DWORD{sizeof m_first}, &needed, &count);
        if (needed > sizeof m_first) {
            m_larger.reset(new (std::nothrow) BYTE[needed]);
            buffer = m_larger.get();
            if (!buffer)
                return Result::No_Memory;
            count = 0;
            listed = enumerate(buffer, needed, &needed, &count);
        }
        if (!listed)
            return Result::Failed;
        m_records = {reinterpret_cast<Record*>(buffer), count};
        return Result::Listed;
    }

    // The texts may be written into.
    std::span<Record> records() const { return m_records; }

private:
    std::span<Record> m_records;
    std::unique_ptr<BYTE[]> m_larger;
    alignas(std::max_align_t) BYTE m_first[16384];
};
