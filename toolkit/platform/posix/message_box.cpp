#include <strings.h>
#include <unistd.h>

#include <optional>
#include <span>
#include <string>

#include "toolkit/platform/back_end.h"
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

std::string prompt_of(std::span<const Choice> choices) {
    std::string prompt = choices.front().word;
    for (const Choice& choice : choices.subspan(1))
        prompt.append(" / ").append(choice.word);
    return prompt + ": ";
}
}  // namespace

int PX_Posix_Platform::MessageBoxExW(HWND, const wchar_t* text, const wchar_t* caption, UINT type, WORD) {
    px_put(m_questions_fd, px_to_utf8(caption ? caption : L"") + "\n" + px_to_utf8(text ? text : L"") + "\n");
    if (!isatty(m_questions_fd) || !isatty(m_answers_fd))
        return px_ending_answer(type);

    const std::span<const Choice> choices = choices_of(type);
    for (;;) {
        px_put(m_questions_fd, prompt_of(choices));
        const std::optional<std::string> line = px_get_line(m_answers_fd);
        if (!line)
            return px_ending_answer(type);
        if (choices.size() == 1)
            return choices.front().answer;
        const std::string chosen = px_trimmed(*line);
        for (const Choice& choice : choices)
            if (is_chosen(choice, chosen))
                return choice.answer;
    }
}

HWND PX_Posix_Platform::GetActiveWindow() {
    return nullptr;
}
