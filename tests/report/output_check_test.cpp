#include <memory>

#include "tests/report/findings.h"
#include "tests/support/io.h"
#include "toolkit/core/module.h"
#include "toolkit/platform/scripted/scripted_platform.h"

namespace {

using namespace support;

// A machine with a serial and a parallel port, and a device on it.
struct Output {
    Output() {
        PX_Module_Exit();
        machine.add_port(L"COM1:");
        machine.add_port(L"LPT1:");
        io->device->get_error_handler()->set_quiet_mode(true);
    }
    ~Output() { PX_Module_Exit(); }

    void set_ability(PX_Plotter_IO_Ability_Flags::Enum flag, int ability) const {
        io->caps.set_one_ability(Number{ability}, flag);
    }
    void set_ability(PX_IO_Method_Ability_Flags::Enum flag, int ability) const {
        io->serial.set_one_ability(Number{ability}, flag);
    }
    void keep_rate(long rate) const {
        io->serial.get_baud_rate_list()->clear();
        io->add_rate(rate);
        io->cfg.set_baud_rate(rate);
    }
    // On a device whose default is the serial line.
    void choose_parallel() const {
        io->caps.set_default_type(PX_IO_Type::Serial);
        io->cfg.set_type(PX_IO_Type::Parallel);
        io->cfg.set_portname(L"LPT1");
    }
    void lose_parallel_port() {
        PX_Module_Exit();
        other_machine.add_port(L"COM1:");
        use_other = std::make_unique<PX_Use_Platform>(other_machine);
    }
    // Every run writes a serial line of no name.
    void fix_serial_without_ports() const {
        using Ability = PX_Plotter_IO_Ability_Flags;
        io->caps.set_default_type(PX_IO_Type::Serial);
        set_ability(Ability::IO_Type, 1);
        for (const Ability::Enum other :
             {Ability::IO_System_Ports, Ability::IO_Protocol, Ability::IO_Baud_Rate,
              Ability::IO_Input_Timeout, Ability::IO_Output_Timeout})
            set_ability(other, 0);
    }
    PX_Scripted_Platform machine;
    PX_Use_Platform use{machine};
    PX_Scripted_Platform other_machine;
    std::unique_ptr<PX_Use_Platform> use_other;
    std::unique_ptr<IO_Device> io = std::make_unique<IO_Device>();
};

// A driver's identity that has no model.
struct Without_Model : PX_Std_Meta_Capabilities {
    PX_Smart_Pointer<PX_Model> get_model() const override { return nullptr; }
    PX_Meta_Capabilities* clone() const override { return new Without_Model; }
};

TEST(OutputCheck, WhatIsWrong) {
    using O = Output;
    using Ability = PX_Plotter_IO_Ability_Flags;
    using Method = PX_IO_Method_Ability_Flags;
    using Type = PX_IO_Type;
    using Change = PX_IO_Change;
    {
        const Output sound;
        expect_sound(sound.io->device);
    }
    const Faulty<O> rows[] = {
        {"ability", [](O& o) { o.set_ability(Ability::IO_Pathname, -1); },
         throws(L"ability of the path name", Fault::Ability_Undefined, 1001)},
        {"no list of methods", [](O& o) { o.io->caps.set_method_list(nullptr); },
         throws(L"methods", Fault::List_Missing, 1101, L"workmethlist"), How::Use_Default, 2},
        {"type met twice", [](O& o) { o.io->add_method(Type::Serial); },
         passed_over(L"method 'serial', place 3", Fault::Equal_Names)},
        {"identity",
         [](O& o) {
             o.io->device->set_meta_capabilities(nullptr);
             o.io->caps.set_one_ability(Number{0}, Ability::IO_Protocol);
             o.io->configure(Type::Driver_Plain, L"");
         },
         throws(L"identity", Fault::Object_Missing, 1103, L"meta_capabilities")},
        {"default type of no machine",
         [](O& o) {
             o.set_ability(Ability::IO_System_Ports, 0);
             o.set_ability(Ability::IO_Baud_Rate, 0);
             o.io->configure(Type::No_IO_Type, L"");
         },
         repeats(L"default type 'parallel'", Fault::Type_Never_Valid, Change::Portname | Change::Type)},
        {"default type without a method",
         [](O& o) {
             o.io->caps.set_default_type(Type::Parallel);
             o.io->caps.get_method_list()->remove(&o.io->parallel);
             o.set_ability(Ability::IO_Baud_Rate, 0);
             o.set_ability(Ability::IO_Protocol, 0);
             o.io->configure(Type::No_IO_Type, L"");
         },
         repeats(L"default type 'parallel'", Fault::Method_Missing, Change::Portname | Change::Type)},
        {"default type that goes to a file",
         [](O& o) {
             o.io->caps.set_default_type(Type::Driver_System);
             o.set_ability(Ability::IO_Protocol, 0);
         },
         passed_over(L"default type 'of a system driver'", Fault::Type_Never_Valid)},
        {"defaults without a method", [](O& o) { o.io->caps.get_method_list()->remove(&o.io->parallel); },
         throws(L"method 'parallel'", Fault::Method_Missing, 217), How::All_To_Defaults, 3},
        {"default rate without a method",
         [](O& o) {
             o.io->caps.get_method_list()->remove(&o.io->parallel);
             o.set_ability(Ability::IO_Protocol, 0);
         },
         throws(L"method 'parallel', default baud rate", Fault::Type_Never_Valid, 215), How::All_To_Defaults,
         2},
        {"protocol of a parallel port",
         [](O& o) { o.io->parallel.set_one_ability(Number{4}, Method::Method_Default_Protocol); },
         throws(L"method 'parallel', default protocol", Fault::Type_Never_Valid, 217), How::All_To_Defaults},
        {"protocol of a type that is not the default",
         [](O& o) {
             o.choose_parallel();
             o.io->parallel.set_one_ability(Number{4}, Method::Method_Default_Protocol);
             o.set_ability(Ability::IO_Protocol, 1);
         },
         throws(L"method 'parallel', default protocol", Fault::Type_Never_Valid, 217)},
        {"rate of a type that is not the default",
         [](O& o) {
             o.choose_parallel();
             o.io->parallel.set_one_ability(Number{4}, Method::Method_Default_Baud_Rate);
             o.set_ability(Ability::IO_Baud_Rate, 1);
         },
         throws(L"method 'parallel', default baud rate", Fault::Type_Never_Valid, 215)},
        {"rate without a port",
         [](O& o) {
             o.set_ability(Ability::IO_System_Ports, 0);
             o.set_ability(Ability::IO_Type, 0);
             o.io->add_method(Type::No_IO_Type).set_one_ability(Number{4}, Method::Method_Default_Baud_Rate);
         },
         throws(L"method 'none', default baud rate", Fault::Type_Never_Valid, 1101, L"workratelist"),
         How::All_To_Defaults},
        {"no serial method",
         [](O& o) {
             o.io->caps.get_method_list()->remove(&o.io->serial);
             o.io->cfg.set_all_system_ports_valid(true);
         },
         throws(L"method 'serial'", Fault::Method_Missing, 1103, L"extramethod")},
        {"protocols without methods",
         [](O& o) {
             o.set_ability(Ability::IO_Methods, 0);
             for (const Ability::Enum other : {Ability::IO_Type, Ability::IO_Baud_Rate,
                                               Ability::IO_Input_Timeout, Ability::IO_Output_Timeout})
                 o.set_ability(other, 1);
             o.io->caps.set_default_type(Type::Serial);
             o.io->cfg.set_protocol(L"x");
         },
         throws(L"nearest protocol", Fault::Method_Missing, 217), How::Use_Nearest, 2},
        {"protocol without methods",
         [](O& o) {
             o.io->caps.set_abilities(PX_Ability_Value::Ability_None);
             o.set_ability(Ability::IO_Protocol, 2);
             o.set_ability(Ability::IO_System_Ports, 1);
             o.set_ability(Ability::IO_Type, 1);
             o.io->caps.set_default_type(Type::Serial);
             o.io->cfg.set_protocol(L"x");
         },
         repeats(L"protocol", Fault::Method_Missing, Change::Protocol), How::Use_Default, 2},
        {"rates without methods",
         [](O& o) {
             o.set_ability(Ability::IO_Methods, 0);
             for (const Ability::Enum other : {Ability::IO_Type, Ability::IO_Protocol,
                                               Ability::IO_Input_Timeout, Ability::IO_Output_Timeout})
                 o.set_ability(other, 1);
             o.io->caps.set_default_type(Type::Serial);
             o.io->cfg.set_baud_rate(1);
         },
         repeats(L"baud rate", Fault::Method_Missing, Change::Baud_Rate)},
        {"time-outs without methods",
         [](O& o) {
             o.io->caps.set_abilities(PX_Ability_Value::Ability_None);
             o.set_ability(Ability::IO_Input_Timeout, 2);
         },
         repeats(L"input time-out", Fault::Method_Missing, Change::Input_Timeout)},
        {"protocol list not counted", [](O& o) { o.set_ability(Method::Method_Protocol_List, 0); },
         repeats(L"method 'serial', protocols", Fault::List_Not_Counted, Change::Protocol)},
        {"no protocol",
         [](O& o) {
             o.io->serial.get_protocol_list()->clear();
             o.io->add_protocol(L"8n1");
         },
         throws(L"method 'serial', protocols", Fault::Nothing_To_Take, 217), How::Use_Default, 2},
        {"default protocol", [](O& o) { o.io->serial.set_default_protocol(L"x"); },
         passed_over(L"method 'serial', default protocol 'x'", Fault::Default_Not_Offered)},
        {"rate list not counted", [](O& o) { o.set_ability(Method::Method_Baud_Rate_List, 0); },
         repeats(L"method 'serial', baud rates", Fault::List_Not_Counted, Change::Baud_Rate),
         How::Use_Default, 2},
        {"nearest of a rate list that is not counted",
         [](O& o) {
             o.set_ability(Method::Method_Baud_Rate_List, 0);
             o.set_ability(Ability::IO_Baud_Rate, 4);
         },
         throws(L"method 'serial', baud rates", Fault::List_Not_Counted, 215), How::Use_Nearest, 2},
        {"no rate", [](O& o) { o.io->serial.get_baud_rate_list()->clear(); },
         throws(L"method 'serial', baud rates", Fault::Nothing_To_Take, 215)},
        {"one rate, which is not the default",
         [](O& o) {
             o.io->serial.get_baud_rate_list()->clear();
             o.io->add_rate(4800);
             o.io->caps.set_default_type(Type::Serial);
         },
         throws(L"method 'serial', default baud rate", Fault::Default_Not_Offered, 215),
         How::All_To_Defaults},
        {"no protocol behind a fixed ability",
         [](O& o) {
             o.set_ability(Ability::IO_Protocol, 1);
             o.io->serial.get_protocol_list()->clear();
         },
         throws(L"method 'serial', protocols", Fault::Nothing_To_Take, 217)},
        {"no rate behind a fixed ability",
         [](O& o) {
             o.set_ability(Ability::IO_Baud_Rate, 1);
             o.io->serial.get_baud_rate_list()->clear();
         },
         throws(L"method 'serial', baud rates", Fault::Nothing_To_Take, 215)},
        {"one rate behind a fixed ability",
         [](O& o) {
             o.set_ability(Ability::IO_Baud_Rate, 1);
             o.keep_rate(4800);
         },
         throws(L"method 'serial', default baud rate", Fault::Default_Not_Offered, 215)},
        {"one rate twice",
         [](O& o) {
             o.keep_rate(4800);
             o.io->add_rate(4800);
             o.io->caps.set_default_type(Type::Serial);
         },
         throws(L"method 'serial', default baud rate", Fault::Default_Not_Offered, 215),
         How::All_To_Defaults},
        {"no rate, on a machine that lacks the default type",
         [](O& o) {
             o.lose_parallel_port();
             o.set_ability(Ability::IO_Type, 1);
             o.io->serial.get_baud_rate_list()->clear();
         },
         throws(L"method 'serial', baud rates", Fault::Nothing_To_Take, 215)},
        {"several rates, none the default", [](O& o) { o.io->serial.set_default_baud_rate(300); },
         passed_over(L"method 'serial', default baud rate", Fault::Default_Not_Offered)},
        {"handshake without a port",
         [](O& o) {
             o.fix_serial_without_ports();
             o.set_ability(Method::Method_Default_Handshake, 5);
         },
         repeats(L"handshake", Fault::Type_Never_Valid, Change::Handshake)},
        {"handshake without a port and methods",
         [](O& o) {
             o.fix_serial_without_ports();
             o.set_ability(Ability::IO_Methods, 0);
         },
         repeats(L"handshake", Fault::Type_Never_Valid, Change::Handshake)},
        {"network without a name",
         [](O& o) {
             o.io->caps.set_default_type(Type::Network);
             o.io->add_method(Type::Network);
             o.set_ability(Ability::IO_System_Ports, 0);
             o.io->configure(Type::No_IO_Type, L"");
         },
         repeats(L"default type 'network'", Fault::Type_Never_Valid, Change::Portname | Change::Type)},
        {"plain driver that is a system driver",
         [](O& o) {
             o.io->device->get_meta_capabilities()->set_driver_type(PX_Driver_Type::Driver_Type_System_1);
             o.io->caps.set_default_type(Type::Driver_Plain);
             o.io->add_method(Type::Driver_Plain);
             o.set_ability(Ability::IO_System_Ports, 0);
             o.io->configure(Type::No_IO_Type, L"");
         },
         repeats(L"default type 'of a plain driver'", Fault::Type_Never_Valid,
                 Change::Portname | Change::Type)},
        {"file without a method",
         [](O& o) {
             o.io->caps.set_default_type(Type::File);
             o.set_ability(Ability::IO_System_Ports, 0);
             o.set_ability(Ability::IO_Protocol, 0);
             o.set_ability(Ability::IO_Baud_Rate, 0);
             o.io->configure(Type::No_IO_Type, L"");
         },
         repeats(L"default type 'file'", Fault::Method_Missing, Change::Portname | Change::Type)},
        {"model",
         [](O& o) {
             o.io->device->set_meta_capabilities(PX_Smart_Pointer(new Without_Model).get());
             o.io->configure(Type::Network, L"");
             o.io->cfg.set_all_system_ports_valid(true);
         },
         throws(L"model", Fault::Object_Missing, 1103, L"model")},
        {"protocols of one name", [](O& o) { o.io->add_protocol(L"8N1"); },
         passed_over(L"method 'serial', protocol '8N1', place 4", Fault::Equal_Names)},
        {"protocol of no port", [](O& o) { o.io->add_protocol(L"9N1"); },
         passed_over(L"method 'serial', protocol '9N1'", Fault::Names_Nothing)},
        {"default handshake", [](O& o) { o.io->serial.set_handshakes(3); },
         passed_over(L"method 'serial', default handshake", Fault::Default_Not_Offered)},
        {"reversed time-outs", [](O& o) { o.io->serial.set_min_input_timeout(101); },
         repeats(L"method 'serial', limits of the input time-out", Fault::Limits_Reversed,
                 Change::Input_Timeout),
         How::Use_Nearest},
        {"default time-out", [](O& o) { o.io->serial.set_default_output_timeout(1); },
         passed_over(L"method 'serial', default output time-out", Fault::Default_Out_Of_Range)},
    };
    expect_found<O>(rows, PX_Domain_Mask::IO, [](const O& o) -> const Device& { return o.io->device; });

    // The channel asks in its own way.
    Output none;
    none.io->caps.get_method_list()->clear();
    none.io->caps.set_abilities(PX_Ability_Value::Ability_None);
    none.set_ability(Ability::IO_Methods, 1);
    EXPECT_EQ(
        px_check_device(*none.io->get()),
        (Findings{{PX_Domain_Mask::IO, L"methods", Fault::Nothing_To_Take, Effect::Throws, 210, L"", 0}}));
    EXPECT_EQ(thrown_by([&] { none.io->caps.get_method(Type::Serial); })->code, 210U);
}

TEST(OutputCheck, EveryGateIsAsked) {
    using Ability = PX_Plotter_IO_Ability_Flags;
    for (const Ability::Enum gate :
         {Ability::IO_Type, Ability::IO_Protocol, Ability::IO_Baud_Rate, Ability::IO_Handshake,
          Ability::IO_Input_Timeout, Ability::IO_Output_Timeout, Ability::IO_Pathname})
        // Without a type, no method is that of the default.
        expect_gate_asked<Output>([=](Output& o, int ability) { o.set_ability(gate, ability); },
                                  [](const Output& o) -> const Device& { return o.io->device; }, gate,
                                  gate == Ability::IO_Type ? 1 : 0);
}

TEST(OutputCheck, WhatNoRunReachesIsNoFinding) {
    using Ability = PX_Plotter_IO_Ability_Flags;
    using Type = PX_IO_Type;
    const Sound<Output> rows[] = {
        {"lines of a device whose type is none",
         [](Output& o) {
             o.set_ability(Ability::IO_Type, 0);
             o.io->serial.set_min_input_timeout(101);
             o.io->serial.get_protocol_list()->clear();
             o.io->serial.get_baud_rate_list()->clear();
             for (const Ability::Enum other : {Ability::IO_Protocol, Ability::IO_Baud_Rate})
                 o.set_ability(other, 0);
         }},
        {"no serial method, and no type",
         [](Output& o) {
             o.set_ability(Ability::IO_Type, 0);
             o.io->caps.get_method_list()->remove(&o.io->serial);
             for (const Ability::Enum other : {Ability::IO_Protocol, Ability::IO_Baud_Rate})
                 o.set_ability(other, 0);
         }},
        {"serial lines beside a fixed type that is never one",
         [](Output& o) {
             o.set_ability(Ability::IO_Type, 1);
             o.set_ability(Ability::IO_Pathname, 0);
             o.io->caps.set_default_type(Type::File);
             o.io->add_method(Type::File);
             o.io->serial.get_protocol_list()->clear();
             o.io->serial.get_baud_rate_list()->clear();
         }},
        {"a wide framing", [](Output& o) { o.io->add_protocol(L"16XS1.5"); }},
        {"network with a name",
         [](Output& o) {
             PX_Model& model = *o.io->device->get_meta_capabilities()->get_model();
             model.set_short_net_name(L"queue");
             o.io->caps.set_default_type(Type::Network);
             o.io->add_method(Type::Network);
             o.set_ability(Ability::IO_System_Ports, 0);
         }},
    };
    expect_no_findings<Output>(rows, [](const Output& o) -> const Device& { return o.io->device; });
}

}  // namespace
