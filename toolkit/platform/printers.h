#pragma once

#include <cstddef>
#include <cwchar>

#include "toolkit/platform/platform.h"
#include "toolkit/platform/spooler_records.h"

// What is asked about the machine's printers and the ports that they are on.

using PX_Printers = PX_Spooler_Records<PRINTER_INFO_2W>;

// `which` is put together of PRINTER_ENUM_....
inline PX_Printers::Result px_ask_for_printers(PX_Printers& printers, DWORD which) {
    return printers.ask([which](BYTE* buffer, DWORD size, DWORD* needed, DWORD* count) {
        return PX_Get_Platform().EnumPrintersW(which, nullptr, 2, buffer, size, needed, count);
    });
}

// Whether the first `length` characters are the same but for the case of the letters A to Z; a text that ends
// before matches only one that ends there too.
inline bool px_same_ignoring_case(const wchar_t* a, const wchar_t* b, std::size_t length) {
    const auto lower = [](wchar_t c) { return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + 32) : c; };
    for (; length > 0; --length, ++a, ++b) {
        if (lower(*a) != lower(*b))
            return false;
        if (!*a)
            return true;
    }
    return true;
}

inline bool px_begins_ignoring_case(const wchar_t* text, const wchar_t* beginning) {
    return px_same_ignoring_case(text, beginning, std::wcslen(beginning));
}

// Whether one of the ports, which are separated by commas, agrees with `port` in its first `length`
// characters. The list is cut behind each port that is looked at: who comes later sees the first one only.
inline bool px_lists_port(wchar_t* ports, const wchar_t* port, std::size_t length) {
    while (true) {
        while (*ports == L',')
            ++ports;
        if (!*ports)
            return false;
        const wchar_t* const token = ports;
        while (*ports && *ports != L',')
            ++ports;
        if (*ports)
            *ports++ = L'\0';
        if (px_same_ignoring_case(token, port, length))
            return true;
    }
}

// A server's printer is on none of this machine's ports. The printer's list of ports is cut as above.
inline bool px_is_on_port(const PRINTER_INFO_2W& printer, const wchar_t* port, std::size_t length) {
    return !printer.pServerName && printer.pPortName && px_lists_port(printer.pPortName, port, length);
}

// One more for the terminator.
inline constexpr DWORD px_remote_name_capacity = 260;

// Whether the port is redirected to a share, whose name is then written.
inline bool px_redirection_of(const wchar_t* port, wchar_t (&remote_name)[px_remote_name_capacity]) {
    DWORD size = px_remote_name_capacity;
    return PX_Get_Platform().WNetGetConnectionW(port, remote_name, &size) == NO_ERROR;
}

// INVALID_HANDLE_VALUE for a null or empty name, and for one that the machine does not know.
inline HANDLE px_open_printer(const wchar_t* name) {
    HANDLE printer = INVALID_HANDLE_VALUE;
    if (!name || !*name)
        return printer;
    // The spooler does not write into the name.
    const BOOL opened = PX_Get_Platform().OpenPrinterW(const_cast<wchar_t*>(name), &printer, nullptr);
    return opened ? printer : INVALID_HANDLE_VALUE;
}
