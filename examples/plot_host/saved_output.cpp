#include "examples/plot_host/saved_rows.h"
#include "toolkit/report.h"

namespace plot_host {
namespace {

using Output = PX_Plotter_IO_Configuration;

json write_type(const Output& output) {
    return px_word_of(output.get_type());
}

void read_type(const Field& field, Output& output) {
    const auto type = px_io_type_of(field.text());
    if (!type)
        field.reject("names no kind of connection");
    output.set_type(*type);
}

constexpr Row<Output> rows[] = {
    value_row<&Output::get_portname, &Output::set_portname>("port"),
    {"type", write_type, read_type},
    value_row<&Output::get_protocol, &Output::set_protocol>("protocol"),
    value_row<&Output::get_baud_rate, &Output::set_baud_rate>("baud_rate"),
    value_row<&Output::get_handshake, &Output::set_handshake>("handshake"),
    value_row<&Output::get_input_timeout, &Output::set_input_timeout>("input_timeout"),
    value_row<&Output::get_output_timeout, &Output::set_output_timeout>("output_timeout"),
    value_row<&Output::get_pathname, &Output::set_pathname>("pathname"),
    value_row<&Output::get_plot_to_file, &Output::set_plot_to_file>("plot_to_file"),
    value_row<&Output::get_all_system_ports_valid, &Output::set_all_system_ports_valid>(
        "all_system_ports_valid"),
};

}  // namespace

constexpr Saved_Domain saved_output =
    domain_of_rows<&PX_Plotter_Configuration::get_io_configuration, rows>("output");

}  // namespace plot_host
