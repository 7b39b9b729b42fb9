#pragma once

#include <climits>
#include <cstddef>
#include <cwchar>
#include <string>
#include <string_view>

// Wide text to UTF-8 and back. What is no character, a lone surrogate or a value above 0x10FFFF, becomes
// U+FFFD.

// Calls `put(char)` for every byte of the character.
template <class Put>
void px_put_utf8(char32_t c, Put& put) {
    if (c > 0x10FFFF || (c & 0xFFFFF800) == 0xD800)
        c = 0xFFFD;
    constexpr char32_t leads[] = {0x00, 0xC0, 0xE0, 0xF0};
    const int tails = c < 0x80 ? 0 : c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    put(static_cast<char>(leads[tails] | c >> (6 * tails)));
    for (int tail = tails - 1; tail >= 0; --tail)
        put(static_cast<char>(0x80 | (c >> (6 * tail) & 0x3F)));
}

template <class Character, class Put>
void px_put_utf8(std::basic_string_view<Character> text, Put put) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        char32_t c = static_cast<char32_t>(text[at]);
        // Characters of 16 bits are UTF-16 units; wider ones stand for themselves, surrogates too.
        if constexpr (sizeof(Character) == 2) {
            if ((c & 0xFC00) == 0xD800 && at + 1 < text.size() && (text[at + 1] & 0xFC00) == 0xDC00)
                c = 0x10000 + ((c & 0x3FF) << 10) + (text[++at] & 0x3FF);
        }
        px_put_utf8(c, put);
    }
}

template <class Character>
std::string px_encode_utf8(std::basic_string_view<Character> text) {
    std::string bytes;
    px_put_utf8(text, [&](char byte) { bytes += byte; });
    return bytes;
}

inline std::string px_to_utf8(std::wstring_view text) {
    return px_encode_utf8(text);
}

// Calls `put(wchar_t)` for all of the text. Bytes that belong to no character become U+FFFD, each by itself.
template <class Put>
void px_put_wide(std::string_view bytes, Put put) {
    while (!bytes.empty()) {
        const auto lead = static_cast<unsigned char>(bytes.front());
        const std::size_t size = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        char32_t c = size == 1 ? lead : lead & (0x7FU >> size);
        std::size_t read = 1;
        for (; read < size && read < bytes.size() && (bytes[read] & 0xC0) == 0x80; ++read)
            c = c << 6 | static_cast<char32_t>(bytes[read] & 0x3F);
        // Each length has a first character; what is below it, or begins with a tail, is no character.
        constexpr char32_t firsts[] = {0, 0x80, 0x800, 0x10000};
        const bool whole = read == size && lead < 0xF8 && (lead & 0xC0) != 0x80 && c >= firsts[size - 1] &&
                           c <= 0x10FFFF && (c & 0xFFFFF800) != 0xD800;
        bytes.remove_prefix(whole ? size : 1);
        if (!whole)
            c = 0xFFFD;
        if (sizeof(wchar_t) == 2 && c > 0xFFFF) {
            put(static_cast<wchar_t>(0xD7C0 + (c >> 10)));
            c = 0xDC00 + (c & 0x3FF);
        }
        put(static_cast<wchar_t>(c));
    }
}

inline std::wstring px_from_utf8(std::string_view bytes) {
    std::wstring text;
    px_put_wide(bytes, [&](wchar_t c) { text += c; });
    return text;
}

// WideCharToMultiByte of a machine whose code pages are all UTF-8. Nothing is written unless all of it fits,
// and nothing is allocated: names of functions are encoded while an exception passes.
inline int px_wide_char_to_utf8(const wchar_t* text, int length, char* bytes, int bytes_size) {
    if (!text || length == 0 || bytes_size < 0)
        return 0;
    const std::size_t characters = length < 0 ? std::wcslen(text) + 1 : static_cast<std::size_t>(length);
    const std::wstring_view view(text, characters);
    std::size_t needed = 0;
    px_put_utf8(view, [&](char) { ++needed; });
    if (needed > INT_MAX)
        return 0;
    if (bytes_size > 0) {
        if (!bytes || needed > static_cast<std::size_t>(bytes_size))
            return 0;
        px_put_utf8(view, [&](char byte) { *bytes++ = byte; });
    }
    return static_cast<int>(needed);
}
