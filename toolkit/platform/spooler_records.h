#pragma once

#include <cstddef>
#include <cwchar>
#include <memory>
#include <new>
#include <span>

#include "toolkit/platform/platform.h"

// What the enumerations of the print spooler give, and how a port is found in it.

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

// Whether the first `length` characters are the same but for the case of the letters A to Z; a text that ends
// before matches only one that ends there too.
inline bool px_same_ignoring_case(const wchar_t* a, const wchar_t* b, std::size_t length) {
    const auto lower = [](wchar_t c) { return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + 32) : c; };
    for (; length > 0; --length, ++a, ++b) {
        if (lower(*a) != lower(*b))
            return false;
        if (!*a)
            return true;
    }
    return true;
}

inline bool px_begins_ignoring_case(const wchar_t* text, const wchar_t* beginning) {
    return px_same_ignoring_case(text, beginning, std::wcslen(beginning));
}

// Whether one of the ports, which are separated by commas, agrees with `port` in its first `length`
// characters. The list is cut behind each port that is looked at: who comes later sees the first one only.
inline bool px_lists_port(wchar_t* ports, const wchar_t* port, std::size_t length) {
    while (true) {
        while (*ports == L',')
            ++ports;
        if (!*ports)
            return false;
        const wchar_t* const token = ports;
        while (*ports && *ports != L',')
            ++ports;
        if (*ports)
            *ports++ = L'\0';
        if (px_same_ignoring_case(token, port, length))
            return true;
    }
}
