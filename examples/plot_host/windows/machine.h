#pragma once

#include <string>

#include "toolkit/platform/win32/win32_platform.h"

namespace plot_host {

// The platform of the system, which tells its last failure.
class Machine : public PX_Win32_Platform {
public:
    // Windows maps its ports and finds its print servers by itself. Both throw std::runtime_error, one line
    // for the user.
    [[noreturn]] bool map_port(const wchar_t* name, const char* device);
    [[noreturn]] bool use_print_server(const char* host, int port);

    // What Windows has to say of the last open or write that failed, without an end of line; empty before the
    // first.
    const wchar_t* last_error() const { return m_last_error.c_str(); }

    HANDLE CreateFileW(const wchar_t* name, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security,
                       DWORD disposition, DWORD attributes, HANDLE file_template) override;
    BOOL WriteFile(HANDLE file, const void* bytes, DWORD size, DWORD* written,
                   OVERLAPPED* overlapped) override;
    BOOL OpenPrinterW(wchar_t* name, HANDLE* printer, PRINTER_DEFAULTSW* defaults) override;
    DWORD StartDocPrinterW(HANDLE printer, DWORD level, BYTE* info) override;
    BOOL WritePrinter(HANDLE printer, void* bytes, DWORD size, DWORD* written) override;

private:
    void keep_error();

    std::wstring m_last_error;
};

}  // namespace plot_host
