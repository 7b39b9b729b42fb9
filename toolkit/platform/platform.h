#pragma once

#include <cstdio>

#include "toolkit/host/export.h"
#include "toolkit/platform/win_types.h"

// What the toolkit asks of the operating system, and nothing else. Operations keep the names, arguments and
// results of the Windows functions. One back end is current for the process; posix and win32 are real
// machines, scripted is one that a test sets up.

// Loadable modules and the texts in them.
class PX_EXPORT PX_Module_Platform {
public:
    virtual ~PX_Module_Platform();

    // A module by name, looked for where the toolkit's modules lie: on Windows by its own search from the
    // program's folder on, elsewhere never along the system's library path. A relative name may hold a
    // folder. A null handle when there is none.
    virtual HMODULE LoadLibraryExW(const wchar_t* name, HANDLE file, DWORD flags) = 0;
    virtual HMODULE LoadLibraryW(const wchar_t* name) = 0;
    virtual FARPROC GetProcAddress(HMODULE module, const char* name) = 0;
    virtual BOOL FreeLibrary(HMODULE module) = 0;

    // The path of a module, the running program for a null handle. The result is the length without the
    // terminator; 0 for a failure; `size` when the path was cut.
    virtual DWORD GetModuleFileNameW(HMODULE module, wchar_t* path, DWORD size) = 0;

    // The text with this number, cut at size - 1 characters. The result is its length, 0 when there is none.
    virtual int LoadStringW(HMODULE module, UINT id, wchar_t* text, int size) = 0;

    // Text to bytes of a code page. `length` -1 takes the terminator along; a `bytes_size` of 0 only counts.
    // The result is the number of bytes, 0 when they do not fit.
    virtual int WideCharToMultiByte(UINT code_page, DWORD flags, const wchar_t* text, int length, char* bytes,
                                    int bytes_size, const char* default_char, BOOL* used_default) = 0;

    // What stands between the folders of a path: one character and a terminator.
    virtual const wchar_t* path_separator() const = 0;

    // A C stream by wide name. The result is 0 and the stream is set, or an errno and the stream is null.
    virtual int _wfopen_s(std::FILE** stream, const wchar_t* name, const wchar_t* mode) = 0;
};

// Questions to the user.
class PX_EXPORT PX_Message_Box_Platform {
public:
    virtual ~PX_Message_Box_Platform();

    // The answer is IDOK, IDCANCEL, IDABORT, IDRETRY or IDIGNORE; 0 when the box could not be shown.
    virtual int MessageBoxExW(HWND owner, const wchar_t* text, const wchar_t* caption, UINT type,
                              WORD language) = 0;
    virtual HWND GetActiveWindow() = 0;
};

// The floating-point control word, in the bits of the C run-time library of Windows.
class PX_EXPORT PX_Floating_Point_Platform {
public:
    virtual ~PX_Floating_Point_Platform();

    // Puts `value` in under `mask`; a mask of 0 only reads. `current` receives the word as it then stands.
    // The result is 0, or an errno.
    virtual int _controlfp_s(unsigned int* current, unsigned int value, unsigned int mask) = 0;
};

// Files, and serial and parallel ports, which are opened as files of their names. Reading and writing is
// synchronous, the only limits being the time-outs of a port.
class PX_EXPORT PX_File_Platform {
public:
    virtual ~PX_File_Platform();

    // Exclusive for `share` 0. INVALID_HANDLE_VALUE for a failure.
    virtual HANDLE CreateFileW(const wchar_t* name, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security,
                               DWORD disposition, DWORD attributes, HANDLE file_template) = 0;
    // What was read or written is counted, also where the result is a failure. A time-out is a success with
    // fewer bytes.
    virtual BOOL ReadFile(HANDLE file, void* bytes, DWORD size, DWORD* read, OVERLAPPED* overlapped) = 0;
    virtual BOOL WriteFile(HANDLE file, const void* bytes, DWORD size, DWORD* written,
                           OVERLAPPED* overlapped) = 0;
    virtual BOOL CloseHandle(HANDLE file) = 0;

    // These fail on what is not a port of their kind. A port that cannot be set to the whole of a state
    // refuses it.
    virtual BOOL GetCommState(HANDLE port, DCB* state) = 0;
    virtual BOOL SetCommState(HANDLE port, DCB* state) = 0;
    virtual BOOL GetCommTimeouts(HANDLE port, COMMTIMEOUTS* timeouts) = 0;
    virtual BOOL SetCommTimeouts(HANDLE port, COMMTIMEOUTS* timeouts) = 0;
    virtual BOOL GetCommMask(HANDLE port, DWORD* events) = 0;
    virtual BOOL SetCommMask(HANDLE port, DWORD events) = 0;
    // Drops what waits to go out or has come in.
    virtual BOOL PurgeComm(HANDLE port, DWORD flags) = 0;
    // The line errors since the last call, as bits CE_...; `status` may be null.
    virtual BOOL ClearCommError(HANDLE port, DWORD* errors, COMSTAT* status) = 0;
};

