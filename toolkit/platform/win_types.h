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
#    include <winnetwk.h>
#    include <winspool.h>

static_assert(sizeof(OSVERSIONINFOW) == 276);
#else
#    include <cstdint>

using BOOL = int;
using UINT = std::uint32_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using WORD = std::uint16_t;
using BYTE = std::uint8_t;
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

// Files and ports

inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(std::intptr_t{-1});

constexpr DWORD NO_ERROR = 0;
constexpr DWORD ERROR_BAD_DEVICE = 1200;

constexpr DWORD GENERIC_READ = 0x80000000;
constexpr DWORD GENERIC_WRITE = 0x40000000;
constexpr DWORD CREATE_ALWAYS = 2;
constexpr DWORD OPEN_EXISTING = 3;
constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x80;

struct SECURITY_ATTRIBUTES;
struct OVERLAPPED;

// Milliseconds.
struct COMMTIMEOUTS {
    DWORD ReadIntervalTimeout;
    DWORD ReadTotalTimeoutMultiplier;
    DWORD ReadTotalTimeoutConstant;
    DWORD WriteTotalTimeoutMultiplier;
    DWORD WriteTotalTimeoutConstant;
};

// The settings of a serial line.
struct DCB {
    DWORD DCBlength;
    DWORD BaudRate;  // bits per second
    DWORD fBinary : 1;
    DWORD fParity : 1;
    DWORD fOutxCtsFlow : 1;
    DWORD fOutxDsrFlow : 1;
    DWORD fDtrControl : 2;
    DWORD fDsrSensitivity : 1;
    DWORD fTXContinueOnXoff : 1;
    DWORD fOutX : 1;
    DWORD fInX : 1;
    DWORD fErrorChar : 1;
    DWORD fNull : 1;
    DWORD fRtsControl : 2;
    DWORD fAbortOnError : 1;
    DWORD fDummy2 : 17;
    WORD wReserved;
    WORD XonLim;
    WORD XoffLim;
    BYTE ByteSize;
    BYTE Parity;
    BYTE StopBits;
    char XonChar;
    char XoffChar;
    char ErrorChar;
    char EofChar;
    char EvtChar;
    WORD wReserved1;
};

constexpr BYTE NOPARITY = 0;
constexpr BYTE ODDPARITY = 1;
constexpr BYTE EVENPARITY = 2;
constexpr BYTE MARKPARITY = 3;
constexpr BYTE SPACEPARITY = 4;
constexpr BYTE ONESTOPBIT = 0;
constexpr BYTE ONE5STOPBITS = 1;
constexpr BYTE TWOSTOPBITS = 2;
constexpr DWORD DTR_CONTROL_DISABLE = 0;
constexpr DWORD DTR_CONTROL_ENABLE = 1;
constexpr DWORD DTR_CONTROL_HANDSHAKE = 2;
constexpr DWORD RTS_CONTROL_DISABLE = 0;
constexpr DWORD RTS_CONTROL_ENABLE = 1;
constexpr DWORD RTS_CONTROL_HANDSHAKE = 2;
constexpr DWORD RTS_CONTROL_TOGGLE = 3;

// What a serial line can be set to.
struct COMMPROP {
    WORD wPacketLength;
    WORD wPacketVersion;
    DWORD dwServiceMask;
    DWORD dwReserved1;
    DWORD dwMaxTxQueue;
    DWORD dwMaxRxQueue;
    DWORD dwMaxBaud;
    DWORD dwProvSubType;
    DWORD dwProvCapabilities;
    DWORD dwSettableParams;
    DWORD dwSettableBaud;
    WORD wSettableData;
    WORD wSettableStopParity;
    DWORD dwCurrentTxQueue;
    DWORD dwCurrentRxQueue;
    DWORD dwProvSpec1;
    DWORD dwProvSpec2;
    wchar_t wcProvChar[1];
};

struct COMSTAT;

