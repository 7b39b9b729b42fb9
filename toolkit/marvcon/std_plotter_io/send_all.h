#pragma once

#include <algorithm>
#include <limits>

#include "toolkit/marvcon/std_plotter_io/channel.h"

// The loop that both routes write by. `write_some(bytes, size, written)` is the system's call; when it fails
// or takes nothing, `ask(failed)` gives the user's answer. The result is the number of bytes taken, of no
// more than it can tell, -1 after an Abort.
template <class Write_Some, class Ask>
long PX_Std_Plotter_IO::send_all(const char* bytes, unsigned long size, Write_Some write_some, Ask ask) {
    size = std::min(size, static_cast<unsigned long>(std::numeric_limits<long>::max()));
    unsigned long count = 0;
    while (count < size) {
        const auto left =
            static_cast<DWORD>(std::min<unsigned long long>(size - count, std::numeric_limits<DWORD>::max()));
        DWORD written = 0;
        const bool failed = !write_some(bytes + count, left, &written);
        count += written;
        if (!failed && written > 0)
            continue;
        switch (ask(failed)) {
            case PX_Error_Handler::Result_Retry:
                continue;
            case PX_Error_Handler::Result_Abort:
                m_aborted = true;
                return -1;
            default:
                return static_cast<long>(count);
        }
    }
    return static_cast<long>(count);
}
