#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "toolkit/platform/posix/port_names.h"
#include "toolkit/platform/posix/serial_line.h"
#include "toolkit/platform/win_types.h"

// A descriptor that is closed with its owner.
class PX_Descriptor {
public:
    explicit PX_Descriptor(int fd) : m_fd(fd) {}
    PX_Descriptor(PX_Descriptor&& other) noexcept : m_fd(other.release()) {}
    PX_Descriptor& operator=(PX_Descriptor&&) = delete;
    ~PX_Descriptor();

    int get() const { return m_fd; }
    int release();

private:
    int m_fd;
};

// A span of time that has begun; 0 milliseconds for one without an end.
class PX_Time_Limit {
public:
    explicit PX_Time_Limit(std::uint64_t milliseconds);

    // What is left of it, as poll takes it.
    int left() const;
    bool is_over() const { return left() == 0; }

private:
    using Clock = std::chrono::steady_clock;
    bool m_ends;
    Clock::time_point m_end{};
};

// A file or a port that is open. What fails throws PX_Failure.
class PX_Open_File {
public:
    // Shared with nobody for `share` 0, else with those that share too.
    static std::shared_ptr<PX_Open_File> of_path(const std::wstring& path, DWORD access, DWORD share,
                                                 bool create);
    // Always for this handle alone.
    static std::shared_ptr<PX_Open_File> of_port(PX_Port_Name port, const std::string& device, DWORD access);

    // `kind` is what the mode of the file says, such as S_IFREG.
    PX_Open_File(PX_Descriptor descriptor, std::wstring name, mode_t kind);
    PX_Open_File(PX_Descriptor descriptor, PX_Port_Name port);
    PX_Open_File(const PX_Open_File&) = delete;
    PX_Open_File& operator=(const PX_Open_File&) = delete;

    const std::wstring& name() const { return m_name; }

    // `done` counts also where they fail. A port that runs out of time is no failure.
    void read(void* bytes, DWORD size, DWORD& done);
    void write(const void* bytes, DWORD size, DWORD& done);

    // A port first sends what it took, see send_rest, and drops what then is left.
    void close();

    // These fail on what is not such a port.
    COMMTIMEOUTS& timeouts();
    DWORD& events();
    DCB get_state();
    void set_state(const DCB& state);
    void purge(DWORD flags);
    DWORD take_errors();

private:
    PX_Serial_Line& line();
    DWORD printer_errors() const;
    bool may_be_signalled(std::size_t size);
    ssize_t write_some(const char* bytes, std::size_t size);
    bool send_rest();
    void await(short event, int milliseconds) const;

    PX_Descriptor m_descriptor;
    std::wstring m_name;
    bool m_is_port;
    mode_t m_kind = 0;  // of a file
    // Whether the size of a file is limited, as far as is known.
    bool m_is_limited = false;
    std::size_t m_bytes_until_asked = 0;
    // Kept from going while another thread purges it.
    std::mutex m_line_lock;
    std::unique_ptr<PX_Serial_Line> m_line;
    COMMTIMEOUTS m_timeouts{};
    DWORD m_events = 0;
    // Of the last write, in milliseconds; 0 for no end.
    std::optional<std::uint64_t> m_send_time;
};
