#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

// What values are called in reports, saved choices and on the command line: a table of words each.
namespace plot_host {

template <class Value>
struct Word {
    const char* word;
    Value value;
};

// `otherwise` for a value that has no word.
template <class Value, std::size_t count>
const char* word_in(const Word<Value> (&words)[count], Value value, const char* otherwise = "") {
    const auto found = std::ranges::find(words, value, &Word<Value>::value);
    return found == std::end(words) ? otherwise : found->word;
}

template <class Value, std::size_t count>
std::optional<Value> value_in(const Word<Value> (&words)[count], std::string_view word) {
    const auto found = std::ranges::find(words, word, &Word<Value>::word);
    if (found == std::end(words))
        return std::nullopt;
    return found->value;
}

// Takes the bits that have words out of `bits`; their words in the order of the table.
template <std::size_t count>
std::string take_words(const Word<long> (&words)[count], long& bits, const char* separator) {
    std::string taken;
    for (const auto& [word, bit] : words) {
        if (bits & bit)
            taken.append(taken.empty() ? "" : separator).append(word);
        bits &= ~bit;
    }
    return taken;
}

}  // namespace plot_host
