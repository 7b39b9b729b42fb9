#include "toolkit/platform/scripted/scripted_platform.h"

HANDLE PX_Scripted_Platform::CreateFileW(const wchar_t*, DWORD, DWORD, SECURITY_ATTRIBUTES*, DWORD, DWORD,
                                         HANDLE) {
    return INVALID_HANDLE_VALUE;
}

BOOL PX_Scripted_Platform::ReadFile(HANDLE, void*, DWORD, DWORD*, OVERLAPPED*) {
    return 0;
}

BOOL PX_Scripted_Platform::WriteFile(HANDLE, const void*, DWORD, DWORD*, OVERLAPPED*) {
    return 0;
}

BOOL PX_Scripted_Platform::CloseHandle(HANDLE) {
    return 0;
}

BOOL PX_Scripted_Platform::GetCommState(HANDLE, DCB*) {
    return 0;
}

BOOL PX_Scripted_Platform::SetCommState(HANDLE, DCB*) {
    return 0;
}

BOOL PX_Scripted_Platform::GetCommTimeouts(HANDLE, COMMTIMEOUTS*) {
    return 0;
}

BOOL PX_Scripted_Platform::SetCommTimeouts(HANDLE, COMMTIMEOUTS*) {
    return 0;
}

BOOL PX_Scripted_Platform::GetCommMask(HANDLE, DWORD*) {
    return 0;
}

BOOL PX_Scripted_Platform::SetCommMask(HANDLE, DWORD) {
    return 0;
}

BOOL PX_Scripted_Platform::PurgeComm(HANDLE, DWORD) {
    return 0;
}

BOOL PX_Scripted_Platform::ClearCommError(HANDLE, DWORD*, COMSTAT*) {
    return 0;
}
