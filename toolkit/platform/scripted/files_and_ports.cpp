#include <algorithm>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "toolkit/platform/scripted/scripted_platform.h"
#include "toolkit/platform/utf8.h"

namespace {
DCB left_by_nobody() {
    DCB state = {};
    state.DCBlength = sizeof(DCB);
    state.BaudRate = 1200;
    state.fBinary = 1;
    state.fParity = 1;
    state.ByteSize = 7;
    state.Parity = EVENPARITY;
    return state;
}
}  // namespace

void PX_Scripted_Ports::add_port(const std::optional<std::wstring>& name) {
    if (name && port_of(*name))
        return;
    const bool is_serial = name && px_scripted_key(*name).starts_with(L"COM");
    m_ports.push_back({name, is_serial, left_by_nobody(), {}, 0, {}, {}});
}

const PX_Scripted_Ports::Port* PX_Scripted_Ports::port_of(const std::wstring& name) const {
    for (const Port& port : m_ports)
        if (port.name && px_scripted_key(*port.name) == px_scripted_key(name))
            return &port;
    return nullptr;
}

PX_Scripted_Ports::Port* PX_Scripted_Ports::port_of(const std::wstring& name) {
    return const_cast<Port*>(std::as_const(*this).port_of(name));
}

const PX_Scripted_Ports::Port& PX_Scripted_Ports::find(const std::wstring& name) const {
    if (const Port* const port = port_of(name))
        return *port;
    throw std::out_of_range("no port " + px_to_utf8(name));
}

PX_Scripted_Ports::Port& PX_Scripted_Ports::find(const std::wstring& name) {
    return const_cast<Port&>(std::as_const(*this).find(name));
}

void PX_Scripted_Ports::preset_comm_state(const std::wstring& port, const DCB& state) {
    find(port).state = state;
}

void PX_Scripted_Ports::preset_timeouts(const std::wstring& port, const COMMTIMEOUTS& timeouts) {
    find(port).timeouts = timeouts;
}

void PX_Scripted_Ports::preset_event_mask(const std::wstring& port, DWORD events) {
    find(port).events = events;
}

void PX_Scripted_Ports::report_line_errors(const std::wstring& port, DWORD errors) {
    find(port).clearings.push_back({errors, false});
}

void PX_Scripted_Ports::fail_clearing_with_errors(const std::wstring& port, DWORD errors) {
    find(port).clearings.push_back({errors, true});
}

std::vector<std::wstring> PX_Scripted_Ports::open_files() const {
    std::vector<std::wstring> names;
    for (const Open_File& file : m_open_files)
        names.push_back(file.name);
    return names;
}

PX_Scripted_Platform::Open_File* PX_Scripted_Platform::open_file(HANDLE file) {
    const auto found = std::ranges::find(m_open_files, file, &Open_File::handle);
    if (found != m_open_files.end())
        return &*found;
    mark_misuse();
    return nullptr;
}

PX_Scripted_Platform::Port* PX_Scripted_Platform::open_port(HANDLE port) {
    if (std::ranges::count(m_open_printers, port, &Open_Printer::handle) != 0)
        return nullptr;
    const Open_File* const file = open_file(port);
    return file ? file->port : nullptr;
}

PX_Scripted_Platform::Port* PX_Scripted_Platform::open_serial_port(HANDLE port) {
    Port* const found = open_port(port);
    return found && found->is_serial ? found : nullptr;
}

HANDLE PX_Scripted_Platform::CreateFileW(const wchar_t* name, DWORD access, DWORD share, SECURITY_ATTRIBUTES*,
                                         DWORD disposition, DWORD attributes, HANDLE) {
    if (must_fail(__func__, name, access, share, disposition, attributes))
        return INVALID_HANDLE_VALUE;
    const bool creates = disposition == CREATE_ALWAYS;
    if (mark_misuse_if(!name || (!creates && disposition != OPEN_EXISTING)))
        return INVALID_HANDLE_VALUE;
    Port* const port = port_of(name);
    PX_Scripted_Stream& bytes = stream(name);
    if ((!port && !creates) || *name == L'\0' ||
        std::ranges::count(m_open_files, &bytes, &Open_File::stream) != 0)
        return INVALID_HANDLE_VALUE;
    if (!port) {
        bytes.written.clear();
        bytes.written_count = 0;
    }
    const HANDLE handle = new_handle(name);
    m_open_files.push_back({handle, name, access, &bytes, port});
    return handle;
}

