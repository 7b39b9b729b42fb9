#pragma once

#include <atomic>
#include <map>
#include <mutex>
#include <set>
#include <string>

// In the folder of the system: posix or windows.
#include "machine.h"

namespace plot_host {

// The machine, with a way out of a plot: once it was stopped, no port waits any longer, and a print job that
// is not whole is cancelled when it ends.
class Host_Platform : public Machine {
public:
    // From any thread, not from a signal handler.
    void stop() { m_stopped = true; }
    bool is_stopped() const { return m_stopped; }
    // Why the last write failed, such as "LPT1: Input/output error"; empty when it did not.
    const std::wstring& write_failure() const { return m_write_failure; }
    // Throws away what the open serial lines still hold; from any thread. What waits for that comes back.
    void purge_ports();

    // Of a channel that was refused its settings the port stays open.
    void close_ports();

    HANDLE CreateFileW(const wchar_t* name, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security,
                       DWORD disposition, DWORD attributes, HANDLE file_template) override;
    // To a port, in short turns, so that stopping is noticed.
    BOOL WriteFile(HANDLE file, const void* bytes, DWORD size, DWORD* written,
                   OVERLAPPED* overlapped) override;
    BOOL CloseHandle(HANDLE file) override;
    // Nobody is asked for another queue: the user has said where to.
    HANDLE ConnectToPrinterDlg(HWND owner, DWORD flags) override;
    DWORD StartDocPrinterW(HANDLE printer, DWORD level, BYTE* info) override;
    BOOL WritePrinter(HANDLE printer, void* bytes, DWORD size, DWORD* written) override;
    BOOL EndDocPrinter(HANDLE printer) override;

private:
    bool is_port(HANDLE file);
    BOOL explained(BOOL written);
    bool write_in_turns(HANDLE port, const char* bytes, DWORD size, DWORD& done);
    void limit_closing(HANDLE port, const COMMTIMEOUTS& timeouts);

    std::atomic<bool> m_stopped = false;
    std::mutex m_lock;
    std::set<HANDLE> m_ports;
    std::map<HANDLE, DWORD> m_jobs;
    std::wstring m_write_failure;
};

}  // namespace plot_host
