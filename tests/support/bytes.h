#pragma once

#include <poll.h>
#include <unistd.h>

#include <filesystem>
#include <string>

// Not by the C locale, which path::wstring asks.
inline std::wstring wide(const std::filesystem::path& path) {
    const std::u32string text = path.u32string();
    return {text.begin(), text.end()};
}

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
