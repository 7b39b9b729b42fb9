#include <algorithm>

#include "fuzz/device.h"

namespace fuzz {

namespace {

const wchar_t* protocol_name(Input& input) {
    constexpr std::array names = {L"8N1", L"7E2", L"5N1", L"16XS2", L"8N1.5", L"", L"8n1"};
    return names[static_cast<std::size_t>(input.up_to(names.size() - 1))];
}

// Some of the scripted machine's, and others.
const wchar_t* port_name(Input& input) {
    constexpr std::array names = {L"COM1",          L"COM2", L"LPT1",  L"queue",
                                  L"server\\queue", L"",     L"com1:", L"FILE:"};
    return names[static_cast<std::size_t>(input.up_to(names.size() - 1))];
}

void fill_rate(Input& input, PX_Baud_Rate& rate) {
    rate.set_baud_rate(input.rarely() ? input.number() : 2400 << input.up_to(4));
}

void fill_protocol(Input& input, PX_Protocol& protocol) {
    protocol.set_canonical_name(protocol_name(input));
    protocol.set_data_bits(Number{input.number<int>()});
    protocol.set_parity(Number{input.number<int>()});
    protocol.set_stop_bits(Number{input.number<int>()});
}

void fill_method(Input& input, PX_IO_Method& method) {
    fill_abilities(input, method);
    method.set_type(Number{input.up_to(8) - 1});
    if (const auto protocols = method.get_protocol_list())
        append<PX_Std_Protocol>(input, protocols, fill_protocol);
    if (const auto rates = method.get_baud_rate_list())
        append<PX_Std_Baud_Rate>(input, rates, fill_rate);
    // In a range without a number the nearest one goes from end to end with every run.
    const auto [output_min, output_max] = std::minmax({input.number(), input.number()});
    const auto [input_min, input_max] = std::minmax({input.number(), input.number()});
    method.set_min_output_timeout(output_min);
    method.set_max_output_timeout(output_max);
    method.set_min_input_timeout(input_min);
    method.set_max_input_timeout(input_max);
    method.set_handshakes(input.number());
    method.set_default_protocol(protocol_name(input));
    method.set_default_baud_rate(2400 << input.up_to(4));
    method.set_default_handshake(Number{input.number<int>()});
    method.set_default_input_timeout(input.number());
    method.set_default_output_timeout(input.number());
    if (input.rarely(32))
        method.set_protocol_list(nullptr);
    if (input.rarely(32))
        method.set_baud_rate_list(nullptr);
}

}  // namespace

void fill(Input& input, PX_Plotter_IO_Capabilities& caps, PX_Plotter_IO_Configuration& cfg) {
    fill_abilities(input, caps);
    append<PX_Std_IO_Method>(input, caps.get_method_list(), fill_method);
    caps.set_default_type(Number{input.up_to(8) - 1});
    if (input.rarely(32))
        caps.set_method_list(nullptr);
    cfg.set_portname(port_name(input));
    cfg.set_type(Number{input.rarely() ? input.number<int>() : input.up_to(6)});
    cfg.set_protocol(protocol_name(input));
    cfg.set_baud_rate(input.rarely() ? input.number() : 2400 << input.up_to(4));
    cfg.set_handshake(input.number());
    cfg.set_input_timeout(input.number());
    cfg.set_output_timeout(input.number());
    cfg.set_pathname(input.name_or_null());
    cfg.set_plot_to_file(input.flag());
    cfg.set_all_system_ports_valid(input.flag());
}

void tell(std::wostream& out, const PX_Plotter_IO_Configuration& cfg) {
    tell_all(out, cfg.get_portname(), cfg.get_type(), cfg.get_protocol(), cfg.get_baud_rate(),
             cfg.get_handshake(), cfg.get_input_timeout(), cfg.get_output_timeout(), cfg.get_pathname(),
             cfg.get_plot_to_file(), cfg.get_all_system_ports_valid());
}

}  // namespace fuzz
