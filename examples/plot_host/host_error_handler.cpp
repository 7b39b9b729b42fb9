#include "examples/plot_host/host_error_handler.h"

#include "examples/common/text.h"

namespace plot_host {

Host_Error_Handler::Host_Error_Handler(std::ostream& err) : m_err(err) {
    // A quiet handler logs instead of asking.
    Std_Error_Handler::set_quiet_mode(true);
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
