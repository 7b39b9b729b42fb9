#include "toolkit/core/error_handler.h"

PX_Error_Handler::~PX_Error_Handler() = default;

void PX_Error_Handler::set_parent_of(PX_Error_Handler& child, PX_Error_Handler* parent) {
    child.m_parent = PX_Smart_Pointer<PX_Error_Handler>(parent);
}

namespace {

// The handler's contract has room for changing the names; none does.
void log_path(PX_Error_Handler& handler, const PX_Exception& caught) {
    handler.LogPath(const_cast<const wchar_t**>(caught.m_stack), caught.m_stack_depth);
}

// Hands what the exception says to one of the handler's reports.
template <class Result>
Result report(PX_Error_Handler& handler, const PX_Exception& caught,
              Result (PX_Error_Handler::*operation)(unsigned long long, unsigned int, const wchar_t*,
                                                    const wchar_t*, const wchar_t*)) {
    return (handler.*operation)(caught.m_resource_module, caught.m_code, caught.m_function, caught.m_detail,
                                caught.m_file);
}

}  // namespace

PX_Error_Handler::PX_Error_Result px_report_by_kind(PX_Error_Handler& handler, const PX_Exception& caught) {
    const PX_Exception::Handler kind = caught.get_handler();
    if (kind == PX_Exception::Handler_None)
        return PX_Error_Handler::Result_Abort;
    log_path(handler, caught);
    switch (kind) {
        case PX_Exception::Handler_Info:
            report(handler, caught, &PX_Error_Handler::info);
            return PX_Error_Handler::Result_Ignore;
        case PX_Exception::Handler_Warning:
            return report(handler, caught, &PX_Error_Handler::warning);
        case PX_Exception::Handler_ARI:
            return report(handler, caught, &PX_Error_Handler::ARI_error);
        case PX_Exception::Handler_Severe:
            report(handler, caught, &PX_Error_Handler::severe_error);
            return PX_Error_Handler::Result_Ignore;
        case PX_Exception::Handler_Terminal:
            report(handler, caught, &PX_Error_Handler::terminal_error);
            return PX_Error_Handler::Result_Ignore;
        default:
            return report(handler, caught, &PX_Error_Handler::error);
    }
}

PX_Error_Handler::PX_Error_Result px_report_as_ARI(PX_Error_Handler& handler, const PX_Exception& caught) {
    log_path(handler, caught);
    return report(handler, caught, &PX_Error_Handler::ARI_error);
}

void px_report_as_severe(PX_Error_Handler& handler, const PX_Exception& caught) {
    log_path(handler, caught);
    report(handler, caught, &PX_Error_Handler::severe_error);
}
