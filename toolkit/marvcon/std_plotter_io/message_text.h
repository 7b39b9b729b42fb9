#pragma once

#include <string>

#include "toolkit/core/error_resources.h"

// A text of the resource module, of at most `capacity` - 1 characters before the port's name is put in
// wherever it asks for it. Empty when it is missing.
template <int capacity>
std::wstring px_text_on_port(unsigned int id, const wchar_t* port) {
    wchar_t format[capacity];
    if (px_load_mvn_text(id, format, capacity) == 0)
        return {};
    constexpr std::wstring_view place = L"%ls";
    std::wstring text = format;
    const std::wstring_view name = port;
    for (auto at = text.find(place); at != text.npos; at = text.find(place, at + name.size()))
        text.replace(at, place.size(), name);
    return text;
}
