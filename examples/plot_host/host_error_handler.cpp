#include "examples/plot_host/host_error_handler.h"

#include <string>

#include "examples/common/text.h"

namespace plot_host {

Host_Error_Handler::Host_Error_Handler(std::ostream& err) : m_err(err) {
    // A quiet handler logs instead of asking.
    Std_Error_Handler::set_quiet_mode(true);
}

void Host_Error_Handler::begin_sending(Host_Platform& platform, bool asks) {
    m_sending = &platform;
    Std_Error_Handler::set_quiet_mode(!asks);
}

int Host_Error_Handler::message_box(const wchar_t* text, const wchar_t* caption, unsigned int type,
                                    int default_result) {
    const wchar_t* const title = caption ? caption : get_ARI_error_caption();
    if (!m_sending || (type & MB_TYPEMASK) != MB_ABORTRETRYIGNORE)
        return Std_Error_Handler::message_box(text, title, type, default_result);
    if (m_sending->is_stopped())
        return IDABORT;
    PX_String question = text;
    if (const std::wstring& reason = m_sending->write_failure(); !reason.empty())
        question += PX_String((L" (" + reason + L")").c_str());
    int answer = IDABORT;
    if (get_quiet_mode()) {
        LogMessage(title, question);
    } else {
        m_err << std::endl;  // off the line of the progress
        answer = Std_Error_Handler::message_box(question, title, type, default_result);
    }
    if (answer == IDABORT)
        m_sending->stop();
    return answer;
}

PX_Error_Handler::PX_Error_Result Host_Error_Handler::ARI_error(unsigned long long module, unsigned int code,
                                                                const wchar_t* function,
                                                                const wchar_t* detail, const wchar_t* file) {
    if (m_sending && m_sending->is_stopped())
        return Result_Abort;
    if (m_sending && !get_quiet_mode())
        m_err << std::endl;
    const PX_Error_Result answer = Std_Error_Handler::ARI_error(module, code, function, detail, file);
    if (!m_sending || (answer != Result_Abort && !get_quiet_mode()))
        return answer;
    m_sending->stop();
    return Result_Abort;
}

void Host_Error_Handler::LogMessage(const wchar_t* caption, const wchar_t* text) {
    m_err << text::to_utf8(PX_String(caption).c_str()) << ": " << text::to_utf8(PX_String(text).c_str())
          << '\n';
    Std_Error_Handler::LogMessage(caption, text);
}

void Host_Error_Handler::LogPath(const wchar_t** names, int count) {
    for (int i = 0; i < count; ++i)
        m_err << (i == 0 ? "Passed through " : "           and ") << text::to_utf8(names[i]) << '\n';
    Std_Error_Handler::LogPath(names, count);
}

const wchar_t* Host_Error_Handler::get_warning_caption() const {
    return L"Warning";
}

const wchar_t* Host_Error_Handler::get_severe_error_caption() const {
    return L"Severe error";
}

const wchar_t* Host_Error_Handler::get_error_caption() const {
    return L"Error";
}

const wchar_t* Host_Error_Handler::get_ARI_error_caption() const {
    return L"Output error";
}

const wchar_t* Host_Error_Handler::get_terminal_error_caption() const {
    return L"Fatal error";
}

const wchar_t* Host_Error_Handler::get_info_caption() const {
    return L"Information";
}

}  // namespace plot_host
