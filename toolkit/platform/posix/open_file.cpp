#include "toolkit/platform/posix/open_file.h"

#include <fcntl.h>
#include <linux/lp.h>
#include <poll.h>
#include <pthread.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <optional>
#include <thread>
#include <utility>

#include "toolkit/platform/posix/failure.h"
#include "toolkit/platform/utf8.h"

namespace {
constexpr DWORD no_limit = 0xFFFFFFFF;  // what Windows calls MAXDWORD
constexpr std::uint64_t longest_send_time = 3'600'000;
constexpr std::chrono::milliseconds short_while{5};

int access_flags(DWORD access) {
    switch (access & (GENERIC_READ | GENERIC_WRITE)) {
        case GENERIC_READ | GENERIC_WRITE:
            return O_RDWR;
        case GENERIC_READ:
            return O_RDONLY;
        case GENERIC_WRITE:
            return O_WRONLY;
        default:
            px_fail(EINVAL);
    }
}

PX_Descriptor open_device(const std::string& path, int flags) {
    constexpr mode_t everybody = 0666;
    const int fd = open(path.c_str(), flags | O_NOCTTY | O_NONBLOCK | O_CLOEXEC, everybody);
    if (fd < 0)
        px_fail();
    return PX_Descriptor(fd);
}

void lock(const PX_Descriptor& descriptor, int kind) {
    if (flock(descriptor.get(), kind | LOCK_NB) != 0)
        px_fail(errno == EWOULDBLOCK ? EBUSY : errno);
}

struct stat status_of(const PX_Descriptor& descriptor) {
    struct stat status {};
    if (fstat(descriptor.get(), &status) != 0)
        px_fail();
    return status;
}

std::uint64_t total_time(DWORD constant, DWORD multiplier, DWORD size) {
    return constant + std::uint64_t{multiplier} * size;
}

// Keeps the signals from this thread that a write is answered with when a limit of the file size is reached
// or nobody reads; the error tells.
class Write_Signals {
public:
    Write_Signals() {
        sigemptyset(&m_ours);
        sigset_t pending;
        sigpending(&pending);
        for (const int signal : {SIGXFSZ, SIGPIPE})
            if (!sigismember(&pending, signal))
                sigaddset(&m_ours, signal);
        pthread_sigmask(SIG_BLOCK, &m_ours, &m_before);
    }
    ~Write_Signals() {
        const int error = errno;
        constexpr timespec at_once{};
        while (sigtimedwait(&m_ours, nullptr, &at_once) > 0 || errno == EINTR) {
        }
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
        errno = error;
    }
    Write_Signals(const Write_Signals&) = delete;
    Write_Signals& operator=(const Write_Signals&) = delete;

private:
    sigset_t m_ours;
    sigset_t m_before;
};

bool is_for_later(int error) {
    return error == EAGAIN || error == EINTR;
}

// How long a read waits, and for what.
class Read_Time {
public:
    Read_Time(const COMMTIMEOUTS& timeouts, DWORD size)
        : m_no_wait(timeouts.ReadIntervalTimeout == no_limit && timeouts.ReadTotalTimeoutMultiplier == 0 &&
                    timeouts.ReadTotalTimeoutConstant == 0),
          m_any_will_do(timeouts.ReadIntervalTimeout == no_limit &&
                        timeouts.ReadTotalTimeoutMultiplier == no_limit),
          m_interval(timeouts.ReadIntervalTimeout),
          m_total(total_time(timeouts.ReadTotalTimeoutConstant,
                             m_any_will_do ? 0 : timeouts.ReadTotalTimeoutMultiplier, size)) {}

    DWORD interval() const { return m_interval; }

    // What is left when there is nothing to read, as poll takes it; `since_last` began with the last bytes.
    int left(const std::optional<PX_Time_Limit>& since_last) const {
        if (m_no_wait || (m_any_will_do && since_last))
            return 0;
        const int total = m_total.left();
        const int interval = since_last ? since_last->left() : -1;
        return total < 0 || interval < 0 ? std::max(total, interval) : std::min(total, interval);
    }

private:
    bool m_no_wait;
    bool m_any_will_do;
    DWORD m_interval;
    PX_Time_Limit m_total;
};

// A pipe that its own end could read from would never tell that nobody else does, and some printers only
// listen.
PX_Descriptor open_printer(const std::string& device, int flags) {
    struct stat status {};
    const bool is_pipe = stat(device.c_str(), &status) == 0 && S_ISFIFO(status.st_mode);
    if (flags == O_RDWR && !is_pipe) {
        try {
            return open_device(device, flags);
        } catch (const PX_Failure&) {
            return open_device(device, O_WRONLY);
        }
    }
    return open_device(device, flags == O_RDWR ? O_WRONLY : flags);
}
}  // namespace

