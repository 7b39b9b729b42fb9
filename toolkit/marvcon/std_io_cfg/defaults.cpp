#include "toolkit/marvcon/std_io_cfg/datum.h"
#include "toolkit/marvcon/std_io_cfg/validator.h"

// What a device's default makes of each datum; a default that the machine cannot do goes on to the nearest.

using Ability = PX_Plotter_IO_Ability_Flags;
using Method_Ability = PX_IO_Method_Ability_Flags;
using Flag = PX_IO_Config_Flags;

void PX_Std_Plotter_IO_Validator::set_all_io_to_defaults() {
    px_frame(L"PX_Std_Plotter_IO_Validator::set_all_io_to_defaults", [&] {
        set_portname_and_type_to_default();
        set_protocol_to_default();
        set_baud_rate_to_default();
        set_handshake_to_default();
        set_input_timeout_to_default();
        set_output_timeout_to_default();
        set_pathname_to_default();
        set_all_system_ports_valid_to_default();
    });
}

void PX_Std_Plotter_IO_Validator::set_portname_and_type_to_default() {
    const PX_IO_Datum datum(m_plotter, L"PX_Std_Plotter_IO_Validator::set_portname_and_type_to_default");
    const auto settle = [&datum] {
        datum.settle(Flag::IO_Config_Portname);
        datum.settle(Flag::IO_Config_Type);
    };
    if (!datum.has(Ability::IO_Type)) {
        datum.configuration->set_type(PX_IO_Type::No_IO_Type);
        datum.configuration->set_portname(L"");
        return settle();
    }
    const PX_IO_Type::Enum type = datum.capabilities->get_default_type();
    datum.configuration->set_type(type);
    if (datum.has(Ability::IO_System_Ports)) {
        const auto port = datum.port_of(type);
        if (!port) {
            datum.configuration->set_type(type);
            datum.call([&] { set_portname_and_type_to_nearest(); });
            return settle();
        }
        datum.configuration->set_portname(port->get_canonical_name());
    } else {
        datum.configuration->set_portname(L"");
    }
    datum.settle_default(Flag::IO_Config_Portname);
    datum.settle_default(Flag::IO_Config_Type);
}

void PX_Std_Plotter_IO_Validator::set_protocol_to_default() {
    const PX_IO_Datum datum(m_plotter, L"PX_Std_Plotter_IO_Validator::set_protocol_to_default");
    constexpr Flag::Enum flag = Flag::IO_Config_Protocol;
    if (!datum.has(Ability::IO_Protocol) || !datum.has(Ability::IO_Methods)) {
        datum.configuration->set_protocol(L"");
        return datum.settle(flag);
    }
    if (const auto method = datum.configured_method()) {
        if (!px_has(*method, Method_Ability::Method_Default_Protocol)) {
            datum.configuration->set_protocol(L"");
            return datum.settle_default(flag);
        }
        const wchar_t* const name = method->get_default_protocol();
        if (px_offers_protocol(method, name)) {
            datum.configuration->set_protocol(name);
            if (px_offers_protocol(datum.configured_port(), name))
                return datum.settle_default(flag);
        }
    }
    datum.call([&] { set_protocol_to_nearest(); });
    datum.settle(flag);
}

void PX_Std_Plotter_IO_Validator::set_baud_rate_to_default() {
    const PX_IO_Datum datum(m_plotter, L"PX_Std_Plotter_IO_Validator::set_baud_rate_to_default");
    constexpr Flag::Enum flag = Flag::IO_Config_Baud_Rate;
    if (!datum.has(Ability::IO_Baud_Rate) || !datum.has(Ability::IO_Methods)) {
        datum.configuration->set_baud_rate(0);
        return datum.settle(flag);
    }
    const auto method = datum.configured_method();
    if (method && !px_has(*method, Method_Ability::Method_Default_Baud_Rate)) {
        datum.configuration->set_baud_rate(0);
        return datum.settle_default(flag);
    }
    const auto port = datum.configured_port();
    if (!port && datum.configuration->get_plot_to_file())
        return datum.settle_default(flag);
    // Its rates, to be exact.
    datum.require_made(port, L"workratelist");
    if (method) {
        const long rate = method->get_default_baud_rate();
        if (px_offers_rate(port, rate) &&
            (!px_has(*method, Method_Ability::Method_Baud_Rate_List) || px_offers_rate(method, rate))) {
            datum.configuration->set_baud_rate(rate);
            return datum.settle_default(flag);
        }
    }
    datum.call([&] { set_baud_rate_to_nearest(); });
    datum.settle(flag);
}

void PX_Std_Plotter_IO_Validator::set_handshake_to_default() {
    const PX_IO_Datum datum(m_plotter, L"PX_Std_Plotter_IO_Validator::set_handshake_to_default");
    constexpr Flag::Enum flag = Flag::IO_Config_Handshake;
    if (datum.has(Ability::IO_Handshake)) {
        const auto method = datum.configured_method();
        if (method && px_has(*method, Method_Ability::Method_Default_Handshake)) {
            const long handshake = method->get_default_handshake();
            if (px_offers_handshake(method, handshake)) {
                datum.configuration->set_handshake(handshake);
                if (px_offers_handshake(datum.configured_port(), handshake))
                    return datum.settle_default(flag);
            }
        }
    }
    // There is no nearest one.
    datum.configuration->set_handshake(0);
    datum.settle(flag);
}

void PX_Std_Plotter_IO_Validator::set_input_timeout_to_default() {
    set_to_default(input_timeout, L"PX_Std_Plotter_IO_Validator::set_input_timeout_to_default");
}

void PX_Std_Plotter_IO_Validator::set_output_timeout_to_default() {
    set_to_default(output_timeout, L"PX_Std_Plotter_IO_Validator::set_output_timeout_to_default");
}

void PX_Std_Plotter_IO_Validator::set_pathname_to_default() {
    const PX_IO_Datum datum(m_plotter, L"PX_Std_Plotter_IO_Validator::set_pathname_to_default");
    if (!datum.has(Ability::IO_Pathname))
        return datum.settle(Flag::IO_Config_Pathname);
    datum.configuration->set_pathname(L"");
    datum.settle_default(Flag::IO_Config_Pathname);
}

void PX_Std_Plotter_IO_Validator::set_all_system_ports_valid_to_default() {
    const PX_IO_Datum datum(m_plotter, L"PX_Std_Plotter_IO_Validator::set_all_system_ports_valid_to_default");
    datum.configuration->set_all_system_ports_valid(false);
}
