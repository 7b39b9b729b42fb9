#include "toolkit/marvcon/std_plotter_io/channel.h"
#include "toolkit/marvcon/std_plotter_io/send_all.h"
#include "toolkit/platform/floating_point_guard.h"
#include "toolkit/platform/platform.h"
#include "toolkit/platform/printers.h"

// One raw job in a print queue.

namespace {

constexpr unsigned int queue_not_written = 240;

// What the system knows the record by.
constexpr DWORD version_size = 276;

// The system takes texts that it does not write into as if it did.
wchar_t* unwritten(const wchar_t* text) {
    return const_cast<wchar_t*>(text);
}

// An old spooler takes a longer description.
DWORD start_document(HANDLE printer, const wchar_t* name, bool is_old_spooler) {
    wchar_t raw[] = L"RAW";
    auto& platform = PX_Get_Platform();
    if (is_old_spooler) {
        DOC_INFO_2W info = {unwritten(name), nullptr, raw, 0, 0};
        return platform.StartDocPrinterW(printer, 2, reinterpret_cast<BYTE*>(&info));
    }
    DOC_INFO_1W info = {unwritten(name), nullptr, raw};
    return platform.StartDocPrinterW(printer, 1, reinterpret_cast<BYTE*>(&info));
}

}  // namespace

void PX_Std_Plotter_IO::open_net_spool() {
    const PX_Floating_Point_Guard guard;
    m_device = px_open_printer(m_friendly_net_name);
    if (m_device == INVALID_HANDLE_VALUE && !m_spooling)
        m_device = px_open_printer(m_short_net_name);
    if (m_device == INVALID_HANDLE_VALUE && !handler().get_quiet_mode())
        m_device = PX_Get_Platform().ConnectToPrinterDlg(nullptr, 0);
    // A dialogue that was cancelled gives null and fails at the start of the job.
    m_open = m_device != INVALID_HANDLE_VALUE;
    if (m_open)
        start_job();
}

void PX_Std_Plotter_IO::start_job() {
    auto& platform = PX_Get_Platform();
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = version_size;
    const bool has_version = platform.GetVersionExW(&version) != 0;
    // The job is started all the same, and not ended. That is meant.
    if (!has_version)
        m_open = false;
    m_job_id = start_document(m_device, m_document_name,
                              has_version && version.dwPlatformId == VER_PLATFORM_WIN32_WINDOWS);
    if (m_job_id != 0 && platform.StartPagePrinter(m_device))
        return;
    m_open = false;
    if (m_job_id != 0)
        platform.EndDocPrinter(m_device);
    platform.ClosePrinter(m_device);
    m_device = nullptr;
}

bool PX_Std_Plotter_IO::close_net_spool() {
    const PX_Floating_Point_Guard guard;
    auto& platform = PX_Get_Platform();
    const bool page_ended = platform.EndPagePrinter(m_device) != 0;
    const bool document_ended = platform.EndDocPrinter(m_device) != 0;
    const bool printer_closed = platform.ClosePrinter(m_device) != 0;
    return page_ended && document_ended && printer_closed;
}

long PX_Std_Plotter_IO::write_net_spool(const char* bytes, unsigned long size) {
    return send_all(
        bytes, size,
        [this](const char* part, DWORD length, DWORD* written) {
            return PX_Get_Platform().WritePrinter(m_device, const_cast<char*>(part), length, written);
        },
        [this](bool) {
            return m_handle_ari_for_drv ? ask(queue_not_written, L"PX_Std_Plotter_IO::write_net_spool")
                                        : PX_Error_Handler::Result_Ignore;
        });
}

void PX_Std_Plotter_IO::purge_net_spool() {
    const PX_Floating_Point_Guard guard;
    PX_Get_Platform().SetJobW(m_device, static_cast<DWORD>(m_job_id), 0, nullptr, JOB_CONTROL_CANCEL);
}
