#pragma once

#include <memory>

#include "examples/plot_host/host_platform.h"

namespace plot_host {

// Stops the platform at the first Ctrl-C or termination while it lives, and goes on to empty the ports, so
// that nothing waits for a dead device. A box that waits for an answer gets none any more, which is Abort.
// The second one ends the program as ever. One at a time in a process.
class Interrupt {
public:
    explicit Interrupt(Host_Platform& platform);
    ~Interrupt();
    Interrupt(const Interrupt&) = delete;
    Interrupt& operator=(const Interrupt&) = delete;

    bool was_caught() const;

private:
    // What the system of the machine takes for it.
    struct Watch;
    std::unique_ptr<Watch> m_watch;
};

}  // namespace plot_host
