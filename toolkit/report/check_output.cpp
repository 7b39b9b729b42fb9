#include <algorithm>
#include <string_view>

#include "toolkit/report/domain_checks.h"

// The ways out. What only the machine decides is not told: ports and printers are not asked for.

using Ability = PX_Plotter_IO_Ability_Flags;
using Change = PX_IO_Change;
using Fault = PX_Device_Fault;
using Method_Ability = PX_IO_Method_Ability_Flags;
using Type = PX_IO_Type;

namespace {

constexpr PX_Gate<Ability> gates[] = {{Ability::IO_Type, L"port name and type"},
                                      {Ability::IO_Protocol, L"protocol"},
                                      {Ability::IO_Baud_Rate, L"baud rate"},
                                      {Ability::IO_Handshake, L"handshake"},
                                      {Ability::IO_Input_Timeout, L"input time-out"},
                                      {Ability::IO_Output_Timeout, L"output time-out"},
                                      {Ability::IO_Pathname, L"path name"}};

const wchar_t* name_of(Type::Enum type) {
    switch (type) {
        case Type::No_IO_Type:
            return L"none";
        case Type::Driver_Method:
            return L"of the driver's methods";
        case Type::Driver_Plain:
            return L"of a plain driver";
        case Type::File:
            return L"file";
        case Type::Driver_System:
            return L"of a system driver";
        case Type::Serial:
            return L"serial";
        case Type::Parallel:
            return L"parallel";
        case Type::Network:
            return L"network";
    }
    return L"unknown";
}

// Whether a port can have a protocol of the name.
bool is_usual_name(const wchar_t* name) {
    return std::ranges::any_of(px_framings,
                               [wanted = std::wstring_view(px_text(name))](const PX_Framing& framing) {
                                   return framing.name() == wanted;
                               });
}

class Output_Check {
public:
    Output_Check(const PX_Plotter_IO_Capabilities& device, const PX_Meta_Capabilities* identity,
                 const PX_Findings& found)
        : m_device(device),
          m_identity(identity),
          m_found(found),
          m_has_methods(has(Ability::IO_Methods)),
          m_has_ports(has(Ability::IO_System_Ports)),
          // Without the ability every run writes no type.
          m_preset(has(Ability::IO_Type) ? device.get_default_type() : Type::No_IO_Type) {}

    void run() const {
        px_check_gates(m_device, gates, m_found);
        check_list();
        if (is_validated(Ability::IO_Type))
            check_type();
        // Beyond the list, nothing is asked of the methods where it is missing.
        if (m_has_methods && !m_device.get_method_list())
            return;
        check_serial_lines();
        check_defaults_of_line();
        check_timeouts();
    }

private:
    // Any ability but none, as a run asks here.
    bool has(Ability::Enum flag) const { return !PX_Ability_Of(m_device.get_one_ability(flag)).is_none(); }
    bool is_validated(Ability::Enum gate) const {
        return px_ability_of(m_device, gates, gate).is_validated();
    }
    static bool has(const PX_IO_Method& method, Method_Ability::Enum flag) {
        return !PX_Ability_Of(method.get_one_ability(flag)).is_none();
    }

    // As a run finds it.
    PX_Smart_Pointer<PX_IO_Method> method_of(Type::Enum type) const {
        return m_has_methods ? px_method_of(m_device.get_method_list(), type) : nullptr;
    }
    static std::wstring way_to(Type::Enum type) { return px_named(L"method", name_of(type)); }

    void check_list() const {
        if (!m_has_methods)
            return;
        const auto methods = m_device.get_method_list();
        const auto asks = {Ability::IO_Type,      Ability::IO_Protocol,      Ability::IO_Baud_Rate,
                           Ability::IO_Handshake, Ability::IO_Input_Timeout, Ability::IO_Output_Timeout};
        bool is_asked = false;
        for (const Ability::Enum flag : asks)
            is_asked = is_asked || has(flag);
        if (!methods) {
            if (is_asked)
                m_found.throws(L"methods", Fault::List_Missing, PX_Code::No_Memory, L"workmethlist");
            return;
        }
        // When the channel is set up.
        if (methods->is_empty())
            m_found.throws(L"methods", Fault::Nothing_To_Take, PX_IO_Code::No_Methods);
        int place = 0;
        for (const auto& method : *methods) {
            ++place;
            if (px_is_there(method) && method_of(method->get_type()) != method)
                m_found.passes_over(px_in(way_to(method->get_type()), L"place " + std::to_wstring(place)),
                                    Fault::Equal_Names);
        }
    }

