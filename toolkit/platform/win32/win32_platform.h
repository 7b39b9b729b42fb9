#pragma once

#include "toolkit/platform/platform.h"

// Windows: every operation is the function of its name.
class PX_EXPORT PX_Win32_Platform : public PX_Platform {
public:
    HMODULE LoadLibraryExW(const wchar_t* name, HANDLE file, DWORD flags) override;
    HMODULE LoadLibraryW(const wchar_t* name) override;
    FARPROC GetProcAddress(HMODULE module, const char* name) override;
    BOOL FreeLibrary(HMODULE module) override;
    DWORD GetModuleFileNameW(HMODULE module, wchar_t* path, DWORD size) override;
    int LoadStringW(HMODULE module, UINT id, wchar_t* text, int size) override;
    int WideCharToMultiByte(UINT code_page, DWORD flags, const wchar_t* text, int length, char* bytes,
                            int bytes_size, const char* default_char, BOOL* used_default) override;
    const wchar_t* path_separator() const override;
    int _wfopen_s(std::FILE** stream, const wchar_t* name, const wchar_t* mode) override;

    int MessageBoxExW(HWND owner, const wchar_t* text, const wchar_t* caption, UINT type,
                      WORD language) override;
    HWND GetActiveWindow() override;

    // The word of the calling thread.
    int _controlfp_s(unsigned int* current, unsigned int value, unsigned int mask) override;

    // A port above COM9 is opened by its device's name.
    HANDLE CreateFileW(const wchar_t* name, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security,
                       DWORD disposition, DWORD attributes, HANDLE file_template) override;
    BOOL ReadFile(HANDLE file, void* bytes, DWORD size, DWORD* read, OVERLAPPED* overlapped) override;
    BOOL WriteFile(HANDLE file, const void* bytes, DWORD size, DWORD* written,
                   OVERLAPPED* overlapped) override;
    BOOL CloseHandle(HANDLE file) override;
    BOOL GetCommState(HANDLE port, DCB* state) override;
    BOOL SetCommState(HANDLE port, DCB* state) override;
    BOOL GetCommTimeouts(HANDLE port, COMMTIMEOUTS* timeouts) override;
    BOOL SetCommTimeouts(HANDLE port, COMMTIMEOUTS* timeouts) override;
    BOOL GetCommMask(HANDLE port, DWORD* events) override;
    BOOL SetCommMask(HANDLE port, DWORD events) override;
    BOOL PurgeComm(HANDLE port, DWORD flags) override;
    BOOL ClearCommError(HANDLE port, DWORD* errors, COMSTAT* status) override;

    BOOL EnumPortsW(wchar_t* server, DWORD level, BYTE* records, DWORD size, DWORD* needed,
                    DWORD* count) override;
    BOOL EnumPrintersW(DWORD flags, wchar_t* name, DWORD level, BYTE* records, DWORD size, DWORD* needed,
                       DWORD* count) override;
    BOOL EnumPrinterDriversW(wchar_t* server, wchar_t* environment, DWORD level, BYTE* records, DWORD size,
                             DWORD* needed, DWORD* count) override;
    BOOL OpenPrinterW(wchar_t* name, HANDLE* printer, PRINTER_DEFAULTSW* defaults) override;
    HANDLE ConnectToPrinterDlg(HWND owner, DWORD flags) override;
    BOOL ClosePrinter(HANDLE printer) override;
    DWORD StartDocPrinterW(HANDLE printer, DWORD level, BYTE* info) override;
    BOOL StartPagePrinter(HANDLE printer) override;
    BOOL WritePrinter(HANDLE printer, void* bytes, DWORD size, DWORD* written) override;
    BOOL ReadPrinter(HANDLE printer, void* bytes, DWORD size, DWORD* read) override;
    BOOL EndPagePrinter(HANDLE printer) override;
    BOOL EndDocPrinter(HANDLE printer) override;
    BOOL SetJobW(HANDLE printer, DWORD job, DWORD level, BYTE* info, DWORD command) override;
    // Without a manifest of the program, Windows tells no version above 6.2.
    BOOL GetVersionExW(OSVERSIONINFOW* version) override;

    DWORD WNetGetConnectionW(const wchar_t* local_name, wchar_t* remote_name, DWORD* size) override;
};