constexpr DWORD PURGE_TXABORT = 1;
constexpr DWORD PURGE_RXABORT = 2;
constexpr DWORD PURGE_TXCLEAR = 4;
constexpr DWORD PURGE_RXCLEAR = 8;
constexpr DWORD EV_CTS = 0x8;
constexpr DWORD EV_DSR = 0x10;
constexpr DWORD EV_BREAK = 0x40;
constexpr DWORD CE_RXOVER = 0x1;
constexpr DWORD CE_OVERRUN = 0x2;
constexpr DWORD CE_RXPARITY = 0x4;
constexpr DWORD CE_FRAME = 0x8;
constexpr DWORD CE_BREAK = 0x10;
constexpr DWORD CE_TXFULL = 0x100;
constexpr DWORD CE_PTO = 0x200;
constexpr DWORD CE_DNS = 0x800;
constexpr DWORD CE_OOP = 0x1000;
constexpr DWORD CE_MODE = 0x8000;

// The print spooler

struct PORT_INFO_2W {
    wchar_t* pPortName;
    wchar_t* pMonitorName;
    wchar_t* pDescription;
    DWORD fPortType;
    DWORD Reserved;
};

struct PRINTER_INFO_2W {
    wchar_t* pServerName;
    wchar_t* pPrinterName;
    wchar_t* pShareName;
    wchar_t* pPortName;  // several are separated by commas
    wchar_t* pDriverName;
    wchar_t* pComment;
    wchar_t* pLocation;
    DEVMODEW* pDevMode;
    wchar_t* pSepFile;
    wchar_t* pPrintProcessor;
    wchar_t* pDatatype;
    wchar_t* pParameters;
    void* pSecurityDescriptor;
    DWORD Attributes;
    DWORD Priority;
    DWORD DefaultPriority;
    DWORD StartTime;
    DWORD UntilTime;
    DWORD Status;
    DWORD cJobs;
    DWORD AveragePPM;
};

struct DRIVER_INFO_3W {
    DWORD cVersion;
    wchar_t* pName;
    wchar_t* pEnvironment;
    wchar_t* pDriverPath;
    wchar_t* pDataFile;
    wchar_t* pConfigFile;
    wchar_t* pHelpFile;
    wchar_t* pDependentFiles;
    wchar_t* pMonitorName;
    wchar_t* pDefaultDataType;
};

struct PRINTER_DEFAULTSW;

struct DOC_INFO_1W {
    wchar_t* pDocName;
    wchar_t* pOutputFile;
    wchar_t* pDatatype;
};

struct DOC_INFO_2W {
    wchar_t* pDocName;
    wchar_t* pOutputFile;
    wchar_t* pDatatype;
    DWORD dwMode;
    DWORD JobId;
};

struct OSVERSIONINFOW {
    DWORD dwOSVersionInfoSize;
    DWORD dwMajorVersion;
    DWORD dwMinorVersion;
    DWORD dwBuildNumber;
    DWORD dwPlatformId;
    wchar_t szCSDVersion[128];
};

constexpr DWORD PRINTER_ENUM_LOCAL = 2;
constexpr DWORD PRINTER_ENUM_CONNECTIONS = 4;
constexpr DWORD PRINTER_ATTRIBUTE_SHARED = 0x8;
constexpr DWORD PRINTER_ATTRIBUTE_NETWORK = 0x10;
constexpr DWORD PRINTER_ATTRIBUTE_LOCAL = 0x40;
constexpr DWORD JOB_CONTROL_CANCEL = 3;
constexpr DWORD VER_PLATFORM_WIN32_WINDOWS = 1;
constexpr DWORD VER_PLATFORM_WIN32_NT = 2;

// Fonts

struct LOGFONTW {
    LONG lfHeight;
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    char16_t lfFaceName[32];  // UTF-16 everywhere: the record goes to devices and hosts as it is
};
#endif

static_assert(sizeof(LOGFONTW) == 92);
