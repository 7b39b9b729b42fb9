#include "toolkit/core/std_error_handler.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

#include "toolkit/platform/platform.h"

namespace {

constexpr int text_capacity = 4096;
constexpr WORD box_language = 2048;
constexpr UINT confirm_style = MB_OKCANCEL | MB_ICONEXCLAMATION;
constexpr UINT ARI_style = MB_ABORTRETRYIGNORE | MB_ICONEXCLAMATION;
constexpr UINT stop_style = MB_OK | MB_ICONHAND;

int show_box(const wchar_t* text, const wchar_t* caption, unsigned int type) {
    auto& platform = PX_Get_Platform();
    return platform.MessageBoxExW(platform.GetActiveWindow(), text, caption, type, box_language);
}

}  // namespace

struct Std_Error_Handler::Report {
    PX_String message;
    PX_String detailed;
};

Std_Error_Handler::Std_Error_Handler(PX_Smart_Pointer<PX_Error_Handler> parent) {
    if (!parent)
        return;
    parent->add_child(this);
    try {
        Std_Error_Handler::set_log_mode(parent->get_log_mode());
        Std_Error_Handler::set_quiet_mode(parent->get_quiet_mode());
    } catch (...) {
        leave(*parent, this);
        throw;
    }
}

Std_Error_Handler::~Std_Error_Handler() {
    if (m_parent)
        leave(*m_parent, this);
    if (m_log_stream)
        std::fclose(m_log_stream);
}

Std_Error_Handler::Report Std_Error_Handler::build_report(unsigned long long module, unsigned int code,
                                                          const wchar_t* function, const wchar_t* detail,
                                                          const wchar_t* file) const {
    return {BuildMess(module, code, function, detail, file),
            BuildDetailedMess(module, code, function, detail, file)};
}

// The parent, when it answers reports of this kind for its children.
PX_Error_Handler* Std_Error_Handler::parent_for(PX_Exception::Handler kind) const {
    return m_parent && m_parent->take_responsability(kind) ? m_parent.get() : nullptr;
}

void Std_Error_Handler::info_message(const wchar_t* text) {
    if (auto* const parent = parent_for(PX_Exception::Handler_Info))
        return parent->info_message(text);
    if (m_log)
        LogMessage(get_info_caption(), text);
    if (!m_quiet)
        message_box(text, get_info_caption(), MB_OK, 0);
}

int Std_Error_Handler::message_box(const wchar_t* text, const wchar_t* caption, unsigned int type,
                                   int default_result) {
    try {
        if (m_parent)
            return m_parent->message_box(text, caption, type, default_result);
        if (m_log)
            LogMessage(caption, text);
        return m_quiet ? default_result : show_box(text, caption, type);
    } catch (...) {
        return IDCANCEL;
    }
}

// The detailed text goes to the log in quiet mode too; the box asks with the short one. The result is the
// box's, 0 when there was none.
int Std_Error_Handler::log_and_ask(const Report& report, const wchar_t* caption, unsigned int style,
                                   bool even_if_quiet) {
    if (m_quiet || m_log)
        LogMessage(caption, report.detailed);
    return m_quiet && !even_if_quiet ? 0 : show_box(report.message, caption, style);
}

PX_Error_Handler::PX_Error_Result Std_Error_Handler::log_and_confirm(const Report& report,
                                                                     const wchar_t* caption) {
    return log_and_ask(report, caption, confirm_style, false) == IDCANCEL ? Result_Abort : Result_Ignore;
}

void Std_Error_Handler::info(unsigned long long module, unsigned int code, const wchar_t* function,
                             const wchar_t* detail, const wchar_t* file) {
    if (auto* const parent = parent_for(PX_Exception::Handler_Info))
        return parent->info(module, code, function, detail, file);
    info_message(BuildMess(module, code, function, detail, file));
}

PX_Error_Handler::PX_Error_Result Std_Error_Handler::warning(unsigned long long module, unsigned int code,
                                                             const wchar_t* function, const wchar_t* detail,
                                                             const wchar_t* file) {
    if (auto* const parent = parent_for(PX_Exception::Handler_Warning))
        return parent->warning(module, code, function, detail, file);
    return log_and_confirm(build_report(module, code, function, detail, file), get_warning_caption());
}