PX_Descriptor::~PX_Descriptor() {
    if (m_fd >= 0)
        ::close(m_fd);
}

int PX_Descriptor::release() {
    return std::exchange(m_fd, -1);
}

PX_Time_Limit::PX_Time_Limit(std::uint64_t milliseconds) : m_ends(milliseconds > 0) {
    // Multipliers reach times that no clock can hold.
    constexpr std::uint64_t a_century = 100ULL * 366 * 24 * 3'600'000;
    if (m_ends)
        m_end = Clock::now() + std::chrono::milliseconds(std::min(milliseconds, a_century));
}

int PX_Time_Limit::left() const {
    if (!m_ends)
        return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(m_end - Clock::now()).count();
    return static_cast<int>(std::clamp<decltype(left)>(left, 0, INT_MAX));
}

std::shared_ptr<PX_Open_File> PX_Open_File::of_path(const std::wstring& path, DWORD access, DWORD share,
                                                    bool create) {
    const int flags = access_flags(access);
    if (create && flags == O_RDONLY)
        px_fail(EINVAL);
    PX_Descriptor descriptor = open_device(px_to_utf8(path), create ? flags | O_CREAT : flags);
    const struct stat status = status_of(descriptor);
    if (S_ISDIR(status.st_mode))
        px_fail(EISDIR);
    lock(descriptor, share == 0 ? LOCK_EX : LOCK_SH);
    if (create && S_ISREG(status.st_mode) && ftruncate(descriptor.get(), 0) != 0)
        px_fail();
    // Opening must not wait for a reader of a pipe or for a carrier; a file has no time-outs, though.
    if (fcntl(descriptor.get(), F_SETFL, flags) != 0)
        px_fail();
    return std::make_shared<PX_Open_File>(std::move(descriptor), path, status.st_mode & S_IFMT);
}

std::shared_ptr<PX_Open_File> PX_Open_File::of_port(PX_Port_Name port, const std::string& device,
                                                    DWORD access) {
    PX_Descriptor descriptor = port.kind == PX_Port_Kind::Serial ? open_device(device, access_flags(access))
                                                                 : open_printer(device, access_flags(access));
    lock(descriptor, LOCK_EX);
    return std::make_shared<PX_Open_File>(std::move(descriptor), port);
}

PX_Open_File::PX_Open_File(PX_Descriptor descriptor, std::wstring name, mode_t kind)
    : m_descriptor(std::move(descriptor)), m_name(std::move(name)), m_is_port(false), m_kind(kind) {
}

PX_Open_File::PX_Open_File(PX_Descriptor descriptor, PX_Port_Name port)
    : m_descriptor(std::move(descriptor)), m_name(port.text()), m_is_port(true) {
    if (port.kind == PX_Port_Kind::Serial)
        m_line = std::make_unique<PX_Serial_Line>(m_descriptor.get());
}

void PX_Open_File::read(void* bytes, DWORD size, DWORD& done) {
    const Read_Time time(m_timeouts, size);
    std::optional<PX_Time_Limit> since_last;
    while (done < size) {
        const ssize_t got = ::read(m_descriptor.get(), static_cast<char*>(bytes) + done, size - done);
        if (got > 0) {
            done += static_cast<DWORD>(got);
            since_last.emplace(time.interval());
        } else if (got == 0) {
            if (m_line)
                px_fail(EIO);
            return;
        } else if (!is_for_later(errno)) {
            px_fail();
        } else if (errno == EAGAIN) {
            const int left = time.left(since_last);
            if (left == 0)
                return;
            await(POLLIN, left);
        }
    }
}

// A device sends none of the signals, and a file only the one for its size, where that is limited. To keep
// them off, and even to ask for the limit, costs a good part of a small write: it is asked for with the first
// one, and then every once in a while.
bool PX_Open_File::may_be_signalled(std::size_t size) {
    constexpr std::size_t a_while = 256 * 1024;
    if (m_kind != S_IFREG)
        return m_kind != S_IFCHR;
    if (m_bytes_until_asked < size) {
        rlimit limit{};
        m_is_limited = getrlimit(RLIMIT_FSIZE, &limit) != 0 || limit.rlim_cur != RLIM_INFINITY;
        m_bytes_until_asked = a_while;
    }
    m_bytes_until_asked -= std::min(m_bytes_until_asked, size);
    return m_is_limited;
}

