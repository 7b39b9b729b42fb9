#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "tests/support/device.h"
#include "tests/support/fields.h"
#include "tests/support/io.h"
#include "toolkit/core/module.h"
#include "toolkit/platform/scripted/scripted_platform.h"

namespace {

using namespace support;
using Ability = PX_Plotter_IO_Ability_Flags;
using Method_Ability = PX_IO_Method_Ability_Flags;
using Flag = PX_IO_Config_Flags;
using Strategy = PX_Validation_Strategy;
using Type = PX_IO_Type;

constexpr auto withdrawn = PX_Caps_Type::Caps_Type_Withdrawn;

// Spoils the control word when a printer is opened.
class Machine : public PX_Scripted_Platform {
public:
    BOOL OpenPrinterW(wchar_t* name, HANDLE* printer, PRINTER_DEFAULTSW* defaults) override {
        opened += (opened.empty() ? L"" : L" ") + std::wstring(name);
        write_control_word(0);
        return PX_Scripted_Platform::OpenPrinterW(name, printer, defaults);
    }
    std::wstring opened;
};

class Handler : public Test_Handler {
public:
    PX_Error_Result error(unsigned long long, unsigned int code, const wchar_t* function,
                          const wchar_t* detail, const wchar_t* file) override {
        told += std::to_wstring(code) + L" " + text(function) + L" " + text(detail) + L" " + text(file);
        return Result_Abort;
    }
    std::wstring told;
};

class Validator : public PX_Std_Plotter_IO_Validator {
public:
    using PX_Std_Plotter_IO_Validator::PX_Std_Plotter_IO_Validator;
    using PX_Std_Plotter_IO_Validator::set_baud_rate_to_nearest;
    using PX_Std_Plotter_IO_Validator::set_input_timeout_to_nearest;
    using PX_Std_Plotter_IO_Validator::set_output_timeout_to_nearest;
    using PX_Std_Plotter_IO_Validator::set_portname_and_type_to_nearest;
    using PX_Std_Plotter_IO_Validator::set_protocol_to_nearest;
};

// A device on COM1, with the machine, the handler and the validator that the tests ask.
struct Bench : IO_Device {
    Bench() : Bench(new Handler) {}
    explicit Bench(Handler* asked) : IO_Device(new PX_Std_Plotter_Definition(asked)), handler(*asked) {
        PX_Module_Exit();
        name_model(L"Friendly", L"Short");
    }
    ~Bench() {
        EXPECT_EQ(machine.count_misuses(), 0);
        EXPECT_TRUE(machine.open_printers().empty());
        PX_Module_Exit();
    }

    void name_model(const wchar_t* friendly, const wchar_t* brief) const {
        const PX_Smart_Pointer<PX_Model> model = device->get_class_factory()->MK_Create_Model();
        model->set_friendly_net_name(friendly);
        model->set_short_net_name(brief);
        device->get_meta_capabilities()->set_model(model.get());
    }
    void set_driver_type(int type) const {
        device->get_meta_capabilities()->set_driver_type(static_cast<PX_Driver_Type::Enum>(type));
    }
    void any_port() const { cfg.set_all_system_ports_valid(true); }
    void to_file() const { cfg.set_plot_to_file(true); }
    void lose(Ability::Enum ability) const { caps.set_one_ability(PX_Ability_Value::Ability_None, ability); }
    void lose(Method_Ability::Enum ability) const {
        serial.set_one_ability(PX_Ability_Value::Ability_None, ability);
    }

