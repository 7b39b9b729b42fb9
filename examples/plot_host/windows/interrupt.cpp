#include "examples/plot_host/interrupt.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace plot_host {
namespace {

constexpr auto pause = std::chrono::milliseconds(50);

std::mutex lock;
std::condition_variable told;
bool caught = false;
bool is_over = false;

// Called on a thread of its own. Not for the second one: then Windows does what it does without us.
BOOL WINAPI on_control(DWORD) {
    const std::lock_guard hold(lock);
    if (caught)
        return FALSE;
    caught = true;
    told.notify_all();
    return TRUE;
}

BOOL CALLBACK abort_box(HWND window, LPARAM) {
    PostMessageW(window, WM_COMMAND, IDABORT, 0);
    return TRUE;
}

}  // namespace

struct Interrupt::Watch {
    explicit Watch(Host_Platform& watched);
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    void go_on();

    Host_Platform& platform;
    const DWORD asking = GetCurrentThreadId();
    std::thread watcher;
};

Interrupt::Watch::Watch(Host_Platform& watched) : platform(watched) {
    caught = is_over = false;
    watcher = std::thread([this] { go_on(); });
    SetConsoleCtrlHandler(on_control, TRUE);
}

Interrupt::Watch::~Watch() {
    SetConsoleCtrlHandler(on_control, FALSE);
    {
        const std::lock_guard hold(lock);
        is_over = true;
        told.notify_all();
    }
    watcher.join();
}

void Interrupt::Watch::go_on() {
    std::unique_lock hold(lock);
    told.wait(hold, [] { return caught || is_over; });
    while (!is_over) {
        platform.stop();
        platform.purge_ports();
        EnumThreadWindows(asking, abort_box, 0);
        told.wait_for(hold, pause, [] { return is_over; });
    }
}

Interrupt::Interrupt(Host_Platform& platform) : m_watch(new Watch(platform)) {
}

Interrupt::~Interrupt() = default;

bool Interrupt::was_caught() const {
    const std::lock_guard hold(lock);
    return caught;
}

}  // namespace plot_host
