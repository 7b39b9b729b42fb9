#include <cstdint>
#include <string>

#include "toolkit/marvcon/std_io_cfg/datum.h"
#include "toolkit/marvcon/std_io_cfg/line_settings.h"
#include "toolkit/marvcon/std_io_cfg/validator.h"

// What comes nearest to a choice means another thing for each datum.

using Ability = PX_Plotter_IO_Ability_Flags;
using Method_Ability = PX_IO_Method_Ability_Flags;
using Type = PX_IO_Type;

namespace {

constexpr std::int32_t no_rate_above = 0x7FFFFFFF;

// The two local types replace each other, and no other type.
Type::Enum other_local_type(Type::Enum type) {
    switch (type) {
        case Type::Serial:
            return Type::Parallel;
        case Type::Parallel:
            return Type::Serial;
        default:
            return Type::No_IO_Type;
    }
}

// Whether the plot can go to a port of the type. Its name is taken.
bool take_port_of(const PX_IO_Datum& datum, Type::Enum type) {
    const auto port = datum.port_of(type);
    if (port)
        datum.configuration->set_portname(port->get_canonical_name());
    return port != nullptr;
}

bool take_port_of_other_type(const PX_IO_Datum& datum) {
    const Type::Enum other = other_local_type(datum.configuration->get_type());
    if (other == Type::No_IO_Type || !datum.method_of(other))
        return false;
    datum.configuration->set_type(other);
    return take_port_of(datum, other);
}

// The widest framing, highest parity and longest stop that both sides offer; empty for none.
std::wstring nearest_protocol(const PX_Smart_Pointer<PX_IO_Method>& method,
                              const PX_Smart_Pointer<PX_IO_Port>& port) {
    const auto of_method = px_protocols_of(method);
    const auto of_port = px_protocols_of(port);
    for (auto framing = px_framings.rbegin(); framing != px_framings.rend(); ++framing) {
        std::wstring name = framing->name();
        if (px_has_protocol(of_method, name.c_str()) && px_has_protocol(of_port, name.c_str()))
            return name;
    }
    return {};
}

// Of the method's rates that the port has too, the one for which `is_better(rate, best)` holds against all
// others.
template <class Is_Better>
std::int32_t best_rate(const PX_IO_Method& method, const PX_Smart_Pointer<PX_IO_Port>& port,
                       std::int32_t best, Is_Better is_better) {
    const auto rates = method.get_baud_rate_list();
    if (!rates)
        return best;
    for (const auto& offered : *rates) {
        if (!px_is_there(offered))
            continue;
        const auto rate = static_cast<std::int32_t>(offered->get_baud_rate());
        if (is_better(rate, best) && px_offers_rate(port, rate))
            best = rate;
    }
    return best;
}

}  // namespace

void PX_Std_Plotter_IO_Validator::set_portname_and_type_to_nearest() {
    const PX_IO_Datum datum(m_plotter, L"PX_Std_Plotter_IO_Validator::set_portname_and_type_to_nearest");
    if (datum.has(Ability::IO_System_Ports) && take_port_of(datum, datum.configuration->get_type()))
        return;
    if (take_port_of_other_type(datum))
        return;
    datum.configuration->set_plot_to_file(true);
    datum.configuration->set_type(datum.capabilities->get_default_type());
}

void PX_Std_Plotter_IO_Validator::set_protocol_to_nearest() {
    const PX_IO_Datum datum(m_plotter, L"PX_Std_Plotter_IO_Validator::set_protocol_to_nearest");
    std::wstring name;
    if (const auto method = datum.configured_method())
        name = nearest_protocol(method, datum.configured_port());
    datum.configuration->set_protocol(name.c_str());
    if (name.empty())
        datum.fail(PX_IO_Code::No_Usable_Protocol);
}

void PX_Std_Plotter_IO_Validator::set_baud_rate_to_nearest() {
    const PX_IO_Datum datum(m_plotter, L"PX_Std_Plotter_IO_Validator::set_baud_rate_to_nearest");
    std::int32_t best = no_rate_above;
    // Without methods this stays, and is no error.
    if (datum.has(Ability::IO_Methods)) {
        const auto wanted = static_cast<std::int32_t>(datum.configuration->get_baud_rate());
        auto method = datum.configured_method();
        if (method && !px_has(*method, Method_Ability::Method_Baud_Rate_List))
            method = nullptr;
        const auto port = method ? datum.configured_port() : nullptr;
        if (method)
            best = best_rate(*method, port, best, [wanted](std::int32_t rate, std::int32_t so_far) {
                return rate > wanted && rate < so_far;
            });
        if (best == no_rate_above)
            best =
                !method ? 0 : best_rate(*method, port, 0, [wanted](std::int32_t rate, std::int32_t so_far) {
                    return rate < wanted && rate > so_far;
                });
    }
    datum.configuration->set_baud_rate(best);
    if (best == 0)
        datum.fail(PX_IO_Code::No_Usable_Rate);
}

void PX_Std_Plotter_IO_Validator::set_input_timeout_to_nearest() {
    set_to_nearest(input_timeout, L"PX_Std_Plotter_IO_Validator::set_input_timeout_to_nearest");
}

void PX_Std_Plotter_IO_Validator::set_output_timeout_to_nearest() {
    set_to_nearest(output_timeout, L"PX_Std_Plotter_IO_Validator::set_output_timeout_to_nearest");
}
