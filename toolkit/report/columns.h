#pragma once

#include <algorithm>
#include <array>
#include <ostream>
#include <string>
#include <vector>

// In characters: the bytes of UTF-8 that begin one.
inline std::size_t px_width_of(const std::string& utf8) {
    return static_cast<std::size_t>(std::ranges::count_if(utf8, [](char c) { return (c & 0xC0) != 0x80; }));
}

// Lines whose cells stand below each other. The last column may be as wide as it likes.
template <std::size_t count>
void px_print_columns(std::ostream& out, const std::vector<std::array<std::string, count>>& lines) {
    std::array<std::size_t, count> widths{};
    for (const auto& line : lines) {
        for (std::size_t column = 0; column < count; ++column)
            widths[column] = std::max(widths[column], px_width_of(line[column]));
    }
    for (const auto& line : lines) {
        for (std::size_t column = 0; column + 1 < count; ++column)
            out << line[column] << std::string(widths[column] + 2 - px_width_of(line[column]), ' ');
        out << line.back() << '\n';
    }
}
