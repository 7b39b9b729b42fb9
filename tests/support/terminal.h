#pragma once

#include <gtest/gtest.h>
#include <pty.h>
#include <unistd.h>

#include <string>
#include <utility>

#include "tests/support/bytes.h"

inline std::string read_all(int fd) {
    std::string all;
    char some[4096];
    for (ssize_t got; (got = read(fd, some, sizeof some)) > 0;)
        all.append(some, static_cast<std::size_t>(got));
    return all;
}

// A terminal that passes lines as they are; what is typed waits until a box asks.
class Terminal {
public:
    Terminal() {
        EXPECT_EQ(openpty(&m_user, &program, nullptr, nullptr, nullptr), 0);
        termios plain{};
        tcgetattr(program, &plain);
        plain.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        plain.c_oflag &= ~static_cast<tcflag_t>(OPOST);
        tcsetattr(program, TCSANOW, &plain);
    }
    ~Terminal() {
        close(program);
        close(m_user);
    }
    void type(const std::string& keys) {
        EXPECT_EQ(write(m_user, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
    }
    // Hangs up.
    std::string shown() {
        close(std::exchange(program, -1));
        return read_all(m_user);
    }

    int program = -1;

private:
    int m_user = -1;
};
