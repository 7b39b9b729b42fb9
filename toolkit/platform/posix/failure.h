#pragma once

#include <cerrno>
#include <cstring>

// Thrown within one operation of the platform, which keeps the reason and answers that it failed.
struct PX_Failure {
    const char* reason;  // lives for ever
};

// In English, whatever the locale of the host.
[[noreturn]] inline void px_fail(int error = errno) {
    const char* const reason = strerrordesc_np(error);
    throw PX_Failure{reason ? reason : "Unknown error"};
}
