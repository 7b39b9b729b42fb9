#include "toolkit/platform/posix/posix_files.h"
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

PX_Posix_Files::PX_Posix_Files(std::function<void(std::wstring)> keep_error)
    : m_keep_error(std::move(keep_error)) {
}

PX_Posix_Files::~PX_Posix_Files() {
    for (const auto& [handle, file] : m_open)
        attempt(file, [](PX_Open_File& open) { open.close(); });
}

void PX_Posix_Files::map(PX_Port_Name port, std::string device) {
    const std::lock_guard lock(m_lock);
    if (device.empty())
        m_mapped.erase(port);
    else
        m_mapped[port] = std::move(device);
}

PX_Port_Devices PX_Posix_Files::ports() const {
    PX_Port_Devices found = px_found_ports();
    const std::lock_guard lock(m_lock);
    PX_Port_Devices all = m_mapped;
    all.merge(found);
    return all;
}

HANDLE PX_Posix_Files::add(std::shared_ptr<PX_Open_File> file) {
    const std::lock_guard lock(m_lock);
    const HANDLE handle = reinterpret_cast<HANDLE>(++m_last_handle);
    m_open.emplace(handle, std::move(file));
    return handle;
}

std::shared_ptr<PX_Open_File> PX_Posix_Files::find(HANDLE handle) const {
    const std::lock_guard lock(m_lock);
    const auto found = m_open.find(handle);
    return found == m_open.end() ? nullptr : found->second;
}

std::shared_ptr<PX_Open_File> PX_Posix_Files::take(HANDLE handle) {
    const std::lock_guard lock(m_lock);
    const auto taken = m_open.extract(handle);
    return taken ? taken.mapped() : nullptr;
}

bool PX_Posix_Platform::map_port(const wchar_t* name, const char* device) {
    const auto port = px_port_name(name ? name : L"");
    if (!port)
        return false;
    m_files->map(*port, device ? device : "");
    return true;
}

HANDLE PX_Posix_Platform::CreateFileW(const wchar_t* name, DWORD access, DWORD share, SECURITY_ATTRIBUTES*,
                                      DWORD disposition, DWORD, HANDLE) {
    const std::wstring path = name ? name : L"";
    const auto port = disposition == OPEN_EXISTING ? px_port_name(path) : std::nullopt;
    HANDLE handle = INVALID_HANDLE_VALUE;
    m_files->attempt(port ? port->text() : path, [&] {
        if (disposition != OPEN_EXISTING && disposition != CREATE_ALWAYS)
            px_fail(EINVAL);
        if (!port) {
            handle = m_files->add(PX_Open_File::of_path(path, access, share, disposition == CREATE_ALWAYS));
            return;
        }
        const PX_Port_Devices ports = m_files->ports();
        const auto found = ports.find(*port);
        if (found == ports.end())
            px_fail(ENODEV);
        handle = m_files->add(PX_Open_File::of_port(*port, found->second, access));
    });
    return handle;
}

BOOL PX_Posix_Platform::ReadFile(HANDLE file, void* bytes, DWORD size, DWORD* read, OVERLAPPED* overlapped) {
    DWORD done = 0;
    const bool passed = m_files->attempt(m_files->find(file), [&](PX_Open_File& open) {
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
    const bool passed = m_files->attempt(m_files->find(file), [&](PX_Open_File& open) {
        check_transfer(bytes, size, overlapped);
        open.write(bytes, size, done);
    });
    if (written)
        *written = done;
    return passed;
}

BOOL PX_Posix_Platform::CloseHandle(HANDLE file) {
    // It is found until it is closed: another thread may purge a port that waits for its last bytes to go.
    const bool closed = m_files->attempt(m_files->find(file), [](PX_Open_File& open) { open.close(); });
    m_files->take(file);
    return closed;
}

BOOL PX_Posix_Platform::GetCommState(HANDLE port, DCB* state) {
    return m_files->attempt(m_files->find(port), [&](PX_Open_File& open) {
        need(state);
        *state = open.get_state();
    });
}

BOOL PX_Posix_Platform::SetCommState(HANDLE port, DCB* state) {
    return m_files->attempt(m_files->find(port), [&](PX_Open_File& open) {
        need(state);
        open.set_state(*state);
    });
}

BOOL PX_Posix_Platform::GetCommTimeouts(HANDLE port, COMMTIMEOUTS* timeouts) {
    return m_files->attempt(m_files->find(port), [&](PX_Open_File& open) {
        need(timeouts);
        *timeouts = open.timeouts();
    });
}

BOOL PX_Posix_Platform::SetCommTimeouts(HANDLE port, COMMTIMEOUTS* timeouts) {
    return m_files->attempt(m_files->find(port), [&](PX_Open_File& open) {
        need(timeouts);
        open.timeouts() = *timeouts;
    });
}

BOOL PX_Posix_Platform::GetCommMask(HANDLE port, DWORD* events) {
    return m_files->attempt(m_files->find(port), [&](PX_Open_File& open) {
        need(events);
        *events = open.events();
    });
}

BOOL PX_Posix_Platform::SetCommMask(HANDLE port, DWORD events) {
    return m_files->attempt(m_files->find(port), [&](PX_Open_File& open) { open.events() = events; });
}

BOOL PX_Posix_Platform::PurgeComm(HANDLE port, DWORD flags) {
    return m_files->attempt(m_files->find(port), [&](PX_Open_File& open) { open.purge(flags); });
}

BOOL PX_Posix_Platform::ClearCommError(HANDLE port, DWORD* errors, COMSTAT* status) {
    return m_files->attempt(m_files->find(port), [&](PX_Open_File& open) {
        if (status)
            px_fail(ENOTSUP);
        const DWORD taken = open.take_errors();
        if (errors)
            *errors = taken;
    });
}

BOOL PX_Posix_Platform::EnumPortsW(wchar_t*, DWORD level, BYTE* records, DWORD size, DWORD* needed,
                                   DWORD* count) {
    if (level != 2)
        return m_files->attempt(L"The ports", [] { px_fail(EINVAL); });
    constexpr DWORD written_and_read = 3;
    PX_Record_Buffer<PORT_INFO_2W> ports;
    for (const auto& [port, device] : m_files->ports()) {
        ports.add({}).fPortType = written_and_read;
        ports.set_text(&PORT_INFO_2W::pPortName, port.text() + L":");
        ports.set_text(&PORT_INFO_2W::pMonitorName, L"Local Port");
        ports.set_text(&PORT_INFO_2W::pDescription,
                       port.kind == PX_Port_Kind::Serial ? L"Serial port" : L"Parallel port");
    }
    return ports.give(records, size, needed, count);
}