ssize_t PX_Open_File::write_some(const char* bytes, std::size_t size) {
    if (!may_be_signalled(size))
        return ::write(m_descriptor.get(), bytes, size);
    const Write_Signals kept_off;
    return ::write(m_descriptor.get(), bytes, size);
}

void PX_Open_File::write(const void* bytes, DWORD size, DWORD& done) {
    const std::uint64_t time =
        total_time(m_timeouts.WriteTotalTimeoutConstant, m_timeouts.WriteTotalTimeoutMultiplier, size);
    m_send_time = time;
    const PX_Time_Limit limit(time);
    for (bool stalled = false; done < size;) {
        const ssize_t put = write_some(static_cast<const char*>(bytes) + done, size - done);
        if (put > 0) {
            done += static_cast<DWORD>(put);
            stalled = false;
        } else if (put < 0 && !is_for_later(errno)) {
            px_fail();
        } else {
            await(POLLOUT, limit.left());
            // Some devices say that they are ready and are not.
            if (std::exchange(stalled, true))
                std::this_thread::sleep_for(short_while);
        }
        if (limit.is_over())
            return;
    }
}

void PX_Open_File::close() {
    bool is_sent = true;
    if (m_is_port) {
        try {
            is_sent = send_rest();
            if (!is_sent && m_line)
                m_line->purge(PURGE_TXCLEAR);
        } catch (const PX_Failure&) {
            // The other end is gone, and the bytes with it.
        }
    }
    const std::lock_guard lock(m_line_lock);
    m_line.reset();
    // A process that was forked off may hold the descriptor still.
    flock(m_descriptor.get(), LOCK_UN);
    if (::close(m_descriptor.release()) != 0 && errno != EINTR)
        px_fail();
    if (!is_sent)
        throw PX_Failure{"The last bytes did not go out within the time-out"};
}

COMMTIMEOUTS& PX_Open_File::timeouts() {
    if (!m_is_port)
        px_fail(ENOTTY);
    return m_timeouts;
}

DWORD& PX_Open_File::events() {
    line();
    return m_events;
}

DCB PX_Open_File::get_state() {
    return line().get_state();
}

void PX_Open_File::set_state(const DCB& state) {
    PX_Serial_Line& serial = line();
    if (!send_rest())
        throw PX_Failure{"Bytes wait to go out with the settings they were written for"};
    serial.set_state(state);
}

void PX_Open_File::purge(DWORD flags) {
    const std::lock_guard lock(m_line_lock);
    line().purge(flags);
}

DWORD PX_Open_File::take_errors() {
    return m_is_port && !m_line ? printer_errors() : line().take_errors();
}

PX_Serial_Line& PX_Open_File::line() {
    if (!m_line)
        px_fail(ENOTTY);
    return *m_line;
}

DWORD PX_Open_File::printer_errors() const {
    int status = 0;
    if (ioctl(m_descriptor.get(), LPGETSTATUS, &status) != 0)
        return 0;
    DWORD errors = 0;
    if (status & LP_POUTPA)
        errors |= CE_OOP;
    if (!(status & LP_PSELECD))
        errors |= CE_DNS;
    if (!(status & LP_PERRORP))
        errors |= CE_PTO;
    return errors;
}

// Waits until all that was taken is out, as long as bytes go out: without one, the time-out of the last write
// ends it, and an hour in any case. The result is whether all went.
bool PX_Open_File::send_rest() {
    if (!m_send_time)
        return true;
    const std::uint64_t time =
        *m_send_time == 0 ? longest_send_time : std::min(*m_send_time, longest_send_time);
    const PX_Time_Limit whole(longest_send_time);
    std::optional<PX_Time_Limit> standstill(time);
    if (!m_line) {
        await(POLLOUT, standstill->left());
        return true;
    }
    for (int before = m_line->unsent(); before > 0;) {
        if (standstill->is_over() || whole.is_over())
            return false;
        std::this_thread::sleep_for(short_while);
        if (const int now = m_line->unsent(); now < std::exchange(before, now))
            standstill.emplace(time);
    }
    return true;
}

// Comes back when the descriptor is ready, the time over, or a signal came in between.
void PX_Open_File::await(short event, int milliseconds) const {
    pollfd ready{m_descriptor.get(), event, 0};
    if (poll(&ready, 1, milliseconds) < 0 && errno != EINTR)
        px_fail();
    if ((ready.revents & (POLLERR | POLLHUP | POLLNVAL)) && !(ready.revents & event))
        px_fail(EIO);
}
