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

    // A module by name, looked for along the machine's search path; a relative name may hold a folder. A null
    // handle when there is none.
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

class PX_EXPORT PX_Platform : public PX_Module_Platform,
                              public PX_Message_Box_Platform,
                              public PX_Floating_Point_Platform {};

// The current platform. The machine's own is made at first use.
PX_EXPORT PX_Platform& PX_Get_Platform();

// Makes `platform` the current one and gives back the one it replaces, null for the machine's own. Null puts
// the machine's own back. The platform stays the caller's and outlives its use.
PX_EXPORT PX_Platform* PX_Set_Platform(PX_Platform* platform);

// Has `function` called before another platform takes the place of the current one, which is the one to give
// back what was had from it. A function is kept once.
PX_EXPORT void px_before_platform_exchange(void (*function)());
