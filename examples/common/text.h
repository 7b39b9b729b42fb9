#pragma once

#include <string>
#include <string_view>

namespace text {

// A byte that belongs to no UTF-8 character becomes the Latin-1 character of its number: descriptions of
// older devices are written so.
std::wstring from_utf8(std::string_view bytes);
std::string to_utf8(std::wstring_view wide);

// For a terminal or a name, of bytes that are read as above: every run of blanks, control characters and line
// separators as one blank, none at the ends.
std::string on_one_line(std::string_view bytes);

// The shortest digits that stand for the very number, in no language of the user's.
std::string shortest(float number);

}  // namespace text
