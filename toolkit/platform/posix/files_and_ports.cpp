#include "toolkit/platform/posix/file_handles.h"
#include "toolkit/platform/posix/last_error.h"
#include "toolkit/platform/posix/posix_platform.h"
#include "toolkit/platform/record_buffer.h"

namespace {
void need(const void* record) {
    if (!record)
        px_fail(EINVAL);
}

void check_transfer(const void* bytes, DWORD size, const OVERLAPPED* overlapped) {
    if (overlapped || (size > 0 && !bytes))
        px_fail(EINVAL);
}
}  // namespace

bool PX_Posix_Platform::map_port(const wchar_t* name, const char* device) {
    return m_last_error->attempt(name, [&] {
        const auto port = px_port_name(name ? name : L"");
        if (!port)
            px_fail(EINVAL);
        m_files->map(*port, device ? device : "");
        return true;
    });
}

HANDLE PX_Posix_Platform::CreateFileW(const wchar_t* name, DWORD access, DWORD share, SECURITY_ATTRIBUTES*,
                                      DWORD disposition, DWORD, HANDLE) {
    const HANDLE handle = m_last_error->attempt(name, [&] {
        if (disposition != OPEN_EXISTING && disposition != CREATE_ALWAYS)
            px_fail(EINVAL);
        const std::wstring path = name ? name : L"";
        if (const auto port = disposition == OPEN_EXISTING ? px_port_name(path) : std::nullopt)
            return m_files->open(*port, access);
        return m_files->add(PX_Open_File::of_path(path, access, share, disposition == CREATE_ALWAYS));
    });
    return handle ? handle : INVALID_HANDLE_VALUE;
}

BOOL PX_Posix_Platform::ReadFile(HANDLE file, void* bytes, DWORD size, DWORD* read, OVERLAPPED* overlapped) {
    DWORD done = 0;
    const BOOL passed = m_files->attempt(file, [&](PX_Open_File& open) {
        check_transfer(bytes, size, overlapped);
        open.read(bytes, size, done);
    });
    if (read)
        *read = done;
    return passed;
}

BOOL PX_Posix_Platform::WriteFile(HANDLE file, const void* bytes, DWORD size, DWORD* written,
                                  OVERLAPPED* overlapped) {
    DWORD done = 0;
    const BOOL passed = m_files->attempt(file, [&](PX_Open_File& open) {
        check_transfer(bytes, size, overlapped);
        open.write(bytes, size, done);
    });
    if (written)
        *written = done;
    return passed;
}

BOOL PX_Posix_Platform::CloseHandle(HANDLE file) {
    // It is found until it is closed: another thread may purge a port that waits for its last bytes to go.
    const BOOL closed = m_files->attempt(file, [](PX_Open_File& open) { open.close(); });
    m_files->take(file);
    return closed;
}

BOOL PX_Posix_Platform::GetCommState(HANDLE port, DCB* state) {
    return m_files->attempt(port, [&](PX_Open_File& open) {
        need(state);
        *state = open.get_state();
    });
}

BOOL PX_Posix_Platform::SetCommState(HANDLE port, DCB* state) {
    return m_files->attempt(port, [&](PX_Open_File& open) {
        need(state);
        open.set_state(*state);
    });
}

BOOL PX_Posix_Platform::GetCommTimeouts(HANDLE port, COMMTIMEOUTS* timeouts) {
    return m_files->attempt(port, [&](PX_Open_File& open) {
        need(timeouts);
        *timeouts = open.timeouts();
    });
}

BOOL PX_Posix_Platform::SetCommTimeouts(HANDLE port, COMMTIMEOUTS* timeouts) {
    return m_files->attempt(port, [&](PX_Open_File& open) {
        need(timeouts);
        open.timeouts() = *timeouts;
    });
}

BOOL PX_Posix_Platform::GetCommMask(HANDLE port, DWORD* events) {
    return m_files->attempt(port, [&](PX_Open_File& open) {
        need(events);
        *events = open.events();
    });
}

BOOL PX_Posix_Platform::SetCommMask(HANDLE port, DWORD events) {
    return m_files->attempt(port, [&](PX_Open_File& open) { open.events() = events; });
}

BOOL PX_Posix_Platform::PurgeComm(HANDLE port, DWORD flags) {
    return m_files->attempt(port, [&](PX_Open_File& open) { open.purge(flags); });
}

BOOL PX_Posix_Platform::ClearCommError(HANDLE port, DWORD* errors, COMSTAT* status) {
    return m_files->attempt(port, [&](PX_Open_File& open) {
        if (status)
            px_fail(ENOTSUP);
        const DWORD taken = open.take_errors();
        if (errors)
            *errors = taken;
    });
}

BOOL PX_Posix_Platform::EnumPortsW(wchar_t*, DWORD level, BYTE* records, DWORD size, DWORD* needed,
                                   DWORD* count) {
    PX_Record_Buffer<PORT_INFO_2W> ports;
    // A failure gives none.
    ports.give(nullptr, 0, needed, count);
    return m_last_error->attempt(L"The ports", [&] {
        if (level != 2)
            px_fail(EINVAL);
        constexpr DWORD written_and_read = 3;
        for (const auto& [port, device] : m_files->ports()) {
            ports.add({}).fPortType = written_and_read;
            ports.set_text(&PORT_INFO_2W::pPortName, port.text() + L":");
            ports.set_text(&PORT_INFO_2W::pMonitorName, L"Local Port");
            ports.set_text(&PORT_INFO_2W::pDescription,
                           port.kind == PX_Port_Kind::Serial ? L"Serial port" : L"Parallel port");
        }
        return ports.give(records, size, needed, count);
    });
}
