#include "examples/plot_host/interrupt.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <stdexcept>
#include <system_error>
#include <thread>

namespace plot_host {
namespace {

constexpr int signals[] = {SIGINT, SIGTERM};
constexpr char was_signal = 's';
constexpr char to_end = 'e';

std::atomic<bool> caught = false;
std::atomic<int> wake_fd = -1;
std::atomic<int> nothing_fd = -1;
struct sigaction former[std::size(signals)];

extern "C" void on_signal(int) {
    const int error = errno;
    caught = true;
    // The next one, of either kind, ends the program.
    for (std::size_t at = 0; at < std::size(signals); ++at) {
        if (former[at].sa_handler != SIG_IGN)
            signal(signals[at], SIG_DFL);
    }
    // What reads an answer now is interrupted, and at the end of the file.
    dup2(nothing_fd, STDIN_FILENO);
    [[maybe_unused]] const ssize_t put = write(wake_fd, &was_signal, 1);
    errno = error;
}

}  // namespace

struct Interrupt::Watch {
    explicit Watch(Host_Platform& watched);
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    void go_on();

    Host_Platform& platform;
    int wake[2] = {-1, -1};
    int answers = -1;
    std::thread watcher;
};

Interrupt::Watch::Watch(Host_Platform& watched) : platform(watched) {
    if (pipe2(wake, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe can be had: " + std::generic_category().message(errno));
    caught = false;
    wake_fd = wake[1];
    nothing_fd = open("/dev/null", O_RDONLY | O_CLOEXEC);
    answers = fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 3);
    // The signals are for this thread, whose reading they interrupt.
    sigset_t all, mine;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &mine);
    watcher = std::thread([this] { go_on(); });
    pthread_sigmask(SIG_SETMASK, &mine, nullptr);
    struct sigaction action {};
    action.sa_handler = on_signal;
    for (std::size_t at = 0; at < std::size(signals); ++at) {
        sigaction(signals[at], nullptr, &former[at]);
        if (former[at].sa_handler != SIG_IGN)
            sigaction(signals[at], &action, nullptr);
    }
}

Interrupt::Watch::~Watch() {
    for (std::size_t at = 0; at < std::size(signals); ++at)
        sigaction(signals[at], &former[at], nullptr);
    [[maybe_unused]] const ssize_t put = write(wake[1], &to_end, 1);
    watcher.join();
    if (answers >= 0) {
        dup2(answers, STDIN_FILENO);
        close(answers);
    }
    close(nothing_fd.exchange(-1));
    close(wake[0]);
    close(wake[1]);
}

void Interrupt::Watch::go_on() {
    constexpr int pause = 50;
    pollfd ready{wake[0], POLLIN, 0};
    for (;;) {
        if (poll(&ready, 1, platform.is_stopped() ? pause : -1) > 0) {
            char word = to_end;
            if (read(wake[0], &word, 1) != 1 || word == to_end)
                return;
            platform.stop();
        }
        if (caught)
            platform.purge_ports();
    }
}

Interrupt::Interrupt(Host_Platform& platform) : m_watch(new Watch(platform)) {
}

Interrupt::~Interrupt() = default;

bool Interrupt::was_caught() const {
    return caught;
}

}  // namespace plot_host
