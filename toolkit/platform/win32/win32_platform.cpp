#include "toolkit/platform/win32/win32_platform.h"

#include <algorithm>
#include <cfloat>
#include <cstdlib>
#include <cwchar>
#include <iterator>

#include "toolkit/platform/back_end.h"

namespace {
void (*at_unload)() = nullptr;

void unload() {
    if (at_unload)
        at_unload();
}

// Handed in before any static object is made, and so called after the last of them is gone: at the exit of
// the program, or of the library that holds the toolkit.
__attribute__((constructor(101))) void have_unload_called() {
    std::atexit(unload);
}

// Windows opens COM10 and above by the names of their devices alone, which have no colon.
constexpr std::size_t most_port_digits = 3;
constexpr std::size_t device_name_size = std::size(L"\\\\.\\COM") + most_port_digits;

// The length of the name of a port above 9 without its colon, 0 for another name.
int length_of_port_above_9(const wchar_t* name) {
    if (!name || (_wcsnicmp(name, L"COM", 3) != 0 && _wcsnicmp(name, L"LPT", 3) != 0))
        return 0;
    const std::size_t digits = std::wcsspn(name + 3, L"0123456789");
    const wchar_t* const rest = name + 3 + digits;
    const bool is_one =
        digits > 1 && digits <= most_port_digits && std::wcscmp(rest, *rest == L':' ? L":" : L"") == 0;
    return is_one ? static_cast<int>(3 + digits) : 0;
}
}  // namespace

void px_call_at_unload(void (*function)()) {
    at_unload = function;
}

// Never destroyed: a module that is kept to the end of the process is freed through it.
PX_Platform& px_native_platform() {
    static PX_Platform& platform = *new PX_Win32_Platform;
    return platform;
}

HMODULE PX_Win32_Platform::LoadLibraryExW(const wchar_t* name, HANDLE file, DWORD flags) {
    return ::LoadLibraryExW(name, file, flags);
}

HMODULE PX_Win32_Platform::LoadLibraryW(const wchar_t* name) {
    return ::LoadLibraryW(name);
}

FARPROC PX_Win32_Platform::GetProcAddress(HMODULE module, const char* name) {
    return ::GetProcAddress(module, name);
}

BOOL PX_Win32_Platform::FreeLibrary(HMODULE module) {
    return ::FreeLibrary(module);
}

DWORD PX_Win32_Platform::GetModuleFileNameW(HMODULE module, wchar_t* path, DWORD size) {
    return ::GetModuleFileNameW(module, path, size);
}

int PX_Win32_Platform::LoadStringW(HMODULE module, UINT id, wchar_t* text, int size) {
    return ::LoadStringW(module, id, text, size);
}

int PX_Win32_Platform::WideCharToMultiByte(UINT code_page, DWORD flags, const wchar_t* text, int length,
                                           char* bytes, int bytes_size, const char* default_char,
                                           BOOL* used_default) {
    return ::WideCharToMultiByte(code_page, flags, text, length, bytes, bytes_size, default_char,
                                 used_default);
}

const wchar_t* PX_Win32_Platform::path_separator() const {
    return L"\\";
}

int PX_Win32_Platform::_wfopen_s(std::FILE** stream, const wchar_t* name, const wchar_t* mode) {
    return ::_wfopen_s(stream, name, mode);
}

int PX_Win32_Platform::MessageBoxExW(HWND owner, const wchar_t* text, const wchar_t* caption, UINT type,
                                     WORD language) {
    // Without a display, Wine gives -1.
    return std::max(0, ::MessageBoxExW(owner, text, caption, type, language));
}

HWND PX_Win32_Platform::GetActiveWindow() {
    return ::GetActiveWindow();
}

int PX_Win32_Platform::_controlfp_s(unsigned int* current, unsigned int value, unsigned int mask) {
    return ::_controlfp_s(current, value, mask);
}

HANDLE PX_Win32_Platform::CreateFileW(const wchar_t* name, DWORD access, DWORD share,
                                      SECURITY_ATTRIBUTES* security, DWORD disposition, DWORD attributes,
                                      HANDLE file_template) {
    wchar_t device[device_name_size];
    if (const int length = disposition == OPEN_EXISTING ? length_of_port_above_9(name) : 0) {
        std::swprintf(device, device_name_size, L"\\\\.\\%.*ls", length, name);
        name = device;
    }
    return ::CreateFileW(name, access, share, security, disposition, attributes, file_template);
}

BOOL PX_Win32_Platform::ReadFile(HANDLE file, void* bytes, DWORD size, DWORD* read, OVERLAPPED* overlapped) {
    return ::ReadFile(file, bytes, size, read, overlapped);
}

