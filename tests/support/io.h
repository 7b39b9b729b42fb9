#pragma once

#include "tests/support/device.h"
#include "tests/support/entries.h"

namespace support {

// A device on COM1 whose choices pass: 8N1, 4800, handshake 3, both time-outs 50. Its defaults are the first
// parallel port, 7E2, 19200, handshake 4, 60 and 70.
struct IO_Device {
    explicit IO_Device(PX_Plotter_Definition* plotter = new PX_Std_Plotter_Definition(new Test_Handler))
        : device(plotter) {
        for (const wchar_t* const name : {L"8N1", L"7E2", L"8E1"})
            add_protocol(name);
        add_rate(4800);
        add_rate(19200);
        serial.set_handshakes(7);
        serial.set_default_protocol(L"7E2");
        serial.set_default_baud_rate(19200);
        serial.set_default_handshake(PX_Handshake::Handshake_Cts_Out);
        serial.set_min_input_timeout(10);
        serial.set_max_input_timeout(100);
        serial.set_default_input_timeout(60);
        serial.set_min_output_timeout(20);
        serial.set_max_output_timeout(200);
        serial.set_default_output_timeout(70);
        serial.set_abilities(PX_Ability_Value::Ability_Required);
        caps.set_abilities(PX_Ability_Value::Ability_Required);
        caps.set_default_type(PX_IO_Type::Parallel);
        configure(PX_IO_Type::Serial, L"COM1");
        cfg.set_protocol(L"8N1");
        cfg.set_baud_rate(4800);
        cfg.set_handshake(3);
        cfg.set_input_timeout(50);
        cfg.set_output_timeout(50);
    }

    PX_Plotter_Definition* get() const { return device.get(); }

    PX_IO_Method& add_method(PX_IO_Type::Enum type) const {
        auto* const method = new PX_Std_IO_Method;
        method->set_type(type);
        caps.get_method_list()->append(method);
        return *method;
    }
    void add_protocol(const wchar_t* name) const {
        serial.get_protocol_list()->append(named<PX_Std_Protocol>(name));
    }
    void add_rate(long number) const {
        auto* const rate = new PX_Std_Baud_Rate;
        rate->set_baud_rate(number);
        serial.get_baud_rate_list()->append(rate);
    }
    void configure(PX_IO_Type::Enum type, const wchar_t* port) const {
        cfg.set_type(type);
        cfg.set_portname(port);
    }

    const Device device;
    PX_Plotter_IO_Capabilities& caps = *device.io_caps();
    PX_Plotter_IO_Configuration& cfg = *device.io_cfg();
    PX_IO_Method& serial = add_method(PX_IO_Type::Serial);
    PX_IO_Method& parallel = add_method(PX_IO_Type::Parallel);
};

}  // namespace support
