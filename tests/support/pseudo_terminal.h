#pragma once

// Not <termios.h>: the rates without a name are in the kernel's own settings.
#include <asm/ioctls.h>
#include <asm/termbits.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <string>

// A serial line whose other end is ours. The line is held open, so that this end sees no hang-up when the
// port is closed.
class Pseudo_Terminal {
public:
    Pseudo_Terminal() : m_end(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
        EXPECT_EQ(grantpt(m_end), 0);
        EXPECT_EQ(unlockpt(m_end), 0);
        m_name = ptsname(m_end);
        m_line = open(m_name.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
        EXPECT_GE(m_line, 0);
    }
    Pseudo_Terminal(const Pseudo_Terminal&) = delete;
    Pseudo_Terminal& operator=(const Pseudo_Terminal&) = delete;
    ~Pseudo_Terminal() {
        hang_up();
        close(m_line);
    }

    const char* name() const { return m_name.c_str(); }
    int end() const { return m_end; }
    void hang_up() {
        if (m_end >= 0)
            close(m_end);
        m_end = -1;
    }

    termios2 settings() const {
        termios2 now{};
        EXPECT_EQ(ioctl(m_line, TCGETS2, &now), 0);
        return now;
    }

private:
    int m_end;
    int m_line = -1;
    std::string m_name;
};

// Reads until there are `size` bytes, or none came for ten seconds.
inline std::string read_bytes(int fd, std::size_t size, unsigned int pause_microseconds = 0) {
    std::string all;
    char some[4096];
    pollfd ready{fd, POLLIN, 0};
    while (all.size() < size && poll(&ready, 1, 10000) > 0) {
        const ssize_t got = read(fd, some, sizeof some);
        if (got <= 0)
            break;
        all.append(some, static_cast<std::size_t>(got));
        usleep(pause_microseconds);
    }
    return all;
}

// Bytes of every value that do not repeat soon.
inline std::string test_bytes(std::size_t size) {
    std::string bytes;
    for (std::size_t at = 0; at < size; ++at)
        bytes += static_cast<char>(at * 7 + at / 251);
    return bytes;
}
