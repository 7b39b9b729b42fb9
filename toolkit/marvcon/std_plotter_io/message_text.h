#pragma once

#include <string>
#include <string_view>

#include "toolkit/core/error_resources.h"

// The format with the port put in for each %ls, and for each %s, which an older text module has in its place.
// %% is a percent sign; any other one stands as it is.
inline std::wstring px_with_port(std::wstring_view format, std::wstring_view port) {
    std::wstring text;
    while (!format.empty()) {
        const auto replace = [&](std::wstring_view place, std::wstring_view by) {
            if (!format.starts_with(place))
                return false;
            text += by;
            format.remove_prefix(place.size());
            return true;
        };
        if (replace(L"%ls", port) || replace(L"%s", port) || replace(L"%%", L"%"))
            continue;
        text += format.front();
        format.remove_prefix(1);
    }
    return text;
}

// A text of the resource module, of at most `capacity` - 1 characters before the port's name is put in
// wherever it asks for it. Empty when it is missing.
template <int capacity>
std::wstring px_text_on_port(unsigned int id, const wchar_t* port) {
    wchar_t format[capacity];
    return px_load_mvn_text(id, format, capacity) == 0 ? std::wstring() : px_with_port(format, port);
}
