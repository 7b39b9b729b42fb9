#include <strings.h>
#include <unistd.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "toolkit/platform/back_end.h"
#include "toolkit/platform/posix/last_error.h"
#include "toolkit/platform/posix/posix_platform.h"
#include "toolkit/platform/posix/terminal.h"
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

bool is_chosen(const Choice& choice, const std::string& line) {
    return strcasecmp(line.c_str(), choice.word) == 0 ||
           (line.size() == 1 && strncasecmp(line.c_str(), choice.word, 1) == 0);
}

// Several texts at a time, and without memory of their own: what they tell may be that there is none.
class Printed {
public:
    explicit Printed(int fd) : m_fd(fd) {}
    Printed(const Printed&) = delete;
    Printed& operator=(const Printed&) = delete;
    ~Printed() { flush(); }

    void add(std::wstring_view text) {
        px_put_utf8(text, [&](char byte) {
            if (m_size == sizeof m_bytes)
                flush();
            m_bytes[m_size++] = byte;
        });
    }

private:
    void flush() { px_put(m_fd, {m_bytes, std::exchange(m_size, 0)}); }

    int m_fd;
    std::size_t m_size = 0;
    char m_bytes[8192];
};

std::string prompt_of(std::span<const Choice> choices) {
    std::string prompt = choices.front().word;
    for (const Choice& choice : choices.subspan(1))
        prompt.append(" / ").append(choice.word);
    return prompt + ": ";
}
}  // namespace

int PX_Posix_Platform::MessageBoxExW(HWND, const wchar_t* text, const wchar_t* caption, UINT type, WORD) {
    for (Printed printed(m_questions_fd); const wchar_t* const line : {caption, text}) {
        printed.add(line ? line : L"");
        printed.add(L"\n");
    }
    if (!isatty(m_questions_fd) || !isatty(m_answers_fd))
        return px_ending_answer(type);

    const int answer = m_last_error->attempt([&] {
        const std::span<const Choice> choices = choices_of(type);
        for (;;) {
            px_put(m_questions_fd, prompt_of(choices));
            const std::optional<std::string> line = px_get_line(m_answers_fd);
            if (!line)
                return 0;
            if (choices.size() == 1)
                return choices.front().answer;
            const std::string chosen = px_trimmed(*line);
            for (const Choice& choice : choices)
                if (is_chosen(choice, chosen))
                    return choice.answer;
        }
    });
    return answer ? answer : px_ending_answer(type);
}

HWND PX_Posix_Platform::GetActiveWindow() {
    return nullptr;
}
