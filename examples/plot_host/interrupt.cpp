#include "examples/plot_host/interrupt.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <stdexcept>
#include <system_error>

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

Interrupt::Interrupt(Host_Platform& platform) : m_platform(platform) {
    if (pipe2(m_wake, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe can be had: " + std::generic_category().message(errno));
    caught = false;
    wake_fd = m_wake[1];
    nothing_fd = open("/dev/null", O_RDONLY | O_CLOEXEC);
    m_answers = fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 3);
    // The signals are for this thread, whose reading they interrupt.
    sigset_t all, mine;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &mine);
    m_watcher = std::thread([this] { watch(); });
    pthread_sigmask(SIG_SETMASK, &mine, nullptr);
    struct sigaction action {};
    action.sa_handler = on_signal;
    for (std::size_t at = 0; at < std::size(signals); ++at) {
        sigaction(signals[at], nullptr, &former[at]);
        if (former[at].sa_handler != SIG_IGN)
            sigaction(signals[at], &action, nullptr);
    }
}

Interrupt::~Interrupt() {
    for (std::size_t at = 0; at < std::size(signals); ++at)
        sigaction(signals[at], &former[at], nullptr);
    [[maybe_unused]] const ssize_t put = write(m_wake[1], &to_end, 1);
    m_watcher.join();
    if (m_answers >= 0) {
        dup2(m_answers, STDIN_FILENO);
        close(m_answers);
    }
    close(nothing_fd.exchange(-1));
    close(m_wake[0]);
    close(m_wake[1]);
}

bool Interrupt::was_caught() const {
    return caught;
}

void Interrupt::watch() {
    constexpr int pause = 50;
    pollfd ready{m_wake[0], POLLIN, 0};
    for (;;) {
        if (poll(&ready, 1, m_platform.is_stopped() ? pause : -1) > 0) {
            char word = to_end;
            if (read(m_wake[0], &word, 1) != 1 || word == to_end)
                return;
            m_platform.stop();
        }
        if (caught)
            m_platform.purge_ports();
    }
}

}  // namespace plot_host
