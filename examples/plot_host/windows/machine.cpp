#include "machine.h"

#include <array>
#include <stdexcept>

namespace plot_host {

bool Machine::map_port(const wchar_t*, const char*) {
    throw std::runtime_error("--map-port is not for Windows, which gives names to its ports by itself");
}

bool Machine::use_print_server(const char*, int) {
    throw std::runtime_error(R"(--print-server is not for Windows, whose queues are named \\server\queue)");
}

void Machine::keep_error() {
    const DWORD number = GetLastError();
    std::array<wchar_t, 256> text{};
    FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, number, 0,
                   text.data(), static_cast<DWORD>(text.size()), nullptr);
    m_last_error = text.data();
    m_last_error.erase(m_last_error.find_last_not_of(L" \r\n") + 1);
    SetLastError(number);
}

HANDLE Machine::CreateFileW(const wchar_t* name, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security,
                            DWORD disposition, DWORD attributes, HANDLE file_template) {
    const HANDLE file =
        PX_Win32_Platform::CreateFileW(name, access, share, security, disposition, attributes, file_template);
    if (file == INVALID_HANDLE_VALUE)
        keep_error();
    return file;
}

BOOL Machine::WriteFile(HANDLE file, const void* bytes, DWORD size, DWORD* written, OVERLAPPED* overlapped) {
    const BOOL passed = PX_Win32_Platform::WriteFile(file, bytes, size, written, overlapped);
    if (!passed)
        keep_error();
    return passed;
}

BOOL Machine::OpenPrinterW(wchar_t* name, HANDLE* printer, PRINTER_DEFAULTSW* defaults) {
    const BOOL passed = PX_Win32_Platform::OpenPrinterW(name, printer, defaults);
    if (!passed)
        keep_error();
    return passed;
}

DWORD Machine::StartDocPrinterW(HANDLE printer, DWORD level, BYTE* info) {
    const DWORD job = PX_Win32_Platform::StartDocPrinterW(printer, level, info);
    if (job == 0)
        keep_error();
    return job;
}

BOOL Machine::WritePrinter(HANDLE printer, void* bytes, DWORD size, DWORD* written) {
    const BOOL passed = PX_Win32_Platform::WritePrinter(printer, bytes, size, written);
    if (!passed)
        keep_error();
    return passed;
}

}  // namespace plot_host
