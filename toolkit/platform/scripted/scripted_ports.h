#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/platform/scripted/scripted_streams.h"

// The ports and files of the scripted machine. A name that begins with COM is a serial port; any other port
// has time-outs, but no comm state and no event mask. A file can be had under any path and has neither.
// Whatever is open is open once. A set-up call about a port that was not added throws std::out_of_range.
class PX_Scripted_Ports : public PX_Scripted_Streams {
public:
    // Listed in this order, and opened by its name with or without a colon. One without a name is only
    // listed. Added again, it is the same port.
    void add_port(const std::optional<std::wstring>& name);

    // What an earlier program left. At first 1200 baud with seven bits and even parity, and 0 for the rest.
    void preset_comm_state(const std::wstring& port, const DCB& state);
    // Likewise; all 0 at first.
    void preset_timeouts(const std::wstring& port, const COMMTIMEOUTS& timeouts);
    // Likewise; 0 at first.
    void preset_event_mask(const std::wstring& port, DWORD events);

    // These three tell what the port is left with.
    DCB comm_state_of(const std::wstring& port) const { return find(port).state; }
    COMMTIMEOUTS timeouts_of(const std::wstring& port) const { return find(port).timeouts; }
    DWORD event_mask_of(const std::wstring& port) const { return find(port).events; }
    // The flags of every purge.
    const std::vector<DWORD>& purges_of(const std::wstring& port) const { return find(port).purges; }

    // The next ClearCommError succeeds with these errors. Those that follow are served one after the other;
    // then there are none.
    void report_line_errors(const std::wstring& port, DWORD errors);
    // Likewise, but it gives the errors and fails.
    void fail_clearing_with_errors(const std::wstring& port, DWORD errors);

    // The names, as they were given, of what CreateFileW opened and nobody has closed, in their order.
    std::vector<std::wstring> open_files() const;

protected:
    // What one ClearCommError gives.
    struct Clearing {
        DWORD errors;
        bool fails;
    };
    // A port, and what it was left with.
    struct Port {
        std::optional<std::wstring> name;
        bool is_serial;
        DCB state;
        COMMTIMEOUTS timeouts;
        DWORD events;
        std::vector<DWORD> purges;
        std::deque<Clearing> clearings;
    };
    // A port or a file that CreateFileW opened.
    struct Open_File {
        HANDLE handle;
        std::wstring name;
        DWORD access;
        PX_Scripted_Stream* stream;
        // Null for a file.
        Port* port;
    };

    PX_Scripted_Ports() = default;
    ~PX_Scripted_Ports() = default;

    // Null when there is none.
    const Port* port_of(const std::wstring& name) const;
    // Likewise, to be changed.
    Port* port_of(const std::wstring& name);

    std::deque<Port> m_ports;
    std::vector<Open_File> m_open_files;

private:
    const Port& find(const std::wstring& name) const;
    Port& find(const std::wstring& name);
};
