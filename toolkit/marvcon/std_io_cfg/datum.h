#pragma once

#include <memory>

#include "toolkit/marvcon/std_io_cfg/domain.h"
#include "toolkit/marvcon/std_plval/datum.h"
#include "toolkit/marvcon/std_sys_io_caps/capabilities.h"

// What the validator's operations on the output have in common: the two sides to ask, the device's method and
// the machine's port.
class PX_IO_Datum : public PX_Datum<PX_IO_Domain> {
public:
    using Ability = PX_Plotter_IO_Ability_Flags;

    using PX_Datum::PX_Datum;

    bool has(Ability::Enum ability) const {
        return capabilities->get_one_ability(ability) != PX_Ability_Value::Ability_None;
    }

    // The first method of the type; null when there is none, and without the ability IO_Methods. A missing
    // list is MVNK_Memory_Exception 1101 with the detail.
    PX_Smart_Pointer<PX_IO_Method> method_of(PX_IO_Type::Enum type,
                                             const wchar_t* detail = L"workmethlist") const {
        if (!has(Ability::IO_Methods))
            return nullptr;
        const auto methods = capabilities->get_method_list();
        require_made(methods, detail);
        return px_method_of(methods, type);
    }
    PX_Smart_Pointer<PX_IO_Method> configured_method(const wchar_t* detail = L"workmethlist") const {
        return method_of(configuration->get_type(), detail);
    }

    // The machine's ports, as the process found them first.
    PX_Smart_Pointer<PX_Named_Object_List<PX_IO_Port>> system_ports() const {
        const std::unique_ptr<PX_System_IO_Capabilities> system(
            call([] { return new PX_Std_System_IO_Capabilities; }));
        px_require_argument(system, m_function, L"io caps", PX_IO_Domain::file_tag);
        auto ports = system->get_port_list();
        require_made(ports, L"workportlist");
        return ports;
    }
    // Null for a name that no port has.
    PX_Smart_Pointer<PX_IO_Port> configured_port() const {
        return system_ports()->find(configuration->get_portname());
    }
    // The first one, null when there is none.
    PX_Smart_Pointer<PX_IO_Port> port_of(PX_IO_Type::Enum type) const {
        const auto ports = system_ports();
        for (const auto& port : *ports) {
            if (port && port->get_type() == type)
                return port;
        }
        return nullptr;
    }
};

inline bool px_has(const PX_IO_Method& method, PX_IO_Method_Ability_Flags::Enum ability) {
    return method.get_one_ability(ability) != PX_Ability_Value::Ability_None;
}

// The protocols of a side, a method or a port, for who asks for many names; null where the side or its list
// is missing.
using PX_Protocols = PX_Smart_Pointer<PX_Named_Object_List<PX_Protocol>>;
template <class Side>
PX_Protocols px_protocols_of(const PX_Smart_Pointer<Side>& side) {
    return side ? side->get_protocol_list() : nullptr;
}
inline bool px_has_protocol(const PX_Protocols& protocols, const wchar_t* name) {
    return name && protocols && px_is_there(protocols->find(name));
}

// Whether a side offers the protocol, the rate, all of the handshakes. A side that is missing offers nothing.
template <class Side>
bool px_offers_protocol(const PX_Smart_Pointer<Side>& side, const wchar_t* name) {
    return px_has_protocol(px_protocols_of(side), name);
}
template <class Side>
bool px_offers_rate(const PX_Smart_Pointer<Side>& side, long rate) {
    const auto rates = side ? side->get_baud_rate_list() : nullptr;
    if (rates) {
        for (const auto& offered : *rates) {
            if (px_is_there(offered) && offered->get_baud_rate() == rate)
                return true;
        }
    }
    return false;
}
template <class Side>
bool px_offers_handshake(const PX_Smart_Pointer<Side>& side, long handshake, long always = 0) {
    return side && (handshake & ~(side->get_handshakes() | always)) == 0;
}
