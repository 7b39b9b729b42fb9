#include <poll.h>
#include <strings.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "toolkit/platform/back_end.h"
#include "toolkit/platform/posix/posix_platform.h"
#include "toolkit/platform/utf8.h"

namespace {
struct Choice {
    const char* word;
    int answer;
};
constexpr Choice ok[] = {{"OK", IDOK}};
constexpr Choice ok_cancel[] = {{"OK", IDOK}, {"Cancel", IDCANCEL}};
constexpr Choice abort_retry_ignore[] = {{"Abort", IDABORT}, {"Retry", IDRETRY}, {"Ignore", IDIGNORE}};

std::span<const Choice> choices_of(UINT type) {
    switch (type & MB_TYPEMASK) {
        case MB_OKCANCEL:
            return ok_cancel;
        case MB_ABORTRETRYIGNORE:
            return abort_retry_ignore;
        default:
            return ok;
    }
}

// Whether a read or write that has just failed is worth another try. The host may keep its descriptors
// non-blocking; a box waits all the same.
bool try_again(int fd, short event) {
    if (errno == EAGAIN) {
        pollfd ready = {fd, event, 0};
        return poll(&ready, 1, -1) > 0 || errno == EINTR;
    }
    return errno == EINTR;
}

void put(int fd, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = write(fd, text.data(), text.size());
        if (written >= 0)
            text.remove_prefix(static_cast<std::size_t>(written));
        else if (!try_again(fd, POLLOUT))
            return;
    }
}

// One byte at a time: what follows the line belongs to the host. Nothing at the end of the input.
std::optional<std::string> get_line(int fd) {
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

std::string trimmed(const std::string& line) {
    constexpr char blanks[] = " \t\r";
    const std::size_t first = line.find_first_not_of(blanks);
    if (first == std::string::npos)
        return {};
    return line.substr(first, line.find_last_not_of(blanks) - first + 1);
}

bool is_chosen(const Choice& choice, const std::string& line) {
    return strcasecmp(line.c_str(), choice.word) == 0 ||
           (line.size() == 1 && strncasecmp(line.c_str(), choice.word, 1) == 0);
}

std::string prompt_of(std::span<const Choice> choices) {
    std::string prompt = choices.front().word;
    for (const Choice& choice : choices.subspan(1))
        prompt.append(" / ").append(choice.word);
    return prompt + ": ";
}
}  // namespace

int PX_Posix_Platform::MessageBoxExW(HWND, const wchar_t* text, const wchar_t* caption, UINT type, WORD) {
    put(m_questions_fd, px_to_utf8(caption ? caption : L"") + "\n" + px_to_utf8(text ? text : L"") + "\n");
    if (!isatty(m_questions_fd) || !isatty(m_answers_fd))
        return px_ending_answer(type);

    const std::span<const Choice> choices = choices_of(type);
    for (;;) {
        put(m_questions_fd, prompt_of(choices));
        const std::optional<std::string> line = get_line(m_answers_fd);
        if (!line)
            return px_ending_answer(type);
        if (choices.size() == 1)
            return choices.front().answer;
        const std::string chosen = trimmed(*line);
        for (const Choice& choice : choices)
            if (is_chosen(choice, chosen))
                return choice.answer;
    }
}

HWND PX_Posix_Platform::GetActiveWindow() {
    return nullptr;
}
