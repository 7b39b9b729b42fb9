#include "toolkit/marvcon/std_sys_io_caps/capabilities.h"

#include <algorithm>
#include <cwchar>
#include <initializer_list>
#include <string>

#include "toolkit/core/fields.h"
#include "toolkit/core/frame.h"
#include "toolkit/core/process_list.h"
#include "toolkit/marvcon/std_io_cfg/catalogue.h"
#include "toolkit/platform/floating_point_guard.h"
#include "toolkit/platform/platform.h"
#include "toolkit/platform/printers.h"

namespace {

using Ports = PX_Named_Object_List<PX_IO_Port>;
using Ability = PX_IO_Port_Ability_Flags;
using Value = PX_Ability_Value;

constexpr const wchar_t* constructor = L"PX_Std_System_IO_Capabilities::PX_Std_System_IO_Capabilities()";
constexpr const wchar_t* file_tag = px_std_sys_io_caps_source.file_tag;

constexpr const wchar_t* usual_ports[] = {L"LPT1", L"LPT2", L"LPT3", L"COM1", L"COM2", L"COM3", L"COM4"};
constexpr std::size_t longest_port_name = 256;

constexpr DWORD provides_dtr_dsr = 0x1;
constexpr DWORD provides_rts_cts = 0x2;
constexpr DWORD provides_carrier = 0x4;
constexpr DWORD provides_xon_xoff = 0x10;
constexpr DWORD settable_baud = 0x2;
constexpr DWORD settable_carrier = 0x40;

// Stands for every serial port, since none is opened to be asked.
COMMPROP serial_record() {
    COMMPROP record = {};
    record.dwMaxBaud = 0x20000;
    record.dwProvSubType = 1;
    record.dwProvCapabilities = provides_dtr_dsr | provides_rts_cts | provides_carrier | provides_xon_xoff;
    record.dwSettableParams = 127;
    record.dwSettableBaud = 0x6FFFF;
    record.wSettableData = 15;
    record.wSettableStopParity = 7943;
    return record;
}

long handshakes_of(const COMMPROP& record) {
    using Handshake = PX_Handshake;
    long handshakes = 0;
    if (record.dwProvCapabilities & provides_xon_xoff)
        handshakes |= Handshake::Handshake_Xon_In | Handshake::Handshake_Xon_Out;
    if (record.dwProvCapabilities & provides_rts_cts)
        handshakes |= Handshake::Handshake_Cts_Out | Handshake::Handshake_Rts_Disable |
                      Handshake::Handshake_Rts_Enable | Handshake::Handshake_Rts_Handshake |
                      Handshake::Handshake_Rts_Toggle;
    if (record.dwProvCapabilities & provides_dtr_dsr)
        handshakes |= Handshake::Handshake_Dtr_Disable | Handshake::Handshake_Dtr_Enable |
                      Handshake::Handshake_Dtr_Handshake | Handshake::Handshake_Dsr_Out;
    if (record.dwProvCapabilities & provides_carrier && record.dwSettableParams & settable_carrier)
        handshakes |= Handshake::Handshake_Rlsd;
    return handshakes;
}

bool begins_with_one_of(const wchar_t* text, std::initializer_list<const wchar_t*> beginnings) {
    return std::ranges::any_of(
        beginnings, [text](const wchar_t* beginning) { return px_begins_ignoring_case(text, beginning); });
}

bool is_redirected(const wchar_t* port) {
    wchar_t remote_name[px_remote_name_capacity];
    return px_redirection_of(port, remote_name);
}

// Adds a port that `fill` has completed. What there is no memory for is 1101, "new_port".
template <class Fill>
void add_port(Ports& ports, Fill fill) {
    px_with_memory(constructor, L"new_port", file_tag, [&] {
        PX_Smart_Pointer<PX_IO_Port> port(new PX_Std_IO_Port);
        px_require_made(port, constructor, L"new_port", file_tag);
        fill(*port);
        ports.prepend(port);
    });
}

// A list that the port cannot copy for want of memory is 1101 with this detail.
template <class Store>
void store_list(const wchar_t* detail, Store store) {
    try {
        store();
    } catch (const MVNK_Memory_Exception&) {
        throw MVNK_Memory_Exception(PX_Code::No_Memory, constructor, detail, file_tag);
    }
}

// What the enumeration had no memory for is 1101 with this detail.
template <class Result>
bool is_listed(Result result, const wchar_t* function, const wchar_t* detail) {
    px_require_made(result != Result::No_Memory, function, detail, file_tag);
    return result == Result::Listed;
}

// Server and share, or the share alone; empty for what is not shared, and where there is no memory for it.
std::wstring shared_name_of(const PRINTER_INFO_2W& printer) {
    if (!(printer.Attributes & PRINTER_ATTRIBUTE_SHARED) || !printer.pShareName)
        return {};
    try {
        std::wstring name;
        if (printer.pServerName)
            name.append(printer.pServerName).append(L"\\");
        return name.append(printer.pShareName);
    } catch (const std::bad_alloc&) {
        return {};
    }
}

// Not also listed as a local port.
bool is_offered(const PRINTER_INFO_2W& printer) {
    if (!printer.pPrinterName || !*printer.pPrinterName)
        return false;
    if (!(printer.Attributes & (PRINTER_ATTRIBUTE_NETWORK | PRINTER_ATTRIBUTE_LOCAL)))
        return false;
    return printer.pServerName || !printer.pPortName ||
           !begins_with_one_of(printer.pPortName, {L"FILE", L"OLEtoQVI", L"OLEtoZVI", L"COM", L"LPT"});
}

}  // namespace

