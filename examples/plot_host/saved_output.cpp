#include "examples/plot_host/saved_output.h"

#include <type_traits>

#include "examples/plot_host/output_words.h"

namespace plot_host {
namespace {

using Output = PX_Plotter_IO_Configuration;

struct Row {
    const char* key;
    json (*write)(const Output&);
    void (*read)(const Field&, Output&);
};

template <auto get, auto set>
constexpr Row row(const char* key) {
    using Value = decltype((std::declval<const Output&>().*get)());
    constexpr auto write = [](const Output& output) -> json {
        if constexpr (std::is_same_v<Value, const wchar_t*>)
            return text::to_utf8((output.*get)());
        else if constexpr (std::is_same_v<Value, PX_IO_Type::Enum>)
            return word_of((output.*get)());
        else
            return (output.*get)();
    };
    constexpr auto read = [](const Field& field, Output& output) {
        if constexpr (std::is_same_v<Value, const wchar_t*>) {
            (output.*set)(text::from_utf8(field.name()).c_str());
        } else if constexpr (std::is_same_v<Value, PX_IO_Type::Enum>) {
            const auto type = io_type_of(field.text());
            if (!type)
                field.reject("names no kind of connection");
            (output.*set)(*type);
        } else if constexpr (std::is_same_v<Value, bool>) {
            (output.*set)(field.boolean());
        } else {
            // A long is of 32 bits where files of other machines come from.
            (output.*set)(field.whole_number<std::int32_t>());
        }
    };
    return {key, write, read};
}

constexpr Row rows[] = {
    row<&Output::get_portname, &Output::set_portname>("port"),
    row<&Output::get_type, &Output::set_type>("type"),
    row<&Output::get_protocol, &Output::set_protocol>("protocol"),
    row<&Output::get_baud_rate, &Output::set_baud_rate>("baud_rate"),
    row<&Output::get_handshake, &Output::set_handshake>("handshake"),
    row<&Output::get_input_timeout, &Output::set_input_timeout>("input_timeout"),
    row<&Output::get_output_timeout, &Output::set_output_timeout>("output_timeout"),
    row<&Output::get_pathname, &Output::set_pathname>("pathname"),
    row<&Output::get_plot_to_file, &Output::set_plot_to_file>("plot_to_file"),
    row<&Output::get_all_system_ports_valid, &Output::set_all_system_ports_valid>("all_system_ports_valid"),
};

}  // namespace

void read_saved_output(const Field& domain, const PX_Plotter_Configuration& into) {
    const auto output = into.get_io_configuration();
    for (const auto& [key, field] : domain.members(keys_of(rows)))
        std::ranges::find(rows, key, &Row::key)->read(field, *output);
}

json write_saved_output(const PX_Plotter_Configuration& choice) {
    const auto output = choice.get_io_configuration();
    json domain;
    for (const Row& row : rows)
        domain[row.key] = row.write(*output);
    return domain;
}

}  // namespace plot_host
