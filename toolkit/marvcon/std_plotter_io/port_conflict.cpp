#include <cwchar>

#include "toolkit/core/fields.h"
#include "toolkit/core/process_list.h"
#include "toolkit/marvcon/std_plotter_io/channel.h"
#include "toolkit/marvcon/std_plotter_io/message_text.h"
#include "toolkit/marvcon/std_plotter_io/warned_port.h"
#include "toolkit/platform/floating_point_guard.h"
#include "toolkit/platform/platform.h"
#include "toolkit/platform/printers.h"

// A port that a printer of the system owns is printed to, and the user is told.

namespace {

constexpr const wchar_t* function = L"PX_Std_Plotter_IO::detect_port_conflict";
constexpr const wchar_t* file_tag = px_std_plotter_io_source.file_tag;

constexpr unsigned int port_is_another_s = 229;
constexpr int text_capacity = 768;

// Only so many characters of a port's name are compared: COM10 is taken for COM1.
constexpr std::size_t compared = 4;

// Whether this is the first time in this process that the port is told of.
bool is_first_warning(const wchar_t* port) {
    auto& warned_ports = px_process_list<PX_Warned_Port>();
    if (warned_ports && warned_ports->find(port))
        return false;
    px_with_memory(function, L"new_port", file_tag, [&] {
        PX_Smart_Pointer<PX_Warned_Port> warned;
        px_store_made(warned, new PX_Warned_Port, function, L"new_port", file_tag);
        warned->set_canonical_name(port);
        if (!warned_ports)
            warned_ports = px_new_list<PX_Warned_Port>();
        warned_ports->append(warned);
    });
    return true;
}

}  // namespace

PX_Warned_Port::~PX_Warned_Port() = default;

void PX_Warned_Port::set_canonical_name(const wchar_t* name) {
    px_store_name(m_canonical_name, name, L"PX_Warned_Port::set_canonical_name", L"canonical_name", file_tag);
}

bool PX_Std_Plotter_IO::detect_port_conflict() {
    const PX_Floating_Point_Guard guard;
    PX_Printers found;
    const auto result = px_ask_for_printers(found, PRINTER_ENUM_LOCAL);
    px_require_made(result != PX_Printers::Result::No_Memory, function, L"pinfo", file_tag);
    m_spooling = false;
    const auto printers = found.records();
    for (const auto& printer : printers.subspan(find_monitorless_printer(printers))) {
        if (!px_is_on_port(printer, m_portname, compared))
            continue;
        m_friendly_net_name = printer.pPrinterName;
        m_spooling = true;
        announce_conflict();
        break;
    }
    return m_spooling;
}

// The printer to begin the search at: the first on the port without a monitor between it and the port, else
// the first of all. The lists of ports are cut at their first comma meanwhile, which the search then sees.
std::size_t PX_Std_Plotter_IO::find_monitorless_printer(std::span<PRINTER_INFO_2W> printers) {
    for (std::size_t at = 0; at < printers.size(); ++at) {
        const PRINTER_INFO_2W& printer = printers[at];
        if (px_is_on_port(printer, m_portname, compared) && printer.pDriverName &&
            is_monitorless(printer.pDriverName))
            return at;
    }
    return 0;
}

bool PX_Std_Plotter_IO::is_monitorless(const wchar_t* driver_name) {
    using Table = PX_Spooler_Records<DRIVER_INFO_3W>;
    if (!m_driver_table) {
        m_driver_table.reset(new (std::nothrow) Table);
        const auto enumerate = [](BYTE* buffer, DWORD size, DWORD* needed, DWORD* count) {
            return PX_Get_Platform().EnumPrinterDriversW(nullptr, nullptr, 3, buffer, size, needed, count);
        };
        if (!m_driver_table || m_driver_table->ask(enumerate) != Table::Result::Listed) {
            m_driver_table.reset();
            return false;
        }
    }
    for (const DRIVER_INFO_3W& driver : m_driver_table->records()) {
        if (driver.pName && std::wcscmp(driver.pName, driver_name) == 0)
            return !driver.pMonitorName || !*driver.pMonitorName;
    }
    return false;
}

void PX_Std_Plotter_IO::announce_conflict() {
    const auto text = [this] { return px_text_on_port<text_capacity>(port_is_another_s, m_portname); };
    switch (m_spool_announce) {
        case PX_Spool_Announce::Log_Once:
            if (is_first_warning(m_portname))
                handler().LogMessage(function, text().c_str());
            break;
        case PX_Spool_Announce::Box_Once:
            if (is_first_warning(m_portname))
                handler().message_box(text().c_str(), nullptr, MB_OK, 0);
            break;
        case PX_Spool_Announce::Box_Always:
            handler().message_box(text().c_str(), nullptr, MB_OK, 0);
            break;
        default:
            break;
    }
}