PX_System_IO_Capabilities::~PX_System_IO_Capabilities() = default;

PX_Std_System_IO_Capabilities::PX_Std_System_IO_Capabilities() {
    const PX_Floating_Point_Guard guard;
    auto& master_port_list = px_process_list<PX_IO_Port>();
    if (!master_port_list) {
        px_store_made(master_port_list, new Ports, constructor, L"m_master_port_list", file_tag);
        px_memory_frame(constructor, [&] {
            list_local_ports(*master_port_list);
            list_printers(*master_port_list);
        });
    }
    m_port_list = master_port_list;
}

void PX_Std_System_IO_Capabilities::list_local_ports(Ports& ports) {
    PX_Spooler_Records<PORT_INFO_2W> found;
    const auto result = found.ask([](BYTE* buffer, DWORD size, DWORD* needed, DWORD* count) {
        return PX_Get_Platform().EnumPortsW(nullptr, 2, buffer, size, needed, count);
    });
    if (!is_listed(result, constructor, L"pPorts") || found.records().empty()) {
        for (const wchar_t* const name : usual_ports)
            list_local_port(ports, name);
        return;
    }
    for (const PORT_INFO_2W& port : found.records())
        list_local_port(ports, port.pPortName);
}

void PX_Std_System_IO_Capabilities::list_local_port(Ports& ports, const wchar_t* name) {
    if (!name || !*name || begins_with_one_of(name, {L"OLEtoQVI", L"OLEtoZVI", L"FILE"}))
        return;
    add_port(ports, [&](PX_IO_Port& port) {
        std::wstring canonical = name;
        if (canonical.back() == L':')
            canonical.pop_back();
        canonical.resize(std::min(canonical.size(), longest_port_name));

        bool is_remote = px_begins_ignoring_case(name, L"\\\\") || is_redirected(canonical.c_str());
        // Asked of every local port, as hosts see it asked; the list does not depend on the answer.
        if (!is_remote)
            detect_io_port_conflict(canonical.c_str());

        port.set_canonical_name(canonical.c_str());
        // A serial port stays one even where it is redirected.
        if (px_begins_ignoring_case(name, L"COM")) {
            set_up_serial_port(port);
        } else {
            port.set_type(is_remote ? PX_IO_Type::Network : PX_IO_Type::Parallel);
            port.set_one_ability(Value::Ability_Conditional, Ability::Port_Usable);
        }
    });
}

