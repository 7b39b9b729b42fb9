#pragma once

// Not <termios.h>: the rates without a name are in the kernel's own settings.
#include <asm/ioctls.h>
#include <asm/termbits.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <string>

#include "tests/support/bytes.h"

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
