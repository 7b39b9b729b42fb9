#include "examples/common/ways_out.h"

#include "examples/common/made.h"

namespace {

using Ability = PX_Plotter_IO_Ability_Flags;
using Method_Ability = PX_IO_Method_Ability_Flags;
using Value = PX_Ability_Value;

constexpr long longest_timeout = 600000;

PX_Smart_Pointer<PX_IO_Method> method_of(PX_IO_Type::Enum type, long timeout,
                                         const PX_Plotter_Class_Factory& factory) {
    auto method = made(factory.MK_Create_IO_Method(), L"method");
    method->set_type(type);
    method->set_max_input_timeout(longest_timeout);
    method->set_max_output_timeout(longest_timeout);
    method->set_default_input_timeout(timeout);
    method->set_default_output_timeout(timeout);
    return method;
}

void add_line_settings(PX_IO_Method& method, const Serial_Settings& line,
                       const PX_Plotter_Class_Factory& factory) {
    const auto protocols = made(factory.MK_Create_Protocol_List(), L"protocols");
    for (const Line_Protocol& offered : line.protocols) {
        const auto protocol =
            made_named(factory.MK_Create_Protocol(), L"protocol", offered.name, offered.name);
        protocol->set_data_bits(offered.data_bits);
        protocol->set_parity(offered.parity);
        protocol->set_stop_bits(PX_Stop_Bits::Stop_Bits_1);
        protocols->append(protocol);
    }
    method.set_protocol_list(protocols.get());
    method.set_default_protocol(line.protocols.front().name);

    const auto speeds = made(factory.MK_Create_Baud_Rate_List(), L"rates");
    for (const long rate : line.rates) {
        const auto speed = made(factory.MK_Create_Baud_Rate(), L"rate");
        speed->set_baud_rate(rate);
        speeds->append(speed);
    }
    method.set_baud_rate_list(speeds.get());
    method.set_default_baud_rate(line.default_rate);

    method.set_handshakes(line.handshakes);
    method.set_default_handshake(line.default_handshake);
    for (const Method_Ability::Enum ability :
         {Method_Ability::Method_Protocol_List, Method_Ability::Method_Baud_Rate_List,
          Method_Ability::Method_Default_Protocol, Method_Ability::Method_Default_Baud_Rate,
          Method_Ability::Method_Default_Handshake})
        method.set_one_ability(Value::Ability_Settable_Listed, ability);
}

}  // namespace

PX_Smart_Pointer<PX_Plotter_IO_Capabilities> ways_out(const Serial_Settings& line, const wchar_t* extension,
                                                      long timeout, const PX_Plotter_Class_Factory& factory) {
    auto capabilities = made(factory.MK_Create_Plotter_IO_Capabilities(), L"io_capabilities");
    const auto methods = made(factory.MK_Create_IO_Method_List(), L"methods");
    for (const PX_IO_Type::Enum type :
         {PX_IO_Type::File, PX_IO_Type::Serial, PX_IO_Type::Parallel, PX_IO_Type::Network}) {
        const auto method = method_of(type, timeout, factory);
        if (type == PX_IO_Type::Serial)
            add_line_settings(*method, line, factory);
        methods->append(method);
    }
    capabilities->set_method_list(methods.get());
    capabilities->set_default_type(PX_IO_Type::File);
    capabilities->set_default_plot_to_file_extension(extension);
    capabilities->set_abilities(Value::Ability_Settable_Listed);
    // A port that is not there is nothing to keep.
    capabilities->set_one_ability(Value::Ability_Required, Ability::IO_Type);
    return capabilities;
}
