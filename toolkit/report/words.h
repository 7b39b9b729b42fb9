#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

#include "toolkit/marvcon/marvcon.h"

// What values are called in reports, and what a host may call them in its files and on its command line: a
// table of words each.

// A line of such a table.
template <class Value>
struct PX_Word {
    const char* word;
    Value value;
};

// `otherwise` for a value that has no word.
template <class Value, std::size_t count>
const char* px_word_in(const PX_Word<Value> (&words)[count], Value value, const char* otherwise = "") {
    const auto found = std::ranges::find(words, value, &PX_Word<Value>::value);
    return found == std::end(words) ? otherwise : found->word;
}

// Nothing for a word that is not in the table.
template <class Value, std::size_t count>
std::optional<Value> px_value_in(const PX_Word<Value> (&words)[count], std::string_view word) {
    const auto found = std::ranges::find(words, word, &PX_Word<Value>::word);
    if (found == std::end(words))
        return std::nullopt;
    return found->value;
}

// Takes the bits that have words out of `bits`; their words in the order of the table.
template <std::size_t count>
std::string px_take_words(const PX_Word<long> (&words)[count], long& bits, const char* separator) {
    std::string taken;
    for (const auto& [word, bit] : words) {
        if (bits & bit)
            taken.append(taken.empty() ? "" : separator).append(word);
        bits &= ~bit;
    }
    return taken;
}

// Each by its table: "none" for a number that is no type, "undefined" for one that is no ability.
const char* px_word_of(PX_IO_Type::Enum type);
std::optional<PX_IO_Type::Enum> px_io_type_of(std::string_view word);
const char* px_word_of(PX_Ability_Value::Enum ability);

// Such as "XON/XOFF out, CTS out"; "none" for 0. A bit without a word is told by its number.
std::string px_handshake_words(long handshake);

// Each way: "#rrggbb"; with two digits more for an alpha that is not opaque. No colour is opaque black, as to
// a pen.
std::string px_word_of(const PX_RGB32* color);
std::optional<PX_RGB32> px_color_of(std::string_view word);

// "yes" or "no".
const char* px_yes_or_no(bool yes);

// The domains of a mask, such as "media; pens"; "none" for 0. A bit without a word is told by its number.
std::string px_domain_words(long mask);
