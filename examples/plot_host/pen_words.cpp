#include "examples/plot_host/pen_words.h"

#include <array>
#include <charconv>
#include <cstdint>

namespace plot_host {

std::string word_of(const PX_RGB32* color) {
    constexpr std::uint8_t opaque = 255;
    const PX_RGB32 shown = color ? *color : PX_RGB32();
    std::string word = "#";
    const auto add = [&word](std::uint8_t part) {
        word.append(1, "0123456789abcdef"[part >> 4]).append(1, "0123456789abcdef"[part & 15]);
    };
    for (const std::uint8_t part : {shown.red, shown.green, shown.blue})
        add(part);
    if (shown.alpha != opaque)
        add(shown.alpha);
    return word;
}

std::optional<PX_RGB32> pen_color_of(std::string_view word) {
    if ((word.size() != 7 && word.size() != 9) || word.front() != '#')
        return std::nullopt;
    std::array<std::uint8_t, 4> parts = {0, 0, 0, 255};
    std::size_t place = 0;
    for (word.remove_prefix(1); !word.empty(); word.remove_prefix(2)) {
        const char* const end = word.data() + 2;
        const auto read = std::from_chars(word.data(), end, parts[place++], 16);
        if (read.ec != std::errc() || read.ptr != end)
            return std::nullopt;
    }
    return PX_RGB32(parts[0], parts[1], parts[2], parts[3]);
}

}  // namespace plot_host
