#include "examples/common/text.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cwchar>

#include "toolkit/report.h"

namespace text {
namespace {

struct Character {
    char32_t number;
    std::size_t length;  // in bytes
};

Character first_character(std::string_view bytes) {
    const auto byte = [&](std::size_t at) {
        return static_cast<char32_t>(static_cast<unsigned char>(bytes[at]));
    };
    const char32_t lead = byte(0);
    const Character as_latin_1{lead, 1};
    const std::size_t tails = lead < 0xC0 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    if (tails == 0 || lead > 0xF4 || bytes.size() <= tails)
        return as_latin_1;
    char32_t number = lead & (0x3FU >> tails);
    for (std::size_t at = 1; at <= tails; ++at) {
        if ((byte(at) & 0xC0) != 0x80)
            return as_latin_1;
        number = number << 6 | (byte(at) & 0x3F);
    }
    constexpr std::array<char32_t, 4> lowest = {0, 0x80, 0x800, 0x10000};
    const bool surrogate = (number & 0xFFFFF800) == 0xD800;
    return number < lowest[tails] || number > 0x10FFFF || surrogate ? as_latin_1
                                                                    : Character{number, tails + 1};
}

}  // namespace

std::u32string characters_of(std::string_view bytes) {
    std::u32string characters;
    while (!bytes.empty()) {
        const Character next = first_character(bytes);
        characters += next.number;
        bytes.remove_prefix(next.length);
    }
    return characters;
}

std::string to_utf8(std::u32string_view characters) {
    std::string bytes;
    for (const char32_t number : characters) {
        constexpr std::array<char32_t, 4> leads = {0x00, 0xC0, 0xE0, 0xF0};
        const unsigned tails = number < 0x80 ? 0 : number < 0x800 ? 1 : number < 0x10000 ? 2 : 3;
        bytes += static_cast<char>(leads[tails] | number >> (6 * tails));
        for (unsigned tail = tails; tail-- > 0;)
            bytes += static_cast<char>(0x80 | (number >> (6 * tail) & 0x3F));
    }
    return bytes;
}

std::wstring from_utf8(std::string_view bytes) {
    std::wstring wide;
    for (char32_t number : characters_of(bytes)) {
        if (number > WCHAR_MAX) {
            wide += static_cast<wchar_t>(0xD7C0 + (number >> 10));
            number = 0xDC00 + (number & 0x3FF);
        }
        wide += static_cast<wchar_t>(number);
    }
    return wide;
}

std::string to_utf8(std::wstring_view wide) {
    std::u32string characters;
    for (const wchar_t unit : wide) {
        const auto number = static_cast<char32_t>(unit);
        const bool ends_pair = sizeof(wchar_t) == 2 && (number & 0xFC00) == 0xDC00 && !characters.empty() &&
                               (characters.back() & 0xFFFFFC00) == 0xD800;
        if (ends_pair)
            characters.back() = 0x10000 + ((characters.back() & 0x3FF) << 10) + (number & 0x3FF);
        else
            characters += number;
    }
    return to_utf8(characters);
}

std::string on_one_line(std::string_view bytes) {
    return px_on_one_line(from_utf8(bytes));
}

std::string shortest(float number) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    return {digits.begin(), end};
}

}  // namespace text
