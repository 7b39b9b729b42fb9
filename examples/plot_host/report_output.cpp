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
Words words_of_handshake(const Output& output) {
    return Words().text(handshake_words(output.get_handshake()));
}

using Domain =
    Report_Domain<&PX_Plotter_Configuration::get_io_configuration,
                  &PX_Plotter_Capabilities::get_io_capabilities, &PX_Plotter_Validator::get_io_cfg_changes>;

using Change = PX_IO_Change;

}  // namespace

std::vector<Datum> output_data(const PX_Plotter_Configuration& /*configuration*/) {
    return {
        Domain::row<words_of_port, Ability::IO_Type, Cfg::IO_Config_Portname, Cfg::IO_Config_Type>(
            "Port", Change::Portname | Change::Type),
        Domain::row<&Output::get_protocol, Ability::IO_Protocol, Cfg::IO_Config_Protocol>("Protocol",
                                                                                          Change::Protocol),
        Domain::row<&Output::get_baud_rate, Ability::IO_Baud_Rate, Cfg::IO_Config_Baud_Rate>(
            "Baud rate", Change::Baud_Rate),
        Domain::row<words_of_handshake, Ability::IO_Handshake, Cfg::IO_Config_Handshake>("Handshake",
                                                                                         Change::Handshake),
        Domain::row<&Output::get_input_timeout, Ability::IO_Input_Timeout, Cfg::IO_Config_Input_Timeout>(
            "Input time-out", Change::Input_Timeout),
        Domain::row<&Output::get_output_timeout, Ability::IO_Output_Timeout, Cfg::IO_Config_Output_Timeout>(
            "Output time-out", Change::Output_Timeout),
        Domain::row<&Output::get_pathname, Ability::IO_Pathname, Cfg::IO_Config_Pathname>(
            "Path of the plot file", Change::Pathname),
    };
}

}  // namespace plot_host
