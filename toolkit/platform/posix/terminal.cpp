#include "toolkit/platform/posix/terminal.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>

namespace {
// Whether a read or write that has just failed is worth another try. The host may keep its descriptors
// non-blocking; a box waits all the same.
bool try_again(int fd, short event) {
    if (errno == EAGAIN) {
        pollfd ready = {fd, event, 0};
        return poll(&ready, 1, -1) > 0 || errno == EINTR;
    }
    return errno == EINTR;
}
}  // namespace

void px_put(int fd, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = write(fd, text.data(), text.size());
        if (written >= 0)
            text.remove_prefix(static_cast<std::size_t>(written));
        else if (!try_again(fd, POLLOUT))
            return;
    }
}

// One byte at a time: what follows the line belongs to the host.
std::optional<std::string> px_get_line(int fd) {
    std::string line;
    for (;;) {
        char c = 0;
        const ssize_t got = read(fd, &c, 1);
        if (got < 0 && try_again(fd, POLLIN))
            continue;
        if (got <= 0)
            return std::nullopt;
        if (c == '\n')
            return line;
        line += c;
    }
}

std::string px_trimmed(const std::string& line) {
    constexpr char blanks[] = " \t\r";
    const std::size_t first = line.find_first_not_of(blanks);
    if (first == std::string::npos)
        return {};
    return line.substr(first, line.find_last_not_of(blanks) - first + 1);
}