BOOL PX_Win32_Platform::WriteFile(HANDLE file, const void* bytes, DWORD size, DWORD* written,
                                  OVERLAPPED* overlapped) {
    return ::WriteFile(file, bytes, size, written, overlapped);
}

BOOL PX_Win32_Platform::CloseHandle(HANDLE file) {
    return ::CloseHandle(file);
}

BOOL PX_Win32_Platform::GetCommState(HANDLE port, DCB* state) {
    return ::GetCommState(port, state);
}

BOOL PX_Win32_Platform::SetCommState(HANDLE port, DCB* state) {
    return ::SetCommState(port, state);
}

BOOL PX_Win32_Platform::GetCommTimeouts(HANDLE port, COMMTIMEOUTS* timeouts) {
    return ::GetCommTimeouts(port, timeouts);
}

BOOL PX_Win32_Platform::SetCommTimeouts(HANDLE port, COMMTIMEOUTS* timeouts) {
    return ::SetCommTimeouts(port, timeouts);
}

BOOL PX_Win32_Platform::GetCommMask(HANDLE port, DWORD* events) {
    return ::GetCommMask(port, events);
}

BOOL PX_Win32_Platform::SetCommMask(HANDLE port, DWORD events) {
    return ::SetCommMask(port, events);
}

BOOL PX_Win32_Platform::PurgeComm(HANDLE port, DWORD flags) {
    return ::PurgeComm(port, flags);
}

BOOL PX_Win32_Platform::ClearCommError(HANDLE port, DWORD* errors, COMSTAT* status) {
    return ::ClearCommError(port, errors, status);
}

BOOL PX_Win32_Platform::EnumPortsW(wchar_t* server, DWORD level, BYTE* records, DWORD size, DWORD* needed,
                                   DWORD* count) {
    return ::EnumPortsW(server, level, records, size, needed, count);
}

BOOL PX_Win32_Platform::EnumPrintersW(DWORD flags, wchar_t* name, DWORD level, BYTE* records, DWORD size,
                                      DWORD* needed, DWORD* count) {
    return ::EnumPrintersW(flags, name, level, records, size, needed, count);
}

BOOL PX_Win32_Platform::EnumPrinterDriversW(wchar_t* server, wchar_t* environment, DWORD level, BYTE* records,
                                            DWORD size, DWORD* needed, DWORD* count) {
    return ::EnumPrinterDriversW(server, environment, level, records, size, needed, count);
}

BOOL PX_Win32_Platform::OpenPrinterW(wchar_t* name, HANDLE* printer, PRINTER_DEFAULTSW* defaults) {
    return ::OpenPrinterW(name, printer, defaults);
}

HANDLE PX_Win32_Platform::ConnectToPrinterDlg(HWND owner, DWORD flags) {
    return ::ConnectToPrinterDlg(owner, flags);
}

BOOL PX_Win32_Platform::ClosePrinter(HANDLE printer) {
    return ::ClosePrinter(printer);
}

DWORD PX_Win32_Platform::StartDocPrinterW(HANDLE printer, DWORD level, BYTE* info) {
    return ::StartDocPrinterW(printer, level, info);
}

BOOL PX_Win32_Platform::StartPagePrinter(HANDLE printer) {
    return ::StartPagePrinter(printer);
}

BOOL PX_Win32_Platform::WritePrinter(HANDLE printer, void* bytes, DWORD size, DWORD* written) {
    return ::WritePrinter(printer, bytes, size, written);
}

BOOL PX_Win32_Platform::ReadPrinter(HANDLE printer, void* bytes, DWORD size, DWORD* read) {
    return ::ReadPrinter(printer, bytes, size, read);
}

BOOL PX_Win32_Platform::EndPagePrinter(HANDLE printer) {
    return ::EndPagePrinter(printer);
}

BOOL PX_Win32_Platform::EndDocPrinter(HANDLE printer) {
    return ::EndDocPrinter(printer);
}

BOOL PX_Win32_Platform::SetJobW(HANDLE printer, DWORD job, DWORD level, BYTE* info, DWORD command) {
    return ::SetJobW(printer, job, level, info, command);
}

BOOL PX_Win32_Platform::GetVersionExW(OSVERSIONINFOW* version) {
    return ::GetVersionExW(version);
}

DWORD PX_Win32_Platform::WNetGetConnectionW(const wchar_t* local_name, wchar_t* remote_name, DWORD* size) {
    return ::WNetGetConnectionW(local_name, remote_name, size);
}
