#include "examples/plot_host/host_platform.h"

#include <chrono>
#include <cstdint>

namespace plot_host {
namespace {

using Clock = std::chrono::steady_clock;

constexpr DWORD turn = 200;
constexpr COMMTIMEOUTS hardly_any_time = {0, 0, 0, 0, 1};

}  // namespace

bool Host_Platform::is_port(HANDLE file) {
    const std::lock_guard lock(m_lock);
    return m_ports.contains(file);
}

void Host_Platform::purge_ports() {
    const std::lock_guard lock(m_lock);
    for (const HANDLE port : m_ports)
        PurgeComm(port, PURGE_TXABORT | PURGE_TXCLEAR);
}

void Host_Platform::close_ports() {
    while (true) {
        HANDLE left = nullptr;
        {
            const std::lock_guard lock(m_lock);
            if (m_ports.empty())
                return;
            left = *m_ports.begin();
        }
        CloseHandle(left);
    }
}

HANDLE Host_Platform::CreateFileW(const wchar_t* name, DWORD access, DWORD share,
                                  SECURITY_ATTRIBUTES* security, DWORD disposition, DWORD attributes,
                                  HANDLE file_template) {
    const HANDLE file =
        Machine::CreateFileW(name, access, share, security, disposition, attributes, file_template);
    // The toolkit opens what is there only where it is a port.
    if (file != INVALID_HANDLE_VALUE && disposition == OPEN_EXISTING) {
        const std::lock_guard lock(m_lock);
        m_ports.insert(file);
    }
    return file;
}

BOOL Host_Platform::WriteFile(HANDLE file, const void* bytes, DWORD size, DWORD* written,
                              OVERLAPPED* overlapped) {
    if (!is_port(file) || !bytes || overlapped)
        return explained(Machine::WriteFile(file, bytes, size, written, overlapped));
    DWORD done = 0;
    const bool passed = write_in_turns(file, static_cast<const char*>(bytes), size, done);
    if (written)
        *written = done;
    return passed;
}

bool Host_Platform::write_in_turns(HANDLE port, const char* bytes, DWORD size, DWORD& done) {
    COMMTIMEOUTS asked{};
    if (!GetCommTimeouts(port, &asked))
        return false;
    COMMTIMEOUTS short_turn = asked;
    short_turn.WriteTotalTimeoutMultiplier = 0;
    short_turn.WriteTotalTimeoutConstant = turn;
    SetCommTimeouts(port, &short_turn);
    const std::uint64_t time =
        asked.WriteTotalTimeoutConstant + std::uint64_t{asked.WriteTotalTimeoutMultiplier} * size;
    const auto end = Clock::now() + std::chrono::milliseconds(time);
    bool passed = true;
    while (passed && done < size && !m_stopped && (time == 0 || Clock::now() < end)) {
        DWORD some = 0;
        passed = explained(Machine::WriteFile(port, bytes + done, size - done, &some, nullptr)) != 0;
        done += some;
    }
    limit_closing(port, m_stopped ? hardly_any_time : asked);
    SetCommTimeouts(port, &asked);
    return passed && !m_stopped;
}

// A port closes within the time-out of its last write: here one of no bytes.
void Host_Platform::limit_closing(HANDLE port, const COMMTIMEOUTS& timeouts) {
    COMMTIMEOUTS limit = timeouts;
    SetCommTimeouts(port, &limit);
    DWORD none = 0;
    Machine::WriteFile(port, "", 0, &none, nullptr);
}

BOOL Host_Platform::CloseHandle(HANDLE file) {
    if (is_port(file)) {
        if (m_stopped)
            limit_closing(file, hardly_any_time);
        const BOOL closed = Machine::CloseHandle(file);
        const std::lock_guard lock(m_lock);
        m_ports.erase(file);
        return closed;
    }
    return Machine::CloseHandle(file);
}

HANDLE Host_Platform::ConnectToPrinterDlg(HWND, DWORD) {
    return nullptr;
}

DWORD Host_Platform::StartDocPrinterW(HANDLE printer, DWORD level, BYTE* info) {
    const DWORD job = Machine::StartDocPrinterW(printer, level, info);
    m_jobs[printer] = job;
    return job;
}

BOOL Host_Platform::WritePrinter(HANDLE printer, void* bytes, DWORD size, DWORD* written) {
    return explained(Machine::WritePrinter(printer, bytes, size, written));
}

BOOL Host_Platform::explained(BOOL written) {
    m_write_failure = written ? L"" : last_error();
    return written;
}

// Half a plot is paper for the bin.
BOOL Host_Platform::EndDocPrinter(HANDLE printer) {
    if (m_stopped)
        SetJobW(printer, m_jobs[printer], 0, nullptr, JOB_CONTROL_CANCEL);
    m_jobs.erase(printer);
    return Machine::EndDocPrinter(printer);
}

}  // namespace plot_host
