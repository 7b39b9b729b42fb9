#include <algorithm>

#include "fuzz/device.h"

namespace fuzz {

namespace {

const wchar_t* protocol_name(Input& input) {
    constexpr const wchar_t* names[] = {L"8N1", L"7E2", L"5N1", L"16XS2", L"8N1.5", L"", L"8n1"};
    return input.one_of(names);
}

// Some of the scripted machine's, and others.
const wchar_t* port_name(Input& input) {
    constexpr const wchar_t* names[] = {L"COM1",          L"COM2", L"LPT1",  L"queue",
                                        L"server\\queue", L"",     L"com1:", L"FILE:"};
    return input.one_of(names);
}

long rate(Input& input) {
    return input.rarely() ? input.number() : 2400 << input.up_to(4);
}

// In a range without a number the nearest one goes from end to end with every run.
template <class Set>
void set_range(Input& input, PX_IO_Method& method, Set set_min, Set set_max) {
    const auto [least, most] = std::minmax({input.number(), input.number()});
    (method.*set_min)(least);
    (method.*set_max)(most);
}

}  // namespace

static void fill(Input& input, PX_Baud_Rate& entry) {
    entry.set_baud_rate(rate(input));
}

static void fill(Input& input, PX_Protocol& protocol) {
    protocol.set_canonical_name(protocol_name(input));
    set_all(input, protocol, &PX_Protocol::set_data_bits, &PX_Protocol::set_parity,
            &PX_Protocol::set_stop_bits);
}

static void fill(Input& input, PX_IO_Method& method) {
    using Method = PX_IO_Method;
    fill_abilities(input, method);
    method.set_type(Number{input.up_to(8) - 1});
    append<PX_Std_Protocol>(input, method.get_protocol_list());
    append<PX_Std_Baud_Rate>(input, method.get_baud_rate_list());
    set_range(input, method, &Method::set_min_output_timeout, &Method::set_max_output_timeout);
    set_range(input, method, &Method::set_min_input_timeout, &Method::set_max_input_timeout);
    method.set_default_protocol(protocol_name(input));
    method.set_default_baud_rate(2400 << input.up_to(4));
    set_all(input, method, &Method::set_handshakes, &Method::set_default_handshake,
            &Method::set_default_input_timeout, &Method::set_default_output_timeout,
            &Method::set_protocol_list, &Method::set_baud_rate_list);
}

void fill(Input& input, PX_Plotter_IO_Capabilities& caps, PX_Plotter_IO_Configuration& cfg) {
    using Cfg = PX_Plotter_IO_Configuration;
    fill_abilities(input, caps);
    append<PX_Std_IO_Method>(input, caps.get_method_list());
    caps.set_default_type(Number{input.up_to(8) - 1});
    set(input, caps, &PX_Plotter_IO_Capabilities::set_method_list);
    cfg.set_portname(port_name(input));
    cfg.set_type(Number{input.rarely() ? input.number<int>() : input.up_to(6)});
    cfg.set_protocol(protocol_name(input));
    cfg.set_baud_rate(rate(input));
    set_all(input, cfg, &Cfg::set_handshake, &Cfg::set_input_timeout, &Cfg::set_output_timeout,
            &Cfg::set_pathname, &Cfg::set_plot_to_file, &Cfg::set_all_system_ports_valid);
}

void tell(std::wostream& out, const PX_Plotter_IO_Configuration& cfg) {
    tell_all(out, cfg.get_portname(), cfg.get_type(), cfg.get_protocol(), cfg.get_baud_rate(),
             cfg.get_handshake(), cfg.get_input_timeout(), cfg.get_output_timeout(), cfg.get_pathname(),
             cfg.get_plot_to_file(), cfg.get_all_system_ports_valid());
}

}  // namespace fuzz
