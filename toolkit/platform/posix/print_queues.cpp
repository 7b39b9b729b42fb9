#include "toolkit/platform/posix/posix_platform.h"

BOOL PX_Posix_Platform::EnumPrintersW(DWORD, wchar_t*, DWORD, BYTE*, DWORD, DWORD*, DWORD*) {
    return 0;
}

BOOL PX_Posix_Platform::EnumPrinterDriversW(wchar_t*, wchar_t*, DWORD, BYTE*, DWORD, DWORD*, DWORD*) {
    return 0;
}

BOOL PX_Posix_Platform::OpenPrinterW(wchar_t*, HANDLE*, PRINTER_DEFAULTSW*) {
    return 0;
}

HANDLE PX_Posix_Platform::ConnectToPrinterDlg(HWND, DWORD) {
    return nullptr;
}

BOOL PX_Posix_Platform::ClosePrinter(HANDLE) {
    return 0;
}

DWORD PX_Posix_Platform::StartDocPrinterW(HANDLE, DWORD, BYTE*) {
    return 0;
}

BOOL PX_Posix_Platform::StartPagePrinter(HANDLE) {
    return 0;
}

BOOL PX_Posix_Platform::WritePrinter(HANDLE, void*, DWORD, DWORD*) {
    return 0;
}

BOOL PX_Posix_Platform::ReadPrinter(HANDLE, void*, DWORD, DWORD*) {
    return 0;
}

BOOL PX_Posix_Platform::EndPagePrinter(HANDLE) {
    return 0;
}

BOOL PX_Posix_Platform::EndDocPrinter(HANDLE) {
    return 0;
}

BOOL PX_Posix_Platform::SetJobW(HANDLE, DWORD, DWORD, BYTE*, DWORD) {
    return 0;
}

BOOL PX_Posix_Platform::GetVersionExW(OSVERSIONINFOW*) {
    return 0;
}

DWORD PX_Posix_Platform::WNetGetConnectionW(const wchar_t*, wchar_t*, DWORD*) {
    return ERROR_BAD_DEVICE;
}