PX_Error_Handler::PX_Error_Result Std_Error_Handler::error(unsigned long long module, unsigned int code,
                                                           const wchar_t* function, const wchar_t* detail,
                                                           const wchar_t* file) {
    if (auto* const parent = parent_for(PX_Exception::Handler_Error))
        return parent->error(module, code, function, detail, file);
    return log_and_confirm(build_report(module, code, function, detail, file), get_error_caption());
}

PX_Error_Handler::PX_Error_Result Std_Error_Handler::ARI_error(unsigned long long module, unsigned int code,
                                                               const wchar_t* function, const wchar_t* detail,
                                                               const wchar_t* file) {
    if (auto* const parent = parent_for(PX_Exception::Handler_ARI))
        return parent->ARI_error(module, code, function, detail, file);
    const int answer = log_and_ask(build_report(module, code, function, detail, file),
                                   get_ARI_error_caption(), ARI_style, false);
    switch (answer) {
        case IDABORT:
            return Result_Abort;
        case IDRETRY:
            return Result_Retry;
        default:
            return Result_Ignore;
    }
}

void Std_Error_Handler::severe_error(unsigned long long module, unsigned int code, const wchar_t* function,
                                     const wchar_t* detail, const wchar_t* file) {
    if (auto* const parent = parent_for(PX_Exception::Handler_Severe))
        return parent->severe_error(module, code, function, detail, file);
    log_and_ask(build_report(module, code, function, detail, file), get_severe_error_caption(), stop_style,
                false);
}

void Std_Error_Handler::terminal_error(unsigned long long module, unsigned int code, const wchar_t* function,
                                       const wchar_t* detail, const wchar_t* file) {
    if (auto* const parent = parent_for(PX_Exception::Handler_Terminal))
        return parent->terminal_error(module, code, function, detail, file);
    // Nobody misses the end of the program: the box comes in quiet mode too.
    log_and_ask(build_report(module, code, function, detail, file), get_terminal_error_caption(), stop_style,
                true);
}

bool Std_Error_Handler::set_log_handle(const wchar_t* name) {
    try {
        if (!m_log_stream) {
            m_log_name = name;
            return true;
        }
        if (m_log_name == name)
            return true;
        // The new name is not stored: logging stops until the next call.
        m_log_name = nullptr;
        return std::fclose(std::exchange(m_log_stream, nullptr)) == 0;
    } catch (...) {
        return false;
    }
}

void Std_Error_Handler::set_quiet_mode(bool quiet) {
    // Stored before it is passed on: what comes back from the parent finds it equal and ends there.
    m_quiet = quiet;
    if (m_parent && m_parent->get_quiet_mode() != quiet)
        m_parent->set_quiet_mode(quiet);
    for (auto* const child : std::vector(m_children))
        child->set_quiet_mode(quiet);
}

void Std_Error_Handler::set_log_mode(bool log) {
    m_log = log;
    for (auto* const child : std::vector(m_children))
        child->set_log_mode(log);
}

bool Std_Error_Handler::get_quiet_mode() const {
    return m_quiet;
}

bool Std_Error_Handler::get_log_mode() const {
    return m_log;
}

bool Std_Error_Handler::open_log() {
    if (!m_log_stream && !m_log_name.is_empty()) {
        if (PX_Get_Platform()._wfopen_s(&m_log_stream, m_log_name, L"a+") != 0)
            m_log_stream = nullptr;
    }
    return m_log_stream != nullptr;
}

// One character at a time: those below 128 as themselves, others in the system code page. A failing write
// ends the line.
void Std_Error_Handler::write_log(const wchar_t* text) {
    auto& platform = PX_Get_Platform();
    for (; *text; ++text) {
        char bytes[8] = {static_cast<char>(*text)};
        int size = 1;
        if (static_cast<std::uint32_t>(*text) >= 128)
            size = platform.WideCharToMultiByte(CP_ACP, 0, text, 1, bytes, sizeof bytes, nullptr, nullptr);
        const auto count = static_cast<std::size_t>(size);
        if (std::fwrite(bytes, 1, count, m_log_stream) != count)
            break;
    }
}

