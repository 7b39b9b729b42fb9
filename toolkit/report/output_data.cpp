#include "toolkit/report/data.h"
#include "toolkit/report/words.h"

namespace {

using Output = PX_Plotter_IO_Configuration;
using Words = PX_Value_Words;
using Ability = PX_Plotter_IO_Ability_Flags;
using Cfg = PX_IO_Config_Flags;
using Change = PX_IO_Change;

// Where the plot goes, in one row: name and type are one decision.
Words words_of_port(const Output& output) {
    Words words;
    if (output.get_plot_to_file())
        words.text("a file; ");
    words.text(px_word_of(output.get_type())).text(" ").name(output.get_portname());
    if (output.get_all_system_ports_valid())
        words.text(", all ports of the machine are valid");
    // Two numbers that are no type have one word.
    return words.unseen(Words().number("", output.get_type()));
}
Words words_of_handshake(const Output& output) {
    return Words().text(px_handshake_words(output.get_handshake()));
}

bool has_methods(const PX_Plotter_Capabilities& capabilities) {
    return px_reported(capabilities, &PX_Plotter_Capabilities::get_io_capabilities)
               ->get_one_ability(Ability::IO_Methods) != PX_Ability_Value::Ability_None;
}

using Domain = PX_Report_Domain<PX_Domain_Mask::IO, &PX_Plotter_Configuration::get_io_configuration,
                                &PX_Plotter_Capabilities::get_io_capabilities,
                                &PX_Plotter_Validator::get_io_cfg_changes>;

using Goes_To_Nearest = bool (*)(PX_Validation_Strategy::Enum, const PX_Plotter_Capabilities&);

// A default that the machine cannot do goes on to the nearest.
bool always(PX_Validation_Strategy::Enum, const PX_Plotter_Capabilities&) {
    return true;
}
bool with_methods(PX_Validation_Strategy::Enum, const PX_Plotter_Capabilities& capabilities) {
    return has_methods(capabilities);
}
// Without methods the default is nothing that a search would find.
bool as_asked_or_with_methods(PX_Validation_Strategy::Enum strategy,
                              const PX_Plotter_Capabilities& capabilities) {
    return strategy != PX_Validation_Strategy::Use_Default || has_methods(capabilities);
}

template <auto source, auto ability, auto... flags>
PX_Report_Datum nearest_row(const char* name, long bits, Goes_To_Nearest goes_to_nearest) {
    auto row = Domain::row<source, ability, flags...>(name, bits, PX_Repair::To_Nearest);
    row.goes_to_nearest = goes_to_nearest;
    return row;
}

}  // namespace

std::vector<PX_Report_Datum> px_output_data() {
    auto port = nearest_row<words_of_port, Ability::IO_Type, Cfg::IO_Config_Type, Cfg::IO_Config_Portname>(
        "Port", Change::Portname | Change::Type, always);
    // Neither that the plot goes to a file nor that all ports are valid has a flag.
    port.flag_follows_value = false;
    return {
        port,
        nearest_row<&Output::get_protocol, Ability::IO_Protocol, Cfg::IO_Config_Protocol>(
            "Protocol", Change::Protocol, as_asked_or_with_methods),
        nearest_row<&Output::get_baud_rate, Ability::IO_Baud_Rate, Cfg::IO_Config_Baud_Rate>(
            "Baud rate", Change::Baud_Rate, as_asked_or_with_methods),
        Domain::row<words_of_handshake, Ability::IO_Handshake, Cfg::IO_Config_Handshake>("Handshake",
                                                                                         Change::Handshake),
        nearest_row<&Output::get_input_timeout, Ability::IO_Input_Timeout, Cfg::IO_Config_Input_Timeout>(
            "Input time-out", Change::Input_Timeout, with_methods),
        nearest_row<&Output::get_output_timeout, Ability::IO_Output_Timeout, Cfg::IO_Config_Output_Timeout>(
            "Output time-out", Change::Output_Timeout, with_methods),
        Domain::row<&Output::get_pathname, Ability::IO_Pathname, Cfg::IO_Config_Pathname>(
            "Path of the plot file", Change::Pathname),
    };
}
