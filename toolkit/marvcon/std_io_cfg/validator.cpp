#include "toolkit/marvcon/std_io_cfg/validator.h"

#include <optional>

#include "toolkit/core/error_handler.h"
#include "toolkit/core/error_resources.h"
#include "toolkit/marvcon/std_io_cfg/datum.h"
#include "toolkit/marvcon/std_meta_cfg/interface.h"
#include "toolkit/platform/floating_point_guard.h"
#include "toolkit/platform/platform.h"
#include "toolkit/platform/printers.h"

using Ability = PX_Plotter_IO_Ability_Flags;
using Method_Ability = PX_IO_Method_Ability_Flags;
using Change = PX_IO_Change;
using Flag = PX_IO_Config_Flags;
using Strategy = PX_Validation_Strategy;
using Type = PX_IO_Type;

namespace {

// A method need not say that it can do without RTS and DTR.
constexpr long always_allowed = PX_Handshake::Handshake_Rts_Disable | PX_Handshake::Handshake_Dtr_Disable;

bool is_system_driver(const PX_Meta_Capabilities& meta) {
    const auto type = meta.get_driver_type();
    return type == PX_Driver_Type::Driver_Type_System_1 || type == PX_Driver_Type::Driver_Type_System_2;
}

// Whether the machine has a printer of that name now.
bool can_be_opened(const wchar_t* printer) {
    const HANDLE handle = px_open_printer(printer);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    PX_Get_Platform().ClosePrinter(handle);
    return true;
}

// The rules of the port name and the type.
class Port_Rule {
public:
    Port_Rule(const PX_IO_Datum& datum, const PX_Plotter_Definition& plotter, const wchar_t* function)
        : m_datum(datum),
          m_plotter(plotter),
          m_function(function),
          m_all_ports(datum.configuration->get_all_system_ports_valid()) {}

    bool holds() const {
        const Type::Enum type = m_datum.configuration->get_type();
        switch (type) {
            case Type::Driver_Method:
                return has_method(type);
            case Type::Driver_Plain:
                return !is_system_driver(*meta());
            case Type::File:
                return m_all_ports || has_method(type);
            case Type::Driver_System:
                return is_system_driver(*meta());
            case Type::Serial:
            case Type::Parallel:
                return is_there(type) && (m_all_ports || has_method(type));
            case Type::Network:
                return may_be_network() && is_printer_there();
            default:
                return false;
        }
    }

private:
    bool has_method(Type::Enum type) const { return m_datum.method_of(type) != nullptr; }

    bool is_there(Type::Enum type) const {
        if (!*m_datum.configuration->get_portname())
            return false;
        const auto port = m_datum.configured_port();
        return port && port->get_type() == type;
    }

    bool may_be_network() const {
        if (is_system_driver(*meta()))
            return false;
        if (m_all_ports || has_method(Type::Network))
            return true;
        if (!m_datum.has(Ability::IO_System_Ports))
            return false;
        // No change bit tells of this.
        m_datum.configuration->set_all_system_ports_valid(true);
        return true;
    }

    bool is_printer_there() const {
        const auto model = meta()->get_model();
        px_require_argument(model, m_function, L"model", PX_IO_Domain::file_tag);
        return can_be_opened(model->get_friendly_net_name()) || can_be_opened(model->get_short_net_name());
    }

    PX_Smart_Pointer<PX_Meta_Capabilities> meta() const {
        auto meta = m_plotter.get_meta_capabilities();
        px_require_argument(meta, m_function, L"meta_capabilities", PX_IO_Domain::file_tag);
        return meta;
    }

    const PX_IO_Datum& m_datum;
    const PX_Plotter_Definition& m_plotter;
    const wchar_t* m_function;
    bool m_all_ports;
};

// What a setting of a serial line is held against. Without the ability IO_Methods there is no method to ask.
struct Line {
    PX_Smart_Pointer<PX_IO_Method> method;
    PX_Smart_Pointer<PX_IO_Port> port;
};

// Nothing when the setting does not matter: no serial line, or a method that does without.
std::optional<Line> line_of(const PX_IO_Datum& datum, Method_Ability::Enum has_default) {
    if (datum.configuration->get_plot_to_file() || datum.configuration->get_type() != Type::Serial)
        return std::nullopt;
    Line line{datum.configured_method(L"extramethlist"), nullptr};
    if (datum.has(Ability::IO_Methods)) {
        if (!line.method)
            datum.fail(PX_Code::Null_Argument, L"extramethod");
        if (!px_has(*line.method, has_default))
            return std::nullopt;
    }
    line.port = datum.configured_port();
    return line;
}

}  // namespace

PX_Plotter_IO_Validator::~PX_Plotter_IO_Validator() = default;

