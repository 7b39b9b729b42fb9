#include "toolkit/report/words.h"

#include <array>
#include <charconv>
#include <cstdint>

namespace {

constexpr PX_Word<PX_IO_Type::Enum> types[] = {
    {"none", PX_IO_Type::No_IO_Type},
    {"driver method", PX_IO_Type::Driver_Method},
    {"driver", PX_IO_Type::Driver_Plain},
    {"file", PX_IO_Type::File},
    {"system driver", PX_IO_Type::Driver_System},
    {"serial", PX_IO_Type::Serial},
    {"parallel", PX_IO_Type::Parallel},
    {"network", PX_IO_Type::Network},
};

using Ability = PX_Ability_Value;
constexpr PX_Word<Ability::Enum> abilities[] = {
    {"none", Ability::Ability_None},
    {"fixed", Ability::Ability_Fixed},
    {"settable", Ability::Ability_Settable},
    {"conditional", Ability::Ability_Conditional},
    {"listed", Ability::Ability_Settable_Listed},
    {"required", Ability::Ability_Required},
};

using Handshake = PX_Handshake;
constexpr PX_Word<long> handshakes[] = {
    {"XON/XOFF in", Handshake::Handshake_Xon_In},    {"XON/XOFF out", Handshake::Handshake_Xon_Out},
    {"CTS out", Handshake::Handshake_Cts_Out},       {"RTS off", Handshake::Handshake_Rts_Disable},
    {"RTS on", Handshake::Handshake_Rts_Enable},     {"RTS", Handshake::Handshake_Rts_Handshake},
    {"RTS toggle", Handshake::Handshake_Rts_Toggle}, {"DTR off", Handshake::Handshake_Dtr_Disable},
    {"DTR on", Handshake::Handshake_Dtr_Enable},     {"DTR", Handshake::Handshake_Dtr_Handshake},
    {"DSR out", Handshake::Handshake_Dsr_Out},       {"carrier", Handshake::Handshake_Rlsd},
};

constexpr PX_Word<long> domains[] = {
    {"media", PX_Domain_Mask::Media},
    {"output", PX_Domain_Mask::IO},
    {"pens", PX_Domain_Mask::Phys_Pens},
    {"resolution, colour and memory", PX_Domain_Mask::Res_Color_Mem},
    {"init and term strings", PX_Domain_Mask::Init_Term},
    {"custom data", PX_Domain_Mask::Custom},
    {"raster", PX_Domain_Mask::Raster},
    {"linetypes", PX_Domain_Mask::Linetype},
};

template <std::size_t count>
std::string all_words(const PX_Word<long> (&table)[count], long bits, const char* separator) {
    std::string words = px_take_words(table, bits, separator);
    if (bits != 0)
        words.append(words.empty() ? "" : separator).append("bits " + std::to_string(bits));
    return words.empty() ? "none" : words;
}

}  // namespace

const char* px_word_of(PX_IO_Type::Enum type) {
    return px_word_in(types, type, "none");
}

std::optional<PX_IO_Type::Enum> px_io_type_of(std::string_view word) {
    return px_value_in(types, word);
}

const char* px_word_of(PX_Ability_Value::Enum ability) {
    return px_word_in(abilities, ability, "undefined");
}

std::string px_handshake_words(long handshake) {
    return all_words(handshakes, handshake, ", ");
}

std::string px_word_of(const PX_RGB32* color) {
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

std::optional<PX_RGB32> px_color_of(std::string_view word) {
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

const char* px_yes_or_no(bool yes) {
    return yes ? "yes" : "no";
}

std::string px_domain_words(long mask) {
    return all_words(domains, mask, "; ");
}
