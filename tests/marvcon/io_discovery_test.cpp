#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "tests/support/allocations.h"
#include "tests/support/fields.h"
#include "toolkit/core/module.h"
#include "toolkit/marvcon/std_io_cfg/catalogue.h"
#include "toolkit/marvcon/std_sys_io_caps/capabilities.h"
#include "toolkit/platform/scripted/scripted_platform.h"

namespace {

using namespace support;
using Capabilities = PX_Std_System_IO_Capabilities;
using Printer = PX_Scripted_Spooler::Printer;
using Protocols = PX_Smart_Pointer<PX_Named_Object_List<PX_Protocol>>;
using Rates = PX_Smart_Pointer<PX_Object_List<PX_Baud_Rate>>;

constexpr const wchar_t* constructor = L"PX_Std_System_IO_Capabilities::PX_Std_System_IO_Capabilities()";

const std::wstring usual = L"COM4 4, COM3 4, COM2 4, COM1 4, LPT3 5, LPT2 5, LPT1 5";

// The names and types of the ports, first to last.
std::wstring ports_of(const PX_System_IO_Capabilities& system) {
    std::wstring text;
    for (const auto& port : *system.get_port_list())
        text +=
            (text.empty() ? L"" : L", ") + show(port->get_canonical_name()) + L" " + show(port->get_type());
    return text;
}

// Each of them looks for itself.
std::wstring discover(PX_Platform& platform) {
    PX_Module_Exit();
    const PX_Use_Platform use(platform);
    return ports_of(Capabilities());
}

class IO_Discovery : public testing::Test {
protected:
    IO_Discovery() { PX_Module_Exit(); }
    ~IO_Discovery() override { PX_Module_Exit(); }

