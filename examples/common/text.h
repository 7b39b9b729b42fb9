#pragma once

#include <string>
#include <string_view>

namespace text {

// A byte that belongs to no UTF-8 character becomes the Latin-1 character of its number: descriptions of
// older devices are written so. Where wide characters have 16 bits, those that have more become pairs, and
// pairs become one.
std::wstring from_utf8(std::string_view bytes);
std::string to_utf8(std::wstring_view wide);

// One by one, on every system.
std::u32string characters_of(std::string_view bytes);
std::string to_utf8(std::u32string_view characters);

// For a terminal or a name, of bytes that are read as above: every run of blanks, control characters and line
// separators as one blank, none at the ends.
std::string on_one_line(std::string_view bytes);

// The shortest digits that stand for the very number, in no language of the user's.
std::string shortest(float number);

}  // namespace text
