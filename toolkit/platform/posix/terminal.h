#pragma once

#include <optional>
#include <string>
#include <string_view>

// Asking on a terminal, by descriptors that are the host's.

void px_put(int fd, std::string_view text);

// A line without its end. Nothing at the end of the input.
std::optional<std::string> px_get_line(int fd);

// Without the blanks around it.
std::string px_trimmed(const std::string& line);