    PX_Scripted_Platform m_machine;
    const PX_Use_Platform m_use{m_machine};
};

TEST_F(IO_Discovery, LocalPortsByTheirNames) {
    struct Case {
        const char* what;
        std::vector<std::optional<std::wstring>> ports;
        std::wstring expected;
    };
    const std::wstring long_name(256, L'x');
    // clang-format off
    const Case rows[] = {
        {"no ports: the usual ones", {}, usual},
        {"the last first, without the colon", {L"COM2:", L"LPT1:", L"COM1"}, L"COM1 4, LPT1 5, COM2 4"},
        {"one colon goes", {L"A::", L"B:c"}, L"B:c 5, A: 5"},
        {"no name, and words that a name begins with", {std::nullopt, L"", L"FILE:", L"fileX", L"OLEtoQVI", L"oletozvi7", L"U"}, L"U 5"},
        {"only such ports: no usual ones", {L"FILE:"}, L""},
        {"words that are not whole or not first", {L"FIL", L"OLEtoQV", L"OLEtoXVI", L"XFILE"}, L"XFILE 5, OLEtoXVI 5, OLEtoQV 5, FIL 5"},
        {"any name that begins with COM", {L"com7", L"Comet", L"CO1", L"XCOM1"}, L"XCOM1 5, CO1 5, Comet 4, com7 4"},
        {"network paths", {L"\\\\hall\\plot:", L"\\dev", L"\\\\"}, L"\\\\ 6, \\dev 5, \\\\hall\\plot 6"},
        {"redirected: a serial port stays one", {L"LPT5:", L"COM5", L"LPT6"}, L"LPT6 5, COM5 4, LPT5 6"},
        {"256 characters", {long_name + L"y:", long_name + L":"}, long_name + L" 5, " + long_name + L" 5"},
    };
    // clang-format on
    for (const Case& row : rows) {
        SCOPED_TRACE(row.what);
        PX_Scripted_Platform machine;
        for (const auto& port : row.ports)
            machine.add_port(port);
        machine.redirect(L"LPT5", std::wstring(259, L'x'));
        machine.redirect(L"COM5", L"\\\\hall\\plot");
        machine.redirect(L"LPT6", std::wstring(260, L'x'));
        EXPECT_EQ(discover(machine), row.expected);
        PX_Module_Exit();
        EXPECT_EQ(machine.count_misuses(), 0);
    }
}

TEST_F(IO_Discovery, PrintersByAttributesPortAndServer) {
    struct Case {
        const char* what;
        Printer printer;
        const wchar_t* shared;  // null for a printer that is no port
    };
    constexpr DWORD shared_local = PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_SHARED;
    // clang-format off
    const Case rows[] = {
        {"local on a port of its own", {.name = L"P", .port = L"TCP:1"}, L""},
        {"network", {.name = L"P", .port = L"TCP:1", .attributes = 0x10}, L""},
        {"neither network nor local", {.name = L"P", .port = L"TCP:1", .attributes = 0xFFAF}, nullptr},
        {"empty name", {.name = L"", .port = L"TCP:1"}, nullptr},
        {"no port", {.name = L"P"}, L""},
        {"on a parallel port", {.name = L"P", .port = L"lpt1:"}, nullptr},
        {"on a serial port", {.name = L"P", .port = L"COM1:"}, nullptr},
        {"to a file", {.name = L"P", .port = L"File:"}, nullptr},
        {"into a drawing", {.name = L"P", .port = L"OLEtoQVI"}, nullptr},
        {"into another drawing", {.name = L"P", .port = L"oletozvi"}, nullptr},
        {"a server's on a local port", {.server = L"S", .name = L"P", .port = L"LPT1:"}, L""},
        {"shared by a server", {.server = L"\\\\S", .name = L"P", .share = L"q", .attributes = 0x18}, L"\\\\S\\q"},
        {"shared from here", {.name = L"P", .share = L"q", .attributes = shared_local}, L"q"},
        {"shared without a share", {.server = L"S", .name = L"P", .attributes = shared_local}, L""},
        {"not shared", {.server = L"S", .name = L"P", .share = L"q"}, L""},
    };
    // clang-format on
    for (const Case& row : rows) {
        SCOPED_TRACE(row.what);
        PX_Scripted_Platform machine;
        machine.add_port(L"COM1");
        machine.add_printer(row.printer);
        EXPECT_EQ(discover(machine), row.shared ? L"P 6, COM1 4" : L"COM1 4");
        const PX_Use_Platform use(machine);
        if (const auto port = Capabilities().get_port_list()->find(L"P")) {
            EXPECT_STREQ(port->get_shared_name(), row.shared);
            EXPECT_STREQ(port->get_localized_name(), L"P");
            EXPECT_STREQ(port->get_abilities(), L"500000");
            EXPECT_EQ(port->get_bidi_flags(), 0);
        }
        PX_Module_Exit();
    }
}

TEST_F(IO_Discovery, ASerialPortHasWhatTheRecordSays) {
    m_machine.install_module(L"mvnres11.dll", {{1105, L"k"}, {1107, L"0123456789ab"}});
    m_machine.add_port(L"LPT1:");
    m_machine.add_port(L"COM1:");
    const Capabilities system;
    const auto port = system.get_port_list()->find(L"COM1");
    ASSERT_TRUE(port);
    EXPECT_STREQ(port->get_abilities(), L"303330");
    EXPECT_EQ(port->get_bidi_flags(), 1);
    EXPECT_EQ(port->get_handshakes(), 0xFFF);
    std::wstring rates;
    for (const auto& rate : *port->get_baud_rate_list())
        rates += L" " + show(rate->get_baud_rate());
    EXPECT_EQ(rates, L" 115200 57344 38400 19200 14400 9600 7200 4800 2400 1800 1200 600 300 150 134 110 75");

    EXPECT_EQ(port->get_protocol_list()->size(), 60);
    auto entry = port->get_protocol_list()->begin();
    const wchar_t* const letters[] = {L"N", L"O", L"E", L"M", L"S"};
    const wchar_t* const localized[] = {L"k", L"O", L"0123456789", L"M", L"S"};
    const wchar_t* const stops[] = {L"1", L"1.5", L"2"};
    for (int number = 59; number >= 0; --number, ++entry) {
        const PX_Protocol& protocol = **entry;
        const int bits = number / 15, parity = number / 3 % 5, stop = number % 3;
        const std::wstring head = std::to_wstring(bits + 5);
        EXPECT_EQ(show(protocol.get_canonical_name()), head + letters[parity] + stops[stop]);
        EXPECT_EQ(show(protocol.get_localized_name()), head + localized[parity] + stops[stop]);
        EXPECT_TRUE(protocol.get_data_bits() == bits && protocol.get_parity() == parity &&
                    protocol.get_stop_bits() == stop);
    }
    const auto parallel = system.get_port_list()->find(L"LPT1");
    EXPECT_STREQ(parallel->get_abilities(), L"300000");
    EXPECT_TRUE(parallel->get_protocol_list()->is_empty() && parallel->get_baud_rate_list()->is_empty());
    EXPECT_EQ(m_machine.count_of("CreateFileW"), 0) << "no port is opened";
}

TEST_F(IO_Discovery, AsksOnceAndSharesTheList) {
    m_machine.add_port(L"COM1:");
    m_machine.add_printer({.name = L"A", .port = L"TCP:1"});
    m_machine.add_printer({.name = L"B", .port = L"TCP:2"});
    Capabilities first;
    EXPECT_EQ(ports_of(first), L"B 6, A 6, COM1 4");
    m_machine.forget_calls();
    Capabilities second;
    EXPECT_TRUE(first.get_port_list() == second.get_port_list());
    EXPECT_TRUE(m_machine.calls_of("EnumPortsW").empty() && m_machine.calls_of("EnumPrintersW").empty());

    m_machine.record_calls(false);
    const std::unique_ptr<PX_System_IO_Capabilities> clone(first.clone());
    EXPECT_EQ(ports_of(*clone), L"B 6, A 6, COM1 4");
    (*clone->get_port_list()->begin())->set_canonical_name(L"C");
    first.set_port_list(clone->get_port_list().get());
    EXPECT_EQ(ports_of(first), L"C 6, A 6, COM1 4");
    EXPECT_EQ(ports_of(second), L"B 6, A 6, COM1 4");
    for (const Thrown& thrown : failures_of([&] { first.set_port_list(second.get_port_list().get()); })) {
        ASSERT_TRUE(thrown.type && thrown.is<MVNK_Memory_Exception>());
        EXPECT_EQ(thrown.function, L"PX_Std_System_IO_Capabilities::set_port_list");
        EXPECT_EQ(thrown.detail, L"m_port_list");
    }
    expect_clone_reports_no_memory<PX_System_IO_Capabilities>(second,
                                                              L"PX_Std_System_IO_Capabilities::clone");
    second.set_port_list(nullptr);
    const std::unique_ptr<PX_System_IO_Capabilities> without(second.clone());
    EXPECT_FALSE(second.get_port_list() || without->get_port_list());
    EXPECT_EQ(ports_of(Capabilities()), L"B 6, A 6, COM1 4");
}

TEST_F(IO_Discovery, BuffersGrowAndFailuresLeaveTheRest) {
    const struct {
        const char* failing;
        int after;
        std::wstring expected;
    } rows[] = {
        {"", 0, L"A 6, X 5"},
        {"EnumPortsW", 0, L"A 6, " + usual},
        {"EnumPortsW", 1, L"A 6, " + usual},
        {"EnumPrintersW", 2, L"X 5"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        PX_Scripted_Platform machine;
        machine.add_port(L"X");
        machine.add_printer({.name = L"A", .port = L"TCP:1"});
        machine.pad_enumerations_to(16392);
        if (*row.failing)
            machine.fail(row.failing, 1, row.after);
        EXPECT_EQ(discover(machine), row.expected);
        EXPECT_TRUE(machine.unspent_faults().empty());
        PX_Module_Exit();
        EXPECT_EQ(machine.count_misuses(), 0);
    }
}

// The operations that only a derived class can call.
class Probe : public Capabilities {
public:
    using Capabilities::add_b_rate;
    using Capabilities::detect_io_port_conflict;
    using Capabilities::set_up_protocols;
    using Capabilities::win_b_rate_to_long;
};

TEST_F(IO_Discovery, APortInUseIsOneThatALocalPrintersPortBeginsWith) {
    // Lists what is on a server as well, whatever it is asked for.
    class Machine : public PX_Scripted_Platform {
    public:
        BOOL EnumPrintersW(DWORD flags, wchar_t* name, DWORD level, BYTE* records, DWORD size, DWORD* needed,
                           DWORD* count) override {
            asked_for += " " + std::to_string(flags);
            return PX_Scripted_Platform::EnumPrintersW(6, name, level, records, size, needed, count);
        }
        std::string asked_for;
    } machine;
    machine.add_printer({.name = L"A", .port = L"LPT1:,,COM21:"});
    machine.add_printer({.name = L"B"});
    machine.add_printer({.server = L"S", .name = L"C", .port = L"COM7"});
    for (const wchar_t* const port : {L"COM1:", L"\\\\hall\\plot", L"LPT1", L"LPT2"})
        machine.add_port(port);
    machine.redirect(L"LPT2", L"\\\\hall\\plot");
    const PX_Use_Platform use(machine);
    Probe probe;
    EXPECT_EQ(ports_of(probe), L"C 6, B 6, LPT2 6, LPT1 5, \\\\hall\\plot 6, COM1 4") << "in use or not";
    EXPECT_EQ(machine.asked_for, " 2 2 6") << "for each port that is neither a path nor redirected";
    struct Case {
        const wchar_t* name;
        bool in_use;
    };
    for (const Case& row :
         {Case{L"LPT1", true}, Case{L"lpt1:", true}, Case{L"LPT1:,", false}, Case{L"COM2", true},
          Case{L"COM21:5", false}, Case{L"COM7", false}, Case{L"OM21", false}, Case{nullptr, false}})
        EXPECT_EQ(probe.detect_io_port_conflict(row.name), row.in_use) << show(row.name).c_str();
    PX_Module_Exit();
}

TEST_F(IO_Discovery, RatesAndProtocolsAreTheBitsOfTheRecord) {
    Probe probe;
    for (const unsigned long none : {0UL, 3UL, 0x80000UL})
        EXPECT_EQ(probe.win_b_rate_to_long(none), 0);
    EXPECT_EQ(probe.win_b_rate_to_long(0x40000), 57600);
    COMMPROP record = {};
    record.dwSettableBaud = 0x70800;
    record.dwMaxBaud = 0x20000;
    const Rates rates = new PX_Object_List<PX_Baud_Rate>;
    std::wstring added;
    for (const unsigned long bit : {0x400UL, 0x800UL, 0x10000UL, 0x20000UL, 0x40000UL})
        probe.add_b_rate(bit, record, rates);
    for (const auto& rate : *rates)
        added += L" " + show(rate->get_baud_rate());
    EXPECT_EQ(added, L" 115200 131072 9600") << "settable, and not above the largest bit";

    record.wSettableData = 8 | 32;
    record.wSettableStopParity = 256 | 1024 | 2;
    struct Case {
        unsigned long data_bits, parity, stop_bits;
        const wchar_t* expected;
    };
    for (const Case& row : {
             Case{0, 0, 0, L"list 16XE1.5 16XN1.5 8E1.5 8N1.5"},
             Case{16, 0, 0, L"list 16E1.5 16N1.5"},
             Case{0, 4096, 0, L"list 16XS1.5 8S1.5"},
             Case{1, 512, 4, L"list 5O2"},
         }) {
        const Protocols list = new PX_Named_Object_List<PX_Protocol>;
        probe.set_up_protocols(row.data_bits, row.parity, row.stop_bits, list, record);
        EXPECT_EQ(show(list), row.expected);
    }
}

// A machine that needs no memory, has a serial port and a shared printer, and whose code spoils the control
// word.
class Frugal_Machine : public PX_Scripted_Platform {
public:
    BOOL EnumPortsW(wchar_t*, DWORD, BYTE* records, DWORD size, DWORD* needed, DWORD* count) override {
        return list(&PORT_INFO_2W::pPortName, m_port, records, size, needed, count);
    }
    BOOL EnumPrintersW(DWORD, wchar_t*, DWORD, BYTE* records, DWORD size, DWORD* needed,
                       DWORD* count) override {
        if (!list(&PRINTER_INFO_2W::pPrinterName, m_printer, records, size, needed, count))
            return 0;
        auto& record = *reinterpret_cast<PRINTER_INFO_2W*>(records);
        record.pShareName = m_printer;
        record.Attributes = PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_SHARED;
        return 1;
    }
    DWORD WNetGetConnectionW(const wchar_t*, wchar_t*, DWORD*) override { return 1; }
    HMODULE LoadLibraryExW(const wchar_t*, HANDLE, DWORD) override { return nullptr; }
    DWORD GetModuleFileNameW(HMODULE, wchar_t*, DWORD) override { return 0; }

private:
    template <class Record>
    BOOL list(wchar_t* Record::*name, wchar_t* text, BYTE* records, DWORD size, DWORD* needed, DWORD* count) {
        write_control_word(0);
        *needed = 20000;
        if (size < *needed)
            return 0;
        Record record = {};
        record.*name = text;
        *reinterpret_cast<Record*>(records) = record;
        *count = 1;
        return 1;
    }

    wchar_t m_port[5] = L"COM1";
    wchar_t m_printer[16] = L"A shared device";
};

TEST_F(IO_Discovery, NoMemoryIsReportedAndTheFloatingPointWordComesBack) {
    Frugal_Machine machine;
    machine.record_calls(false);
    const PX_Use_Platform use(machine);
    const unsigned int word = machine.control_word();
    std::set<std::wstring> details;
    for (const Thrown& thrown : failures_of([&] {
             EXPECT_EQ(machine.control_word(), word);
             PX_Module_Exit();
             EXPECT_TRUE(Capabilities().get_port_list());
         })) {
        ASSERT_TRUE(thrown.type && thrown.is<MVNK_Memory_Exception>());
        EXPECT_EQ(thrown.code, 1101U);
        EXPECT_EQ(thrown.file, L"$Workfile: std_sys_io_caps $ $Revision: #1 $");
        EXPECT_EQ(thrown.function, thrown.detail == L"pinfo"
                                       ? L"PX_Std_System_IO_Capabilities::detect_io_port_conflict"
                                       : constructor);
        details.insert(thrown.detail);
    }
    EXPECT_EQ(machine.control_word(), word);
    EXPECT_EQ(details,
              (std::set<std::wstring>{L"baud_list", L"m_master_port_list", L"new_baud", L"new_port",
                                      L"new_proto", L"pPorts", L"pPrinters", L"pinfo", L"proto_list"}));
    EXPECT_EQ(ports_of(Capabilities()), L"A shared device 6, COM1 4");
    PX_Module_Exit();
}

}  // namespace