void Std_Error_Handler::LogMessage(const wchar_t* caption, const wchar_t* text) {
    if (m_parent)
        return m_parent->LogMessage(caption, text);
    if (!open_log())
        return;
    write_log(PX_String(caption) + L": " + text + L"\n\n");
    std::fflush(m_log_stream);
}

void Std_Error_Handler::LogPath(const wchar_t** names, int count) {
    if (m_parent)
        return m_parent->LogPath(names, count);
    if (count < 1 || !open_log())
        return;
    write_log(L"Path:\n");
    for (int i = 0; i < count; ++i)
        write_log(PX_String(names[i]) + L"\n");
    std::fflush(m_log_stream);
}

bool Std_Error_Handler::take_responsability(PX_Exception::Handler kind) {
    return kind == PX_Exception::Handler_Info || kind == PX_Exception::Handler_Terminal;
}

void Std_Error_Handler::add_child(PX_Error_Handler* child) {
    if (!child)
        return;
    // A list that the child has left must not point to it when it goes.
    PX_Error_Handler* const former = parent_of(*child);
    if (former && former != this)
        leave(*former, child);
    set_parent_of(*child, this);
    m_children.push_back(child);
}

void Std_Error_Handler::remove_child(PX_Error_Handler* child) {
    const auto entry = std::find(m_children.begin(), m_children.end(), child);
    if (entry != m_children.end())
        m_children.erase(entry);
}

// A child that was entered more than once leaves nothing behind in a standard handler.
void Std_Error_Handler::leave(PX_Error_Handler& parent, PX_Error_Handler* child) {
    parent.remove_child(child);
    if (auto* const standard = dynamic_cast<Std_Error_Handler*>(&parent))
        std::erase(standard->m_children, child);
}

PX_Smart_Pointer<PX_Progress> Std_Error_Handler::get_progress() const {
    return m_parent ? m_parent->get_progress() : nullptr;
}

const wchar_t* Std_Error_Handler::get_product_string() const {
    return m_parent ? m_parent->get_product_string() : m_product.c_str();
}

const wchar_t* Std_Error_Handler::get_program_string() const {
    return m_parent ? m_parent->get_program_string() : m_program.c_str();
}

const wchar_t* Std_Error_Handler::get_company_string() const {
    return m_parent ? m_parent->get_company_string() : m_company.c_str();
}

void Std_Error_Handler::set_product_string(const wchar_t* text) {
    m_product = text;
}

void Std_Error_Handler::set_program_string(const wchar_t* text) {
    m_program = text;
}

void Std_Error_Handler::set_company_string(const wchar_t* text) {
    m_company = text;
}

PX_String Std_Error_Handler::DecodeErrNum(unsigned long long module, unsigned int code) const {
    wchar_t text[text_capacity];
    const auto handle = reinterpret_cast<HMODULE>(module);
    if (handle && PX_Get_Platform().LoadStringW(handle, code, text, text_capacity) > 0)
        return text;
    return PX_String(L"Unknown Error Code " + std::to_wstring(static_cast<int>(code)) + L"\n");
}

PX_String Std_Error_Handler::BuildMess(unsigned long long module, unsigned int code,
                                       const wchar_t* /*function*/, const wchar_t* /*detail*/,
                                       const wchar_t* /*file*/) const {
    return DecodeErrNum(module, code);
}

PX_String Std_Error_Handler::BuildDetailedMess(unsigned long long module, unsigned int code,
                                               const wchar_t* function, const wchar_t* detail,
                                               const wchar_t* file) const {
    PX_String message = PX_String(function) + L"\n" + DecodeErrNum(module, code);
    if (detail)
        message += PX_String(L" ") + detail;
    if (file)
        message += PX_String(L" ") + file;
    return message;
}
