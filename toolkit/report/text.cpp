#include "toolkit/report/text.h"

#include <array>
#include <charconv>

#include "toolkit/platform/utf8.h"

namespace {

// The two above the control characters separate lines and paragraphs.
bool is_blank_or_control(wchar_t character) {
    return character <= L' ' || (character >= 0x7F && character < 0xA0) || character == 0x2028 ||
           character == 0x2029;
}

std::string escaped(std::string_view bytes) {
    constexpr char digits[] = "0123456789abcdef";
    std::string shown;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= ' ' && byte <= '~')
            shown += c;
        else
            shown.append("\\x").append({digits[byte >> 4], digits[byte & 15]});
    }
    return shown;
}

}  // namespace

std::wstring px_line_of(std::wstring_view text) {
    std::wstring line;
    bool blank = false;
    for (const wchar_t character : text) {
        if (is_blank_or_control(character)) {
            blank = !line.empty();
            continue;
        }
        if (blank)
            line += L' ';
        blank = false;
        line += character;
    }
    return line;
}

std::string px_on_one_line(std::wstring_view text) {
    return px_to_utf8(px_line_of(text));
}

std::string px_quoted(const wchar_t* name) {
    return name && *name ? '"' + px_on_one_line(name) + '"' : "(none)";
}

std::string px_brief(double number) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.begin(), digits.end(), number, std::chars_format::general, 7).ptr;
    return {digits.begin(), end};
}

std::string px_readable_bytes(std::string_view bytes) {
    constexpr std::size_t longest = 40, head = 26, tail = 8;
    if (bytes.empty())
        return "(empty)";
    if (bytes.size() <= longest)
        return '"' + escaped(bytes) + '"';
    return '"' + escaped(bytes.substr(0, head)) + "\" ... \"" + escaped(bytes.substr(bytes.size() - tail)) +
           "\" (" + std::to_string(bytes.size()) + " bytes)";
}