    void check_type() const {
        constexpr long bits = Change::Portname | Change::Type;
        if (!m_identity) {
            m_found.throws(L"identity", Fault::Object_Missing, PX_Code::Null_Argument, L"meta_capabilities");
            return;
        }
        if (!m_identity->get_model())
            m_found.throws(L"model", Fault::Object_Missing, PX_Code::Null_Argument, L"model");
        const std::wstring object = px_named(L"default type", name_of(m_preset));
        const bool has_method = method_of(m_preset) != nullptr;
        if (is_valid_somewhere(has_method))
            return;
        const bool lacks_method = !has_method && m_preset != Type::Driver_Plain &&
                                  m_preset != Type::Driver_System && m_preset >= Type::Driver_Method &&
                                  m_preset <= Type::Network;
        const auto fault = lacks_method ? Fault::Method_Missing : Fault::Type_Never_Valid;
        // With the machine's ports and without one of the type, the plot goes to a file, which is valid.
        if (m_has_ports && !is_of_a_port())
            m_found.passes_over(object, fault);
        else
            m_found.repeats(object, fault, bits);
    }

    // Whether machines have ports of the default type.
    bool is_of_a_port() const {
        return m_preset == Type::Serial || m_preset == Type::Parallel || m_preset == Type::Network;
    }

    // Whether the default type, once it is written, can be valid on some machine.
    bool is_valid_somewhere(bool has_method) const {
        const auto driver = m_identity->get_driver_type();
        const bool is_system =
            driver == PX_Driver_Type::Driver_Type_System_1 || driver == PX_Driver_Type::Driver_Type_System_2;
        switch (m_preset) {
            case Type::Driver_Method:
            case Type::File:
                return has_method;
            case Type::Driver_Plain:
                return !is_system;
            case Type::Driver_System:
                return is_system;
            case Type::Serial:
            case Type::Parallel:
                return m_has_ports && has_method;
            case Type::Network:
                return !is_system && (has_method || m_has_ports) && has_net_name();
            default:
                return false;
        }
    }
    bool has_net_name() const {
        const auto model = m_identity->get_model();
        return model && (*px_text(model->get_friendly_net_name()) || *px_text(model->get_short_net_name()));
    }

    // Whether a run leaves the type: one that is validated is the choice's; else it is the default, or the
    // other local type, on a machine that has a port of that alone.
    bool is_left(Type::Enum type) const {
        const auto is_local = [](Type::Enum one) { return one == Type::Serial || one == Type::Parallel; };
        return is_validated(Ability::IO_Type) || type == m_preset ||
               (m_has_ports && is_local(type) && is_local(m_preset) && method_of(type));
    }

    // What a run asks of serial lines alone.
    void check_serial_lines() const {
        if (!has(Ability::IO_Type) || !is_left(Type::Serial))
            return;
        const auto method = method_of(Type::Serial);
        const std::wstring way = way_to(Type::Serial);
        const bool has_protocol = is_validated(Ability::IO_Protocol);
        const bool has_rate = is_validated(Ability::IO_Baud_Rate);
        const bool has_handshake = is_validated(Ability::IO_Handshake);
        if (!m_has_methods) {
            // Put to its default, it is empty; no other is near.
            if (has_protocol) {
                m_found.repeats(L"protocol", Fault::Method_Missing, Change::Protocol);
                m_found.throws(L"nearest protocol", Fault::Method_Missing, PX_IO_Code::No_Usable_Protocol);
            }
            if (has_rate)
                m_found.repeats(L"baud rate", Fault::Method_Missing, Change::Baud_Rate);
        } else if (!method) {
            if (has_protocol || has_rate || has_handshake)
                m_found.throws(way, Fault::Method_Missing, PX_Code::Null_Argument, L"extramethod");
        } else {
            if (has(Ability::IO_Protocol) && has(*method, Method_Ability::Method_Default_Protocol))
                check_protocols(*method, way);
            if (has(Ability::IO_Baud_Rate) && has(*method, Method_Ability::Method_Default_Baud_Rate))
                check_rates(*method, way);
            const long handshake = method->get_default_handshake();
            if (has(Ability::IO_Handshake) && has(*method, Method_Ability::Method_Default_Handshake) &&
                (handshake & ~method->get_handshakes()) != 0)
                m_found.passes_over(px_in(way, L"default handshake"), Fault::Default_Not_Offered);
        }
        // The default is written without a port, and no missing port has a handshake.
        if (has_handshake && !m_has_ports && m_preset == Type::Serial &&
            (!m_has_methods || (method && has(*method, Method_Ability::Method_Default_Handshake))))
            m_found.repeats(L"handshake", Fault::Type_Never_Valid, Change::Handshake);
    }