void PX_Std_System_IO_Capabilities::set_up_serial_port(PX_IO_Port& port) {
    const COMMPROP record = serial_record();
    port.set_type(PX_IO_Type::Serial);
    port.set_bidi_flags(1);

    PX_Smart_Pointer<PX_Named_Object_List<PX_Protocol>> protocols;
    px_store_made(protocols, new PX_Named_Object_List<PX_Protocol>, constructor, L"proto_list", file_tag);
    set_up_protocols(0, 0, 0, protocols, record);
    store_list(L"proto_list", [&] { port.set_protocol_list(protocols.get()); });

    PX_Smart_Pointer<PX_Object_List<PX_Baud_Rate>> rates;
    px_store_made(rates, new PX_Object_List<PX_Baud_Rate>, constructor, L"baud_list", file_tag);
    if (record.dwSettableParams & settable_baud && record.dwSettableBaud != 0) {
        for (unsigned long mask = 0x1; mask <= 0x8000; mask *= 2)
            add_b_rate(mask, record, rates);
        for (const unsigned long mask : {0x40000UL, 0x20000UL, 0x10000UL})
            add_b_rate(mask, record, rates);
    } else {
        PX_Smart_Pointer<PX_Baud_Rate> only;
        px_store_made<PX_Baud_Rate>(only, new PX_Std_Baud_Rate, constructor, L"new_baud", file_tag);
        only->set_baud_rate(static_cast<long>(record.dwMaxBaud));
        rates->prepend(only);
    }
    store_list(L"baud_list", [&] { port.set_baud_rate_list(rates.get()); });

    port.set_handshakes(handshakes_of(record));
    for (const Ability::Enum ability :
         {Ability::Port_Protocols, Ability::Port_Baud_Rates, Ability::Port_Handshakes, Ability::Port_Usable})
        port.set_one_ability(Value::Ability_Conditional, ability);
}

void PX_Std_System_IO_Capabilities::list_printers(Ports& ports) {
    PX_Printers found;
    const auto result = px_ask_for_printers(found, PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS);
    if (!is_listed(result, constructor, L"pPrinters"))
        return;
    for (const PRINTER_INFO_2W& printer : found.records()) {
        if (!is_offered(printer))
            continue;
        add_port(ports, [&](PX_IO_Port& port) {
            port.set_canonical_name(printer.pPrinterName);
            port.set_localized_name(printer.pPrinterName);
            port.set_shared_name(shared_name_of(printer).c_str());
            port.set_type(PX_IO_Type::Network);
            port.set_one_ability(Value::Ability_Required, Ability::Port_Usable);
        });
    }
}

bool PX_Std_System_IO_Capabilities::detect_io_port_conflict(const wchar_t* name) {
    PX_Printers found;
    if (!name || !is_listed(px_ask_for_printers(found, PRINTER_ENUM_LOCAL),
                            L"PX_Std_System_IO_Capabilities::detect_io_port_conflict", L"pinfo"))
        return false;
    return std::ranges::any_of(found.records(), [name](const PRINTER_INFO_2W& printer) {
        return px_is_on_port(printer, name, std::wcslen(name));
    });
}

void PX_Std_System_IO_Capabilities::set_port_list(const Ports* list) {
    px_store_list(m_port_list, list, L"PX_Std_System_IO_Capabilities::set_port_list", L"m_port_list",
                  file_tag);
}

PX_System_IO_Capabilities* PX_Std_System_IO_Capabilities::clone() const {
    return px_clone<PX_Std_System_IO_Capabilities>(
        L"PX_Std_System_IO_Capabilities::clone", file_tag,
        [this](auto& new_one) { new_one.set_port_list(m_port_list.get()); });
}