// Ports, printers and their drivers as the machine's print spooler knows them, and its jobs.
class PX_EXPORT PX_Spooler_Platform {
public:
    virtual ~PX_Spooler_Platform();

    // Records of the level into a buffer of `size` bytes; their texts lie behind them in the buffer and may
    // be written into. `needed` gets the size of all, `count` the number of records. A buffer that is too
    // small is a failure.
    virtual BOOL EnumPortsW(wchar_t* server, DWORD level, BYTE* records, DWORD size, DWORD* needed,
                            DWORD* count) = 0;
    virtual BOOL EnumPrintersW(DWORD flags, wchar_t* name, DWORD level, BYTE* records, DWORD size,
                               DWORD* needed, DWORD* count) = 0;
    virtual BOOL EnumPrinterDriversW(wchar_t* server, wchar_t* environment, DWORD level, BYTE* records,
                                     DWORD size, DWORD* needed, DWORD* count) = 0;

    virtual BOOL OpenPrinterW(wchar_t* name, HANDLE* printer, PRINTER_DEFAULTSW* defaults) = 0;
    // Asks the user for a printer. Null when there is no answer, or nobody to ask.
    virtual HANDLE ConnectToPrinterDlg(HWND owner, DWORD flags) = 0;
    virtual BOOL ClosePrinter(HANDLE printer) = 0;

    // The number of the job, 0 for a failure. `info` is a DOC_INFO_1W or DOC_INFO_2W, by level.
    virtual DWORD StartDocPrinterW(HANDLE printer, DWORD level, BYTE* info) = 0;
    virtual BOOL StartPagePrinter(HANDLE printer) = 0;
    virtual BOOL WritePrinter(HANDLE printer, void* bytes, DWORD size, DWORD* written) = 0;
    virtual BOOL ReadPrinter(HANDLE printer, void* bytes, DWORD size, DWORD* read) = 0;
    virtual BOOL EndPagePrinter(HANDLE printer) = 0;
    virtual BOOL EndDocPrinter(HANDLE printer) = 0;
    virtual BOOL SetJobW(HANDLE printer, DWORD job, DWORD level, BYTE* info, DWORD command) = 0;

    // Which spooler it is: a job of VER_PLATFORM_WIN32_WINDOWS is described otherwise.
    virtual BOOL GetVersionExW(OSVERSIONINFOW* version) = 0;
};

// Local names that stand for what lies on the network.
class PX_EXPORT PX_Network_Platform {
public:
    virtual ~PX_Network_Platform();

    // What a local port name is redirected to, into `size` characters. NO_ERROR, or another number when it is
    // not redirected.
    virtual DWORD WNetGetConnectionW(const wchar_t* local_name, wchar_t* remote_name, DWORD* size) = 0;
};

// All of it together: a back end derives from this.
class PX_EXPORT PX_Platform : public PX_Module_Platform,
                              public PX_Message_Box_Platform,
                              public PX_Floating_Point_Platform,
                              public PX_File_Platform,
                              public PX_Spooler_Platform,
                              public PX_Network_Platform {};

// The current platform. The machine's own is made at first use.
PX_EXPORT PX_Platform& PX_Get_Platform();

// Makes `platform` the current one and gives back the one it replaces, null for the machine's own. Null puts
// the machine's own back. The platform stays the caller's and outlives its use.
PX_EXPORT PX_Platform* PX_Set_Platform(PX_Platform* platform);

// Has `function` called before another platform takes the place of the current one, which is the one to give
// back what was had from it. A function is kept once.
PX_EXPORT void px_before_platform_exchange(void (*function)());

// Makes a platform the current one while it lives, and then puts the former one back.
class PX_Use_Platform {
public:
    explicit PX_Use_Platform(PX_Platform& platform) : m_former(PX_Set_Platform(&platform)) {}
    ~PX_Use_Platform() { PX_Set_Platform(m_former); }
    PX_Use_Platform(const PX_Use_Platform&) = delete;
    PX_Use_Platform& operator=(const PX_Use_Platform&) = delete;

private:
    PX_Platform* m_former;
};