PX_Std_Plotter_IO_Validator::PX_Std_Plotter_IO_Validator(PX_Plotter_Definition* plotter)
    : m_plotter(plotter) {
}

void PX_Std_Plotter_IO_Validator::validate_portname_and_type(Strategy::Enum strategy) {
    constexpr const wchar_t* function = L"PX_Std_Plotter_IO_Validator::validate_portname_and_type";
    // Printers are opened.
    const PX_Floating_Point_Guard guard;
    const PX_IO_Datum datum(m_plotter, function);
    datum.required_validator();
    const bool to_file = datum.configuration->get_plot_to_file();
    if (!to_file && !Port_Rule(datum, *m_plotter, function).holds()) {
        if (const auto handler = m_plotter->get_error_handler())
            datum.call([&] {
                handler->error(GetMVNErrResHandle(), PX_IO_Code::Port_Not_Usable, function, nullptr,
                               PX_IO_Domain::file_tag);
            });
        const Type::Enum type = datum.configuration->get_type();
        const bool to_nearest =
            strategy == Strategy::Use_Nearest && (type == Type::Serial || type == Type::Parallel);
        datum.repair(Change::Portname | Change::Type, [&] {
            to_nearest ? set_portname_and_type_to_nearest() : set_portname_and_type_to_default();
        });
    }
    datum.settle(Flag::IO_Config_Portname);
    datum.settle(Flag::IO_Config_Type);
}

void PX_Std_Plotter_IO_Validator::validate_protocol(Strategy::Enum strategy) {
    const PX_IO_Datum datum(m_plotter, L"PX_Std_Plotter_IO_Validator::validate_protocol");
    datum.required_validator();
    if (const auto line = line_of(datum, Method_Ability::Method_Default_Protocol)) {
        const wchar_t* const name = datum.configuration->get_protocol();
        const bool port_has_it = *name && px_offers_protocol(line->port, name);
        const bool method_has_it =
            !line->method || (px_has(*line->method, Method_Ability::Method_Protocol_List) &&
                              px_offers_protocol(line->method, name));
        if (datum.has(Ability::IO_Protocol) && !(port_has_it && method_has_it))
            datum.repair(Change::Protocol,
                         [&] { strategy ? set_protocol_to_nearest() : set_protocol_to_default(); });
    }
    datum.settle(Flag::IO_Config_Protocol);
}

void PX_Std_Plotter_IO_Validator::validate_baud_rate(Strategy::Enum strategy) {
    const PX_IO_Datum datum(m_plotter, L"PX_Std_Plotter_IO_Validator::validate_baud_rate");
    datum.required_validator();
    if (const auto line = line_of(datum, Method_Ability::Method_Default_Baud_Rate)) {
        const long rate = datum.configuration->get_baud_rate();
        const bool method_has_it =
            !line->method || (px_has(*line->method, Method_Ability::Method_Baud_Rate_List) &&
                              px_offers_rate(line->method, rate));
        if (!(px_offers_rate(line->port, rate) && method_has_it))
            datum.repair(Change::Baud_Rate,
                         [&] { strategy ? set_baud_rate_to_nearest() : set_baud_rate_to_default(); });
    }
    datum.settle(Flag::IO_Config_Baud_Rate);
}

void PX_Std_Plotter_IO_Validator::validate_handshake(Strategy::Enum /*strategy*/) {
    const PX_IO_Datum datum(m_plotter, L"PX_Std_Plotter_IO_Validator::validate_handshake");
    datum.required_validator();
    if (const auto line = line_of(datum, Method_Ability::Method_Default_Handshake)) {
        const long handshake = datum.configuration->get_handshake();
        const bool method_has_it =
            !line->method || px_offers_handshake(line->method, handshake, always_allowed);
        if (!(px_offers_handshake(line->port, handshake) && method_has_it))
            datum.repair(Change::Handshake, [&] { set_handshake_to_default(); });
    }
    datum.settle(Flag::IO_Config_Handshake);
}

void PX_Std_Plotter_IO_Validator::validate_input_timeout(Strategy::Enum strategy) {
    validate(input_timeout, strategy, L"PX_Std_Plotter_IO_Validator::validate_input_timeout");
}

void PX_Std_Plotter_IO_Validator::validate_output_timeout(Strategy::Enum strategy) {
    validate(output_timeout, strategy, L"PX_Std_Plotter_IO_Validator::validate_output_timeout");
}

void PX_Std_Plotter_IO_Validator::validate_pathname(Strategy::Enum /*strategy*/) {
    const PX_IO_Datum datum(m_plotter, L"PX_Std_Plotter_IO_Validator::validate_pathname");
    datum.required_validator();
    // Whatever the path is.
    if (datum.configuration->get_plot_to_file())
        datum.repair(Change::Pathname, [&] { set_pathname_to_default(); });
    datum.settle(Flag::IO_Config_Pathname);
}