    // Defaults are written whether or not the datum is validated, and ask the lists all the same.
    void check_protocols(const PX_IO_Method& method, const std::wstring& way) const {
        const auto protocols = method.get_protocol_list();
        px_check_names(protocols, way, L"protocol", px_passing_over(m_found));
        if (!has(method, Method_Ability::Method_Protocol_List) && is_validated(Ability::IO_Protocol))
            m_found.repeats(px_in(way, L"protocols"), Fault::List_Not_Counted, Change::Protocol);
        bool has_one = false;
        px_for_each_there(protocols, [&](const PX_Protocol& protocol) {
            const bool is_usual = is_usual_name(protocol.get_canonical_name());
            has_one = has_one || is_usual;
            // No port has a protocol of another name.
            if (!is_usual)
                m_found.passes_over(px_in(way, px_named(L"protocol", protocol)), Fault::Names_Nothing);
        });
        const wchar_t* const preset = method.get_default_protocol();
        if (!has_one)
            m_found.throws(px_in(way, L"protocols"), Fault::Nothing_To_Take, PX_IO_Code::No_Usable_Protocol);
        else if (!px_is_there(method.get_protocol(preset)))
            m_found.passes_over(px_in(way, px_named(L"default protocol", preset)),
                                Fault::Default_Not_Offered);
    }

    void check_rates(const PX_IO_Method& method, const std::wstring& way) const {
        const std::wstring rates = px_in(way, L"baud rates");
        const std::wstring object = px_in(way, L"default baud rate");
        const long preset = method.get_default_baud_rate();
        if (!has(method, Method_Ability::Method_Baud_Rate_List)) {
            // The search asks for the list too, and has no method without.
            if (is_validated(Ability::IO_Baud_Rate)) {
                m_found.repeats(rates, Fault::List_Not_Counted, Change::Baud_Rate);
                m_found.throws(rates, Fault::List_Not_Counted, PX_IO_Code::No_Usable_Rate);
            }
            return;
        }
        std::unordered_set<long> usable;
        bool has_default = false;
        if (const auto offered = method.get_baud_rate_list()) {
            for (const auto& rate : *offered) {
                if (!px_is_there(rate))
                    continue;
                if (rate->get_baud_rate() > 0)
                    usable.insert(rate->get_baud_rate());
                has_default = has_default || rate->get_baud_rate() == preset;
            }
        }
        if (usable.empty())
            m_found.throws(rates, Fault::Nothing_To_Take, PX_IO_Code::No_Usable_Rate);
        // Put to the default again, the one rate has no other beside it; of several, another comes each time.
        else if (!has_default && usable.size() == 1)
            m_found.throws(object, Fault::Default_Not_Offered, PX_IO_Code::No_Usable_Rate);
        else if (!has_default)
            m_found.passes_over(object, Fault::Default_Not_Offered);
    }

    // What putting all to their defaults makes of a line, whatever the type is.
    void check_defaults_of_line() const {
        if (!m_has_methods)
            return;
        const auto method = method_of(m_preset);
        const std::wstring way = way_to(m_preset);
        // The names of ports are known only with those of the machine; other ports than serial ones have
        // neither protocols nor rates.
        const bool has_line = m_has_ports && m_preset == Type::Serial && method;
        if (has(Ability::IO_Protocol)) {
            if (!method)
                m_found.throws(way, Fault::Method_Missing, PX_IO_Code::No_Usable_Protocol);
            else if (has(*method, Method_Ability::Method_Default_Protocol) && !has_line)
                m_found.throws(px_in(way, L"default protocol"), Fault::Type_Never_Valid,
                               PX_IO_Code::No_Usable_Protocol);
        }
        if (has(Ability::IO_Baud_Rate) && !has_line &&
            (!method || has(*method, Method_Ability::Method_Default_Baud_Rate))) {
            const std::wstring object = px_in(way, L"default baud rate");
            if (!m_has_ports || !has(Ability::IO_Type))
                m_found.throws(object, Fault::Type_Never_Valid, PX_Code::No_Memory, L"workratelist");
            else if (is_of_a_port())
                m_found.throws(object, Fault::Type_Never_Valid, PX_IO_Code::No_Usable_Rate);
        }
        if (!m_device.get_method_list())
            return;
        for (const auto& other : *m_device.get_method_list()) {
            if (px_is_there(other) && other->get_type() != m_preset && other->get_type() != Type::Serial &&
                method_of(other->get_type()) == other && is_left(other->get_type()))
                check_defaults_of_other(*other);
        }
    }