    Machine machine;
    const PX_Use_Platform use{machine};
    Handler& handler;
    Validator validator{device.get()};
    // What the machine has.
    std::vector<std::wstring> ports = {L"LPT1", L"LPT2:", L"COM1:", L"COM2"};
};

// What the data have in common.
struct Datum {
    const char* name;
    Flag::Enum flag;
    long bit;
    void (PX_Plotter_IO_Validator::*validate)(Strategy::Enum);
    void (PX_Plotter_IO_Validator::*set_to_default)();
    std::wstring (*read)(const PX_Plotter_IO_Configuration&);
};
#define DATUM(name, flag, bit, value)                                                     \
    {                                                                                     \
        "" #name, Flag::IO_Config_##flag, bit, &PX_Plotter_IO_Validator::validate_##name, \
            &PX_Plotter_IO_Validator::set_##name##_to_default,                            \
            [](const PX_Plotter_IO_Configuration& cfg) { return value; }                  \
    }
const Datum data[] = {
    DATUM(portname_and_type, Portname, 3,
          show(cfg.get_type()) + L" " + cfg.get_portname() + (cfg.get_plot_to_file() ? L" file" : L"") +
              (cfg.get_all_system_ports_valid() ? L" all" : L"")),
    DATUM(protocol, Protocol, 4, show(cfg.get_protocol())),
    DATUM(baud_rate, Baud_Rate, 8, show(cfg.get_baud_rate())),
    DATUM(handshake, Handshake, 16, show(cfg.get_handshake())),
    DATUM(input_timeout, Input_Timeout, 32, show(cfg.get_input_timeout())),
    DATUM(output_timeout, Output_Timeout, 64, show(cfg.get_output_timeout())),
    DATUM(pathname, Pathname, 128, show(cfg.get_pathname())),
};
#undef DATUM
const auto& [port, protocol, rate, handshake, input, output, path] = data;

// The value, and of "default", "changed" and "unvalidated" what is so, or the code and detail of a failure.
template <class Operation>
std::wstring outcome(Bench& bench, const Datum& datum, Operation operation) {
    for (const auto& name : bench.ports)
        bench.machine.add_port(name);
    const auto validator = bench.device.validator();
    validator->set_io_cfg_changes(0x100);
    bench.cfg.set_validated(false);
    const auto thrown = thrown_by(operation);
    std::wstring text = datum.read(bench.cfg);
    if (bench.cfg.get_one_default(datum.flag))
        text += L" default";
    if (validator->get_io_cfg_changes() == (0x100 | datum.bit))
        text += L" changed";
    else
        EXPECT_EQ(validator->get_io_cfg_changes(), 0x100);
    if (!bench.cfg.get_one_validated(datum.flag))
        text += L" unvalidated";
    // The type has the flags of the port's name; time-outs and path ask for no port.
    if (&datum == &port) {
        EXPECT_EQ(bench.cfg.get_one_validated(Flag::IO_Config_Type), bench.cfg.get_one_validated(datum.flag));
        EXPECT_EQ(bench.cfg.get_one_default(Flag::IO_Config_Type), bench.cfg.get_one_default(datum.flag));
    } else if (datum.bit >= 32) {
        EXPECT_EQ(bench.machine.count_of("EnumPortsW"), 0);
    }
    if (thrown)
        text += L" " + std::to_wstring(thrown->code) + (thrown->detail.empty() ? L"" : L" ") + thrown->detail;
    return text;
}

// What a choice, arranged from the one of the bench, comes to by the strategies.
struct Case {
    const char* what;
    void (*arrange)(Bench&);
    const Datum& datum;
    const wchar_t* by_default;
    const wchar_t* by_nearest = by_default;
    const wchar_t* opened = L"";
};
void as_set_up(Bench&) {
}

// Any number but 0 is the strategy of the nearest, though not for the port.
template <std::size_t count>
void check(const Case (&rows)[count]) {
    for (const Case& row : rows) {
        for (const int strategy : {0, 1, 2}) {
            SCOPED_TRACE(row.datum.name + std::string(", ") + row.what);
            Bench bench;
            row.arrange(bench);
            const unsigned int word = bench.machine.control_word();
            const std::wstring result = outcome(bench, row.datum, [&] {
                (bench.validator.*row.datum.validate)(static_cast<Strategy::Enum>(strategy));
            });
            const bool to_nearest = &row.datum == &port ? strategy == 1 : strategy != 0;
            EXPECT_EQ(result, to_nearest ? row.by_nearest : row.by_default);
            EXPECT_EQ(bench.machine.opened, row.opened);
            EXPECT_EQ(bench.machine.control_word(), word);
        }
    }
}

TEST(IO_Validator, APortIsValidByItsType) {
    constexpr const wchar_t* repaired = L"5 LPT2 default changed";
    constexpr const wchar_t* repaired_all = L"5 LPT2 all default changed";
    constexpr const wchar_t* nearest = L"4 COM2 changed";
    static constexpr auto network = [](Bench& b) { b.configure(Type::Network, L"x"); };
    static constexpr auto printer = [](Bench& b, const wchar_t* name) {
        network(b);
        b.machine.add_printer({.name = name, .port = L"LPT1"});
    };
    // clang-format off
    check({
        {"serial", as_set_up, port, L"4 COM1"},
        {"serial without a method", [](Bench& b) { b.serial.set_type(Type::Network); }, port, repaired, nearest},
        {"any port, without a method", [](Bench& b) { b.serial.set_type(Type::Network); b.any_port(); }, port, L"4 COM1 all"},
        {"serial without methods", [](Bench& b) { b.lose(Ability::IO_Methods); }, port, repaired, nearest},
        {"no port name", [](Bench& b) { b.configure(Type::Serial, L""); }, port, repaired, nearest},
        {"nor a port without one", [](Bench& b) { b.ports = {L":"}; b.configure(Type::Parallel, L""); }, port, L"5  default changed", L"5  changed"},
        {"not a port", [](Bench& b) { b.configure(Type::Serial, L"COM3"); b.any_port(); }, port, repaired_all, L"4 COM2 all changed"},
        {"a port of another type", [](Bench& b) { b.configure(Type::Parallel, L"COM1"); }, port, repaired, L"5 LPT2 changed"},
        {"parallel", [](Bench& b) { b.configure(Type::Parallel, L"LPT1"); }, port, L"5 LPT1"},
        {"the driver's method", [](Bench& b) { b.configure(Type::Driver_Method, L""); b.serial.set_type(Type::Driver_Method); }, port, L"0 "},
        {"the driver's method, not there", [](Bench& b) { b.configure(Type::Driver_Method, L""); b.any_port(); }, port, repaired_all},
        {"plain driver", [](Bench& b) { b.configure(Type::Driver_Plain, L"x"); b.set_driver_type(3); }, port, L"1 x"},
        {"plain, type 1", [](Bench& b) { b.configure(Type::Driver_Plain, L"x"); b.set_driver_type(1); }, port, repaired},
        {"system driver 1", [](Bench& b) { b.configure(Type::Driver_System, L"x"); b.set_driver_type(1); }, port, L"3 x"},
        {"system driver 2", [](Bench& b) { b.configure(Type::Driver_System, L"x"); b.set_driver_type(2); }, port, L"3 x"},
        {"no system driver", [](Bench& b) { b.configure(Type::Driver_System, L"x"); b.set_driver_type(0); }, port, repaired},
        {"file by a method", [](Bench& b) { b.configure(Type::File, L""); b.serial.set_type(Type::File); }, port, L"2 "},
        {"file, any port", [](Bench& b) { b.configure(Type::File, L""); b.any_port(); b.lose(Ability::IO_Methods); }, port, L"2  all"},
        {"file, nothing", [](Bench& b) { b.configure(Type::File, L""); }, port, repaired},
        {"no type", [](Bench& b) { b.configure(Type::No_IO_Type, L"COM1"); b.any_port(); }, port, repaired_all},
        {"plot to file", [](Bench& b) { b.configure(Type::Network, L"x"); b.to_file(); }, port, L"6 x file"},
        {"printer by its friendly name", [](Bench& b) { printer(b, L"Friendly"); }, port, L"6 x all", L"6 x all", L"Friendly"},
        {"by its short name", [](Bench& b) { printer(b, L"Short"); }, port, L"6 x all", L"6 x all", L"Friendly Short"},
        {"by the only name", [](Bench& b) { printer(b, L"Short"); b.name_model(L"", L"Short"); }, port, L"6 x all", L"6 x all", L"Short"},
        {"no printer", network, port, repaired_all, repaired_all, L"Friendly Short"},
        {"any port, no such ability", [](Bench& b) { printer(b, L"Friendly"); b.lose(Ability::IO_System_Ports); b.any_port(); }, port, L"6 x all", L"6 x all", L"Friendly"},
        {"a method for printers", [](Bench& b) { printer(b, L"Friendly"); b.serial.set_type(Type::Network); }, port, L"6 x", L"6 x", L"Friendly"},
        {"neither", [](Bench& b) { printer(b, L"Friendly"); b.lose(Ability::IO_System_Ports); }, port, L"5  default changed"},
        {"system driver 2 on the network", [](Bench& b) { printer(b, L"Friendly"); b.set_driver_type(2); }, port, repaired},
    });
    // clang-format on
}

TEST(IO_Validator, ABadPortIsToldAndGoesToTheDefaultOrANearPort) {
    // clang-format off
    check({
        {"no local port", [](Bench& b) { b.configure(Type::Driver_Method, L"x"); }, port, L"5 LPT2 default changed"},
        {"serial gives way to parallel", [](Bench& b) { b.ports = {L"LPT1"}; }, port, L"5 LPT1 default changed", L"5 LPT1 changed"},
        {"parallel gives way to serial", [](Bench& b) { b.ports = {L"COM1"}; b.configure(Type::Parallel, L"x"); }, port, L"4 COM1 changed"},
        {"not without a method for it", [](Bench& b) { b.ports = {L"COM1"}; b.configure(Type::Parallel, L"x"); b.serial.set_type(Type::File); }, port, L"5 x file changed"},
        {"nor with a withdrawn one", [](Bench& b) { b.ports = {L"LPT1"}; b.parallel.set_caps_type(withdrawn); b.caps.set_default_type(Type::Driver_Plain); }, port, L"1 COM1 file changed"},
        {"nor without methods", [](Bench& b) { b.ports = {L"LPT1"}; b.lose(Ability::IO_Methods); b.caps.set_default_type(Type::File); }, port, L"2 COM1 file changed"},
        {"no port at all", [](Bench& b) { b.ports = {L"FILE:"}; b.configure(Type::Serial, L"x"); b.caps.set_default_type(Type::File); }, port, L"2 x file changed"},
        {"no type", [](Bench& b) { b.configure(Type::Network, L"x"); b.lose(Ability::IO_Type); b.set_driver_type(1); }, port, L"-1  changed"},
        {"no near one without system ports", [](Bench& b) { b.configure(Type::Serial, L"x"); b.parallel.set_caps_type(withdrawn); b.lose(Ability::IO_System_Ports); }, port, L"5  default changed", L"5 x file changed"},
        {"no system ports", [](Bench& b) { b.configure(Type::File, L"x"); b.lose(Ability::IO_System_Ports); }, port, L"5  default changed"},
    });
    // clang-format on
    for (const bool valid : {true, false}) {
        Bench bench;
        bench.configure(Type::Serial, valid ? L"COM1" : L"x");
        bench.validator.validate_portname_and_type(Strategy::Use_Default);
        EXPECT_EQ(bench.handler.told,
                  valid ? L""
                        : L"241 PX_Std_Plotter_IO_Validator::validate_portname_and_type (null) "
                          L"$Workfile: std_io_cfg $ $Revision: #1 $");
    }
}

TEST(IO_Validator, ASerialLineTakesWhatMethodAndPortOffer) {
    // clang-format off
    check({
        {"offered by both", as_set_up, protocol, L"8N1"},
        {"a file", [](Bench& b) { b.cfg.set_protocol(L"x"); b.to_file(); }, protocol, L"x"},
        {"no serial line", [](Bench& b) { b.cfg.set_protocol(L"x"); b.cfg.set_type(Type::Parallel); }, protocol, L"x"},
        {"a method that does without", [](Bench& b) { b.cfg.set_protocol(L"x"); b.lose(Method_Ability::Method_Default_Protocol); }, protocol, L"x"},
        {"none", [](Bench& b) { b.cfg.set_protocol(L""); b.add_protocol(L""); }, protocol, L"7E2 default changed", L"8E1 changed"},
        {"not the port's", [](Bench& b) { b.cfg.set_protocol(L"16N1"); b.add_protocol(L"16N1"); }, protocol, L"7E2 default changed", L"8E1 changed"},
        {"not the method's", [](Bench& b) { b.cfg.set_protocol(L"8N2"); }, protocol, L"7E2 default changed", L"8E1 changed"},
        {"withdrawn", [](Bench& b) { b.serial.get_protocol(L"8N1")->set_caps_type(withdrawn); }, protocol, L"7E2 default changed", L"8E1 changed"},
        {"no protocol at all", [](Bench& b) { b.cfg.set_protocol(L"x"); b.lose(Ability::IO_Protocol); }, protocol, L"x"},
        {"no methods, the port's", [](Bench& b) { b.cfg.set_protocol(L"5S1.5"); b.lose(Ability::IO_Methods); }, protocol, L"5S1.5"},
        {"no methods, not the port's", [](Bench& b) { b.cfg.set_protocol(L"x"); b.lose(Ability::IO_Methods); }, protocol, L" changed", L" unvalidated 217"},
        {"no port", [](Bench& b) { b.cfg.set_portname(L"x"); }, protocol, L" unvalidated 217"},
        {"no method", [](Bench& b) { b.serial.set_caps_type(withdrawn); }, protocol, L"8N1 unvalidated 1103 extramethod"},
        {"no method list", [](Bench& b) { b.caps.set_method_list(nullptr); }, protocol, L"8N1 unvalidated 1101 extramethlist"},

        {"offered by both", as_set_up, rate, L"4800"},
        {"a method that does without", [](Bench& b) { b.cfg.set_baud_rate(1); b.lose(Method_Ability::Method_Default_Baud_Rate); }, rate, L"1"},
        {"the smallest above", [](Bench& b) { b.cfg.set_baud_rate(4799); }, rate, L"19200 default changed", L"4800 changed"},
        {"the largest below", [](Bench& b) { b.cfg.set_baud_rate(115200); b.add_rate(9600); }, rate, L"19200 default changed", L"19200 changed"},
        {"both of a port", [](Bench& b) { b.cfg.set_baud_rate(57600); b.add_rate(57600); b.add_rate(131072); }, rate, L"19200 default changed", L"19200 changed"},
        {"withdrawn", [](Bench& b) { (*b.serial.get_baud_rate_list()->begin())->set_caps_type(withdrawn); }, rate, L"19200 default changed", L"19200 changed"},
        {"an all but silent method", [](Bench& b) { b.lose(Method_Ability::Method_Baud_Rate_List); }, rate, L"19200 default changed", L"0 unvalidated 215"},
        {"no rate: not asked", [](Bench& b) { b.cfg.set_baud_rate(1); b.lose(Ability::IO_Baud_Rate); }, rate, L"0 changed", L"4800 changed"},
        {"no methods, the port's", [](Bench& b) { b.cfg.set_baud_rate(75); b.lose(Ability::IO_Methods); }, rate, L"75"},
        {"no methods, not the port's", [](Bench& b) { b.cfg.set_baud_rate(76); b.lose(Ability::IO_Methods); }, rate, L"0 changed", L"2147483647 changed"},
        {"nothing that the port has", [](Bench& b) { b.serial.set_baud_rate_list(nullptr); }, rate, L"0 unvalidated 215"},
        {"no port", [](Bench& b) { b.cfg.set_portname(L"x"); }, rate, L"4800 unvalidated 1101 workratelist", L"0 unvalidated 215"},

        {"allowed by both", [](Bench& b) { b.cfg.set_handshake(7); }, handshake, L"7"},
        {"a method that does without", [](Bench& b) { b.cfg.set_handshake(0x10); b.lose(Method_Ability::Method_Default_Handshake); }, handshake, L"16"},
        {"disabling is always allowed", [](Bench& b) { b.cfg.set_handshake(0x88); b.serial.set_handshakes(0); }, handshake, L"136"},
        {"a bit that the method lacks", [](Bench& b) { b.cfg.set_handshake(0x13); }, handshake, L"4 default changed"},
        {"a bit that the port lacks", [](Bench& b) { b.cfg.set_handshake(0x1001); b.serial.set_handshakes(0x1007); }, handshake, L"4 default changed"},
        {"no methods", [](Bench& b) { b.cfg.set_handshake(0x800); b.lose(Ability::IO_Methods); }, handshake, L"2048"},
        {"no handshake: not asked", [](Bench& b) { b.cfg.set_handshake(0x10); b.lose(Ability::IO_Handshake); }, handshake, L"0 changed"},
        {"no port", [](Bench& b) { b.cfg.set_portname(L"x"); b.cfg.set_handshake(0); }, handshake, L"0 changed"},
    });
    // clang-format on
}

TEST(IO_Validator, DefaultsAreTakenWhereMethodAndPortCanDoThem) {
    // clang-format off
    const Case rows[] = {
        {"no protocol", [](Bench& b) { b.lose(Ability::IO_Protocol); }, protocol, L""},
        {"no methods", [](Bench& b) { b.lose(Ability::IO_Methods); }, protocol, L""},
        {"a method that does without", [](Bench& b) { b.lose(Method_Ability::Method_Default_Protocol); }, protocol, L" default"},
        {"not the method's", [](Bench& b) { b.serial.set_default_protocol(L"7N1"); }, protocol, L"8E1"},
        {"not the port's", [](Bench& b) { b.add_protocol(L"16N1"); b.serial.set_default_protocol(L"16N1"); }, protocol, L"8E1"},
        {"no method", [](Bench& b) { b.caps.get_method_list()->clear(); }, protocol, L" unvalidated 217"},
        {"the list's ability does not matter", [](Bench& b) { b.lose(Method_Ability::Method_Protocol_List); }, protocol, L"7E2 default"},

        {"no rate", [](Bench& b) { b.lose(Ability::IO_Baud_Rate); }, rate, L"0"},
        {"no methods", [](Bench& b) { b.lose(Ability::IO_Methods); }, rate, L"0"},
        {"a method that does without", [](Bench& b) { b.lose(Method_Ability::Method_Default_Baud_Rate); b.cfg.set_portname(L"x"); }, rate, L"0 default"},
        {"the method's list does not count", [](Bench& b) { b.serial.set_default_baud_rate(9600); b.lose(Method_Ability::Method_Baud_Rate_List); }, rate, L"9600 default"},
        {"not the port's", [](Bench& b) { b.serial.set_default_baud_rate(57600); b.add_rate(57600); }, rate, L"19200"},
        {"no port, and to a file", [](Bench& b) { b.cfg.set_portname(L"x"); b.to_file(); }, rate, L"4800 default"},

        {"no handshake", [](Bench& b) { b.lose(Ability::IO_Handshake); }, handshake, L"0"},
        {"a method that does without", [](Bench& b) { b.lose(Method_Ability::Method_Default_Handshake); }, handshake, L"0"},
        {"disabling counts as any bit", [](Bench& b) { b.serial.set_default_handshake(PX_Handshake::Handshake_Rts_Disable); }, handshake, L"0"},
        {"no port", [](Bench& b) { b.cfg.set_portname(L"x"); }, handshake, L"0"},

        {"no time-out", [](Bench& b) { b.lose(Ability::IO_Input_Timeout); }, input, L"0"},
        {"no method", [](Bench& b) { b.caps.get_method_list()->clear(); }, input, L"50"},
        {"the smallest", [](Bench& b) { b.serial.set_default_input_timeout(10); }, input, L"10 default"},
        {"too small", [](Bench& b) { b.serial.set_default_input_timeout(9); b.cfg.set_input_timeout(5); }, input, L"10"},
        {"no time-out", [](Bench& b) { b.lose(Ability::IO_Output_Timeout); }, output, L"0"},
        {"the largest", [](Bench& b) { b.serial.set_default_output_timeout(200); }, output, L"200 default"},
        {"too large", [](Bench& b) { b.serial.set_default_output_timeout(201); }, output, L"50"},

        {"emptied", [](Bench& b) { b.cfg.set_pathname(L"x"); }, path, L" default"},
        {"no path", [](Bench& b) { b.cfg.set_pathname(L"x"); b.lose(Ability::IO_Pathname); }, path, L"x"},
    };
    // clang-format on
    for (const Case& row : rows) {
        SCOPED_TRACE(row.datum.name + std::string(", ") + row.what);
        Bench bench;
        row.arrange(bench);
        EXPECT_EQ(outcome(bench, row.datum, [&] { (bench.validator.*row.datum.set_to_default)(); }),
                  row.by_default);
    }
}

TEST(IO_Validator, TheNearestProtocolIsTheWidestAndItsCheckTheHighest) {
    Bench bench;
    bench.serial.get_protocol_list()->clear();
    bench.add_protocol(L"16XS2");
    for (const wchar_t* const name :
         {L"5N1", L"5N1.5", L"5N2", L"5O1", L"5E1", L"5M1", L"5S1", L"6N1", L"7N1", L"7S1", L"8N1"}) {
        bench.add_protocol(name);
        bench.validator.set_protocol_to_nearest();
        EXPECT_STREQ(bench.cfg.get_protocol(), name);
    }
}

TEST(IO_Validator, TimeoutsAndThePathAreNoMatterOfThePort) {
    // clang-format off
    check({
        {"the smallest", [](Bench& b) { b.cfg.set_input_timeout(10); b.cfg.set_portname(L"x"); }, input, L"10"},
        {"too small, and to a file", [](Bench& b) { b.cfg.set_input_timeout(9); b.to_file(); }, input, L"60 default changed", L"10 changed"},
        {"the largest", [](Bench& b) { b.cfg.set_input_timeout(100); }, input, L"100"},
        {"too large", [](Bench& b) { b.cfg.set_input_timeout(101); }, input, L"60 default changed", L"100 changed"},
        {"the method of the type", [](Bench& b) { b.cfg.set_type(Type::Parallel); }, input, L"0 default changed", L"0 changed"},
        {"no method", [](Bench& b) { b.serial.set_caps_type(withdrawn); b.cfg.set_input_timeout(1); }, input, L"1"},
        {"no methods, and none set", [](Bench& b) { b.lose(Ability::IO_Methods); b.cfg.set_input_timeout(0); }, input, L"0 changed"},
        {"too small", [](Bench& b) { b.cfg.set_output_timeout(19); }, output, L"70 default changed", L"20 changed"},
        {"too large", [](Bench& b) { b.cfg.set_output_timeout(201); }, output, L"70 default changed", L"200 changed"},
        {"no methods", [](Bench& b) { b.lose(Ability::IO_Methods); }, output, L"0 changed"},
        {"no method list", [](Bench& b) { b.caps.set_method_list(nullptr); }, output, L"50 unvalidated 1101 workmethlist"},

        {"not to a file", [](Bench& b) { b.cfg.set_pathname(L"x"); }, path, L"x"},
        {"to a file", [](Bench& b) { b.cfg.set_pathname(L"x"); b.to_file(); }, path, L" default changed"},
        {"to a file without a path", [](Bench& b) { b.cfg.set_pathname(L"x"); b.to_file(); b.lose(Ability::IO_Pathname); }, path, L"x changed"},
    });
    // clang-format on
}

TEST(IO_Validator, FailuresPassFramesAndTheSystemPortsHaveNoFlags) {
    Bench bench;
    bench.cfg.set_portname(L"x");
    const std::wstring of = L"PX_Std_Plotter_IO_Validator::";
    const auto thrown =
        expect_thrown<PX_Exception>([&] { bench.validator.validate_protocol(Strategy::Use_Default); }, 217,
                                    of + L"set_protocol_to_nearest", L"");
    EXPECT_EQ(thrown.frames,
              (std::vector<std::wstring>{of + L"set_protocol_to_default", of + L"validate_protocol"}));
    EXPECT_EQ(thrown.file, L"$Workfile: std_io_cfg $ $Revision: #1 $");
    expect_thrown<MVNK_Memory_Exception>([&] { bench.validator.set_baud_rate_to_default(); }, 1101,
                                         of + L"set_baud_rate_to_default", L"workratelist");
    bench.any_port();
    bench.cfg.set_validated(true);
    bench.validator.set_all_system_ports_valid_to_default();
    EXPECT_TRUE(!bench.cfg.get_all_system_ports_valid() && bench.cfg.get_validated());
}

// A driver's validator that tells its calls.
// clang-format off
#define TELLS(number, name)                                                                        \
    void validate_##name(Strategy::Enum) override { calls += L" v" #number; }                      \
    void set_##name##_to_default() override { calls += L" d" #number; }
class Recording : public PX_Std_Plotter_IO_Validator {
public:
    using PX_Std_Plotter_IO_Validator::PX_Std_Plotter_IO_Validator;
    TELLS(1, portname_and_type)
    TELLS(2, protocol)
    TELLS(3, baud_rate)
    TELLS(4, handshake)
    TELLS(5, input_timeout)
    TELLS(6, output_timeout)
    TELLS(7, pathname)
    void set_all_system_ports_valid_to_default() override { throw MVNK_Error(1, L"Driver"); }
    static inline std::wstring calls;
};
#undef TELLS
// clang-format on

TEST(IO_Validator, TheWalkAndTheGroupGoThroughTheOverrides) {
    class Factory : public PX_Std_Plotter_Class_Factory {
    public:
        PX_Plotter_IO_Validator* MK_Create_Plotter_IO_Validator(
            PX_Plotter_Definition* plotter) const override {
            return new Recording(plotter);
        }
    };
    const Device device(new Definition_With<Factory>);
    const auto run = [&] {
        Recording::calls.clear();
        device.validator()->validate_all(Strategy::Use_Default, PX_Validation_Policy::Keep_All, false);
        return Recording::calls;
    };
    EXPECT_EQ(run(), L" d1 d2 d3 d4 d5 d6 d7");
    Recording::calls.clear();
    const auto thrown =
        expect_thrown<PX_Exception>([] { Recording(nullptr).set_all_io_to_defaults(); }, 1, L"Driver", L"");
    EXPECT_EQ(thrown.frames,
              std::vector<std::wstring>{L"PX_Std_Plotter_IO_Validator::set_all_io_to_defaults"});
    EXPECT_EQ(Recording::calls, L" d1 d2 d3 d4 d5 d6 d7");
    constexpr Ability::Enum abilities[] = {
        Ability::IO_Type,          Ability::IO_Protocol,       Ability::IO_Baud_Rate, Ability::IO_Handshake,
        Ability::IO_Input_Timeout, Ability::IO_Output_Timeout, Ability::IO_Pathname};
    for (int row = 0; row < 7; ++row) {
        device.io_caps()->set_abilities(PX_Ability_Value::Ability_Fixed);
        device.io_caps()->set_one_ability(PX_Ability_Value::Ability_Required, abilities[row]);
        device.io_cfg()->set_validated(true);
        EXPECT_EQ(run(), L"") << "validated already";
        device.io_cfg()->set_one_validated(false, static_cast<Flag::Enum>(row + 1));
        EXPECT_EQ(run(), L" v" + std::to_wstring(row + 1));
    }
}

TEST(IO_Validator, WhatIsMissingIsNamed) {
    class Without_Validator : public PX_Std_Plotter_Definition {
    public:
        Without_Validator() : PX_Std_Plotter_Definition(new Test_Handler) { m_plotter_validator = nullptr; }
    };
    const Device no_caps, no_cfg, no_domain, no_validator(new Without_Validator);
    no_caps->set_plotter_capabilities(nullptr);
    no_cfg->set_plotter_configuration(nullptr);
    no_domain->set_plotter_configuration(
        no_domain->get_class_factory()->MK_Create_Plotter_Configuration(L"", L"", L""));
    const auto expect = [](const Device& device, const std::wstring& operation, const auto& call,
                           const wchar_t* detail) {
        Validator validator(device.get());
        expect_thrown<MVNK_Error>([&] { call(validator); }, 1103,
                                  L"PX_Std_Plotter_IO_Validator::" + operation, detail);
    };
    const auto expect_missing = [&](const std::wstring& operation, const auto& call) {
        expect(no_caps, operation, call, L"plotter_caps or plotter_cfg");
        expect(no_cfg, operation, call, L"plotter_caps or plotter_cfg");
        expect(no_domain, operation, call, L"io caps or io cfg");
    };
    for (const Datum& datum : data) {
        const std::wstring name(datum.name, datum.name + std::strlen(datum.name));
        const auto validate = [&](auto& validator) { (validator.*datum.validate)(Strategy::Use_Default); };
        expect_missing(L"validate_" + name, validate);
        expect(no_validator, L"validate_" + name, validate, L"plotter validator");
        expect_missing(L"set_" + name + L"_to_default",
                       [&](auto& validator) { (validator.*datum.set_to_default)(); });
    }
#define EXPECT_MISSING(name) expect_missing(L"" #name, [](auto& validator) { validator.name(); })
    EXPECT_MISSING(set_all_system_ports_valid_to_default);
    EXPECT_MISSING(set_portname_and_type_to_nearest);
    EXPECT_MISSING(set_protocol_to_nearest);
    EXPECT_MISSING(set_baud_rate_to_nearest);
    EXPECT_MISSING(set_input_timeout_to_nearest);
    EXPECT_MISSING(set_output_timeout_to_nearest);
#undef EXPECT_MISSING
}

}  // namespace
