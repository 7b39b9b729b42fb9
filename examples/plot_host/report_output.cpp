#include "examples/plot_host/output_words.h"
#include "examples/plot_host/report_data.h"

namespace plot_host {
namespace {

using Output = PX_Plotter_IO_Configuration;
using Ability = PX_Plotter_IO_Ability_Flags;
using Cfg = PX_IO_Config_Flags;

// Where the plot goes, in one row: name and type are one decision.
Words words_of_port(const Output& output) {
    Words words;
    if (output.get_plot_to_file())
        words.text("a file; ");
    words.text(word_of(output.get_type())).text(" ").name(output.get_portname());
    if (output.get_all_system_ports_valid())
        words.text(", all ports of the machine are valid");
    return words;
}
template <auto get>
Words words_of_name(const Output& output) {
    return Words().name((output.*get)());
}
template <auto get>
Words words_of_number(const Output& output) {
    return Words().number("", static_cast<double>((output.*get)()));
}
Words words_of_handshake(const Output& output) {
    return Words().text(handshake_words(output.get_handshake()));
}

template <Words (*words)(const Output&), Ability::Enum ability, long bits, Cfg::Enum... flags>
constexpr Datum output_row(const char* name) {
    constexpr auto value = [](const PX_Plotter_Configuration& configuration) {
        const Words told = words(*configuration.get_io_configuration());
        return Value{told.exact, told.shown};
    };
    constexpr auto state = [](const PX_Plotter_Capabilities& capabilities,
                              const PX_Plotter_Configuration& configuration) {
        const auto output = configuration.get_io_configuration();
        return State{capabilities.get_io_capabilities()->get_one_ability(ability),
                     (output->get_one_validated(flags) && ...), (output->get_one_default(flags) && ...)};
    };
    return {name, value, state, &PX_Plotter_Validator::get_io_cfg_changes, bits};
}

using Change = PX_IO_Change;
constexpr Datum data[] = {
    output_row<words_of_port, Ability::IO_Type, Change::Portname | Change::Type, Cfg::IO_Config_Portname,
               Cfg::IO_Config_Type>("Port"),
    output_row<words_of_name<&Output::get_protocol>, Ability::IO_Protocol, Change::Protocol,
               Cfg::IO_Config_Protocol>("Protocol"),
    output_row<words_of_number<&Output::get_baud_rate>, Ability::IO_Baud_Rate, Change::Baud_Rate,
               Cfg::IO_Config_Baud_Rate>("Baud rate"),
    output_row<words_of_handshake, Ability::IO_Handshake, Change::Handshake, Cfg::IO_Config_Handshake>(
        "Handshake"),
    output_row<words_of_number<&Output::get_input_timeout>, Ability::IO_Input_Timeout, Change::Input_Timeout,
               Cfg::IO_Config_Input_Timeout>("Input time-out"),
    output_row<words_of_number<&Output::get_output_timeout>, Ability::IO_Output_Timeout,
               Change::Output_Timeout, Cfg::IO_Config_Output_Timeout>("Output time-out"),
    output_row<words_of_name<&Output::get_pathname>, Ability::IO_Pathname, Change::Pathname,
               Cfg::IO_Config_Pathname>("Path of the plot file"),
};

}  // namespace

std::span<const Datum> output_data() {
    return data;
}

}  // namespace plot_host