    // A default that is written without a look at the datum, while the type is the choice's.
    void check_defaults_of_other(const PX_IO_Method& method) const {
        const Type::Enum type = method.get_type();
        const auto is_written = [&](Ability::Enum gate) {
            return has(gate) && !px_ability_of(m_device, gates, gate).is_required();
        };
        if (is_written(Ability::IO_Protocol) && has(method, Method_Ability::Method_Default_Protocol))
            m_found.throws(px_in(way_to(type), L"default protocol"), Fault::Type_Never_Valid,
                           PX_IO_Code::No_Usable_Protocol);
        if (!is_written(Ability::IO_Baud_Rate) || !has(method, Method_Ability::Method_Default_Baud_Rate))
            return;
        const std::wstring object = px_in(way_to(type), L"default baud rate");
        if (m_has_ports && (type == Type::Parallel || type == Type::Network))
            m_found.throws(object, Fault::Type_Never_Valid, PX_IO_Code::No_Usable_Rate);
        else
            m_found.throws(object, Fault::Type_Never_Valid, PX_Code::No_Memory, L"workratelist");
    }

    struct Timeout {
        Ability::Enum gate;
        const wchar_t* name;
        Change::Enum bit;
        long (PX_IO_Method::*least)() const;
        long (PX_IO_Method::*greatest)() const;
        long (PX_IO_Method::*preset)() const;
    };

    void check_timeouts() const {
        using Method = PX_IO_Method;
        constexpr Timeout timeouts[] = {
            {Ability::IO_Input_Timeout, L"input time-out", Change::Input_Timeout,
             &Method::get_min_input_timeout, &Method::get_max_input_timeout,
             &Method::get_default_input_timeout},
            {Ability::IO_Output_Timeout, L"output time-out", Change::Output_Timeout,
             &Method::get_min_output_timeout, &Method::get_max_output_timeout,
             &Method::get_default_output_timeout}};
        for (const Timeout& timeout : timeouts) {
            const bool validated = is_validated(timeout.gate);
            // Put to 0 with every run.
            if (!m_has_methods && validated)
                m_found.repeats(timeout.name, Fault::Method_Missing, timeout.bit);
            if (!m_has_methods || !has(timeout.gate))
                continue;
            for (const auto& method : *m_device.get_method_list()) {
                if (!px_is_there(method) || method_of(method->get_type()) != method ||
                    !is_left(method->get_type()))
                    continue;
                const long least = ((*method).*timeout.least)();
                const long greatest = ((*method).*timeout.greatest)();
                const long preset = ((*method).*timeout.preset)();
                const std::wstring way = way_to(method->get_type());
                if (least > greatest && validated)
                    m_found.repeats(px_in(way, std::wstring(L"limits of the ") + timeout.name),
                                    Fault::Limits_Reversed, timeout.bit);
                else if (preset < least || preset > greatest)
                    m_found.passes_over(px_in(way, std::wstring(L"default ") + timeout.name),
                                        Fault::Default_Out_Of_Range);
            }
        }
    }

    const PX_Plotter_IO_Capabilities& m_device;
    const PX_Meta_Capabilities* m_identity;
    const PX_Findings& m_found;
    bool m_has_methods;
    bool m_has_ports;
    Type::Enum m_preset;
};

}  // namespace

void px_check_output(const PX_Plotter_IO_Capabilities& device, const PX_Meta_Capabilities* identity,
                     const PX_Findings& found) {
    Output_Check(device, identity, found).run();
}
