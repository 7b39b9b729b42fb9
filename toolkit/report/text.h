#pragma once

#include <string>
#include <string_view>

// For a terminal, a log or a name: every run of blanks, control characters and line separators as one blank,
// none at the ends.
std::wstring px_line_of(std::wstring_view text);
// The same in UTF-8; what is no character becomes U+FFFD.
std::string px_on_one_line(std::wstring_view text);

// The same in quotes; "(none)" for an empty name. Null is the empty one.
std::string px_quoted(const wchar_t* name);

// Seven significant digits, in no language of the user's.
std::string px_brief(double number);

// Printable ASCII as it is, other bytes as \x1b, a long string with its middle left out and its length.
// "(empty)" for no bytes.
std::string px_readable_bytes(std::string_view bytes);