BOOL PX_Scripted_Platform::ReadFile(HANDLE file, void* bytes, DWORD size, DWORD* read, OVERLAPPED*) {
    const bool fails = must_fail(__func__, file, size);
    if (read)
        *read = 0;
    if (fails)
        return 0;
    const Open_File* const open = open_file(file);
    if (!open || mark_misuse_if(!read || (!bytes && size > 0) || !(open->access & GENERIC_READ)))
        return 0;
    *read = open->stream->give(bytes, size);
    return 1;
}

BOOL PX_Scripted_Platform::WriteFile(HANDLE file, const void* bytes, DWORD size, DWORD* written,
                                     OVERLAPPED*) {
    const bool fails = must_fail(__func__, file, size);
    if (written)
        *written = 0;
    if (fails)
        return 0;
    const Open_File* const open = open_file(file);
    if (!open || mark_misuse_if(!written || (!bytes && size > 0) || !(open->access & GENERIC_WRITE)))
        return 0;
    return open->stream->take({static_cast<const char*>(bytes), size}, keeps_bytes(), *written);
}

BOOL PX_Scripted_Platform::CloseHandle(HANDLE file) {
    if (must_fail(__func__, file))
        return 0;
    const Open_File* const open = open_file(file);
    if (!open)
        return 0;
    m_open_files.erase(m_open_files.begin() + (open - m_open_files.data()));
    return 1;
}

BOOL PX_Scripted_Platform::GetCommState(HANDLE port, DCB* state) {
    if (must_fail(__func__, port))
        return 0;
    const Port* const serial = open_serial_port(port);
    if (!serial || mark_misuse_if(!state))
        return 0;
    *state = serial->state;
    return 1;
}

BOOL PX_Scripted_Platform::SetCommState(HANDLE port, DCB* state) {
    if (must_fail(__func__, port, state))
        return 0;
    Port* const serial = open_serial_port(port);
    if (!serial || mark_misuse_if(!state))
        return 0;
    serial->state = *state;
    return 1;
}

BOOL PX_Scripted_Platform::GetCommTimeouts(HANDLE port, COMMTIMEOUTS* timeouts) {
    if (must_fail(__func__, port))
        return 0;
    const Port* const found = open_port(port);
    if (!found || mark_misuse_if(!timeouts))
        return 0;
    *timeouts = found->timeouts;
    return 1;
}

BOOL PX_Scripted_Platform::SetCommTimeouts(HANDLE port, COMMTIMEOUTS* timeouts) {
    if (must_fail(__func__, port, timeouts))
        return 0;
    Port* const found = open_port(port);
    if (!found || mark_misuse_if(!timeouts))
        return 0;
    found->timeouts = *timeouts;
    return 1;
}

BOOL PX_Scripted_Platform::GetCommMask(HANDLE port, DWORD* events) {
    if (must_fail(__func__, port))
        return 0;
    const Port* const serial = open_serial_port(port);
    if (!serial || mark_misuse_if(!events))
        return 0;
    *events = serial->events;
    return 1;
}

BOOL PX_Scripted_Platform::SetCommMask(HANDLE port, DWORD events) {
    if (must_fail(__func__, port, events))
        return 0;
    Port* const serial = open_serial_port(port);
    if (!serial)
        return 0;
    serial->events = events;
    return 1;
}

BOOL PX_Scripted_Platform::PurgeComm(HANDLE port, DWORD flags) {
    if (must_fail(__func__, port, flags))
        return 0;
    Port* const found = open_port(port);
    if (!found)
        return 0;
    found->purges.push_back(flags);
    if (flags & PURGE_RXCLEAR)
        open_file(port)->stream->arrivals.clear();
    return 1;
}

BOOL PX_Scripted_Platform::ClearCommError(HANDLE port, DWORD* errors, COMSTAT* status) {
    if (must_fail(__func__, port))
        return 0;
    Port* const found = open_port(port);
    if (!found || mark_misuse_if(!errors || status))
        return 0;
    Clearing clearing{0, false};
    if (!found->clearings.empty()) {
        clearing = found->clearings.front();
        found->clearings.pop_front();
    }
    *errors = clearing.errors;
    return !clearing.fails;
}
