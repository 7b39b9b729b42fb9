#pragma once

// The records and numbers of Windows that the toolkit handles: Windows' own there, ours elsewhere.
// This is the only door to <windows.h>.
#ifdef _WIN32
#    ifndef NOMINMAX
#        define NOMINMAX
#    endif
#    ifndef WIN32_LEAN_AND_MEAN
#        define WIN32_LEAN_AND_MEAN
#    endif
#    include <windows.h>
#else
#    include <cstdint>

using BOOL = int;
using UINT = std::uint32_t;
using DWORD = std::uint32_t;
using WORD = std::uint16_t;
using HANDLE = void*;
using HMODULE = void*;
using HWND = void*;
using FARPROC = std::intptr_t (*)();
struct DEVMODEW;

constexpr UINT CP_ACP = 0;

constexpr UINT MB_OK = 0;
constexpr UINT MB_OKCANCEL = 1;
constexpr UINT MB_ABORTRETRYIGNORE = 2;
constexpr UINT MB_ICONHAND = 16;
constexpr UINT MB_ICONEXCLAMATION = 48;
constexpr UINT MB_TYPEMASK = 15;

constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;
constexpr int IDABORT = 3;
constexpr int IDRETRY = 4;
constexpr int IDIGNORE = 5;
#endif
