#include "examples/plot_host/report_data.h"

namespace plot_host {
namespace {

std::string_view bytes_of(const PX_Dev_String& string) {
    return {reinterpret_cast<const char*>(string.data()), static_cast<std::size_t>(string.length())};
}

std::string escaped(std::string_view bytes) {
    constexpr char digits[] = "0123456789abcdef";
    std::string shown;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= ' ' && byte <= '~')
            shown += c;
        else
            shown.append("\\x").append({digits[byte >> 4], digits[byte & 15]});
    }
    return shown;
}

template <auto get_string, PX_InitTerm_Ability_Flags::Enum flag>
constexpr Datum init_term_row(const char* name) {
    constexpr auto value = [](const PX_Plotter_Configuration& configuration) {
        const auto string = ((*configuration.get_init_term_configuration()).*get_string)();
        return Value{string ? "string " + std::string(bytes_of(*string)) : "none", readable(string.get())};
    };
    constexpr auto state = [](const PX_Plotter_Capabilities& capabilities,
                              const PX_Plotter_Configuration& configuration) {
        const auto strings = configuration.get_init_term_configuration();
        return State{capabilities.get_init_term_capabilities()->get_one_ability(flag),
                     strings->get_one_validated(flag), strings->get_one_default(flag)};
    };
    return {name, value, state, &PX_Plotter_Validator::get_init_term_cfg_changes, 0};
}

using Strings = PX_InitTerm_Configuration;
using String_Flag = PX_InitTerm_Ability_Flags;

constexpr Datum data[] = {
    init_term_row<&Strings::get_preinit_string, String_Flag::Preinit_String>("Preinit string"),
    init_term_row<&Strings::get_postinit_string, String_Flag::Postinit_String>("Postinit string"),
    init_term_row<&Strings::get_termination_string, String_Flag::Termination_String>("Termination string"),
};

}  // namespace

std::string readable(const PX_Dev_String* string) {
    constexpr std::size_t longest = 40, head = 26, tail = 8;
    if (!string)
        return "(none)";
    const std::string_view bytes = bytes_of(*string);
    if (bytes.empty())
        return "(empty)";
    if (bytes.size() <= longest)
        return '"' + escaped(bytes) + '"';
    return '"' + escaped(bytes.substr(0, head)) + "\" ... \"" + escaped(bytes.substr(bytes.size() - tail)) +
           "\" (" + std::to_string(bytes.size()) + " bytes)";
}

std::span<const Datum> init_term_data() {
    return data;
}

}  // namespace plot_host
