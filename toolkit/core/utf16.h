#pragma once

#include <utility>

// Reads a wide text as 16-bit characters one by one, however wide the machine's own are. Past the end every
// character is 0; null is the empty text. The text is the caller's.
class PX_UTF16_Reader {
public:
    explicit PX_UTF16_Reader(const wchar_t* text) : m_next(text ? text : L"") {}

    bool is_at_end() const { return !m_low_half && !*m_next; }
    // What no Unicode character is reads as the replacement character.
    char16_t next() {
        if (m_low_half)
            return std::exchange(m_low_half, u'\0');
        if (!*m_next)
            return u'\0';
        const auto character = static_cast<char32_t>(*m_next++);
        if (character < 0x10000)
            return static_cast<char16_t>(character);
        if (character > 0x10FFFF)
            return u'\xFFFD';
        m_low_half = static_cast<char16_t>(0xDC00 + (character & 0x3FF));
        return static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
    }

private:
    const wchar_t* m_next;
    char16_t m_low_half = u'\0';  // of the character that was read last, if it is due
};
