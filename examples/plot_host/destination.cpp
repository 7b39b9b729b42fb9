#include "examples/plot_host/destination.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

#include "examples/common/made.h"
#include "examples/common/text.h"
#include "toolkit/report.h"

namespace plot_host {
namespace {

constexpr PX_Word<Destination::Kind> kinds[] = {{"file", Destination::Kind::File},
                                                {"port", Destination::Kind::Port},
                                                {"queue", Destination::Kind::Queue}};

// "com1:" is COM1.
std::string port_name_of(std::string name) {
    if (name.starts_with(R"(\\.\)"))
        name.erase(0, 4);
    if (name.ends_with(':'))
        name.pop_back();
    std::ranges::transform(name, name.begin(),
                           [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return name;
}

PX_IO_Type::Enum type_of(const Destination& destination) {
    switch (destination.kind) {
        case Destination::Kind::File:
            return PX_IO_Type::File;
        case Destination::Kind::Queue:
            return PX_IO_Type::Network;
        default:
            return destination.name.starts_with("COM") ? PX_IO_Type::Serial : PX_IO_Type::Parallel;
    }
}

void choose_method_defaults(PX_Plotter_IO_Configuration& output, const PX_IO_Method& method) {
    using Ability = PX_IO_Method_Ability_Flags;
    const auto has = [&](Ability::Enum ability) {
        return method.get_one_ability(ability) != PX_Ability_Value::Ability_None;
    };
    output.set_protocol(has(Ability::Method_Default_Protocol) ? method.get_default_protocol() : L"");
    output.set_baud_rate(has(Ability::Method_Default_Baud_Rate) ? method.get_default_baud_rate() : 0);
    output.set_handshake(has(Ability::Method_Default_Handshake) ? method.get_default_handshake() : 0);
    output.set_input_timeout(method.get_default_input_timeout());
    output.set_output_timeout(method.get_default_output_timeout());
}

PX_Smart_Pointer<PX_Plotter_IO_Configuration> output_of(const PX_Plotter_Definition& device) {
    return device.get_plotter_configuration()->get_io_configuration();
}

}  // namespace

Destination destination_of(const std::string& words) {
    const std::size_t colon = words.find(':');
    const auto kind = px_value_in(kinds, words.substr(0, colon));
    if (colon == std::string::npos || !kind || colon + 1 == words.size())
        throw std::runtime_error("--to takes file:PATH, port:NAME or queue:NAME, not '" + words + "'");
    const std::string name = words.substr(colon + 1);
    return {*kind, *kind == Destination::Kind::Port ? port_name_of(name) : name};
}

std::string shown(const Destination& destination) {
    return std::string(px_word_in(kinds, destination.kind)) + " " + text::on_one_line(destination.name);
}

void choose_destination(PX_Plotter_Definition& device, const Destination& destination) {
    const auto output = output_of(device);
    const PX_IO_Type::Enum type = type_of(destination);
    const std::wstring name = text::from_utf8(destination.name);
    const bool to_file = destination.kind == Destination::Kind::File;
    const bool is_chosen_port =
        !output->get_plot_to_file() && output->get_type() == type && output->get_portname() == name;
    output->set_plot_to_file(to_file);
    output->set_type(type);
    // The channel writes the path of a file there by itself.
    output->set_portname(to_file ? L"" : name.c_str());
    const auto method = device.get_plotter_capabilities()->get_io_capabilities()->get_method(type);
    if (method && !is_chosen_port)
        choose_method_defaults(*output, *method);
    // The validator and the channel open the queue by this name.
    if (destination.kind == Destination::Kind::Queue)
        device.get_meta_capabilities()->get_model()->set_friendly_net_name(name.c_str());
}

Destination settle_destination(PX_Plotter_Definition& device, const Destination& wanted,
                               const std::filesystem::path& drawing) {
    const auto output = output_of(device);
    if (output->get_type() == PX_IO_Type::File)
        output->set_plot_to_file(true);
    if (output->get_plot_to_file()) {
        if (wanted.kind == Destination::Kind::File)
            return wanted;
        const auto capabilities = device.get_plotter_capabilities()->get_io_capabilities();
        return {Destination::Kind::File,
                drawing.stem().string() + "." +
                    text::to_utf8(capabilities->get_default_plot_to_file_extension())};
    }
    const bool is_queue = output->get_type() == PX_IO_Type::Network;
    return {is_queue ? Destination::Kind::Queue : Destination::Kind::Port,
            text::to_utf8(output->get_portname())};
}

void fill_shoebox(PX_Plotter_Definition& device, const Destination& destination,
                  const std::filesystem::path& drawing, bool asks) {
    const auto shoebox = made(device.get_class_factory()->MK_Create_Shoebox(), L"shoebox");
    const auto plot = shoebox->get_kest_shoebox();
    if (destination.kind == Destination::Kind::File)
        plot->set_plot_to_file_pathname(text::from_utf8(destination.name).c_str());
    plot->set_drawing_name(text::from_utf8(drawing.string()).c_str());
    if (!asks)
        plot->set_spool_announce(PX_Spool_Announce::Log_Once);
    device.set_shoebox(shoebox.get());
}

}  // namespace plot_host
