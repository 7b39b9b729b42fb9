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

using Strings = PX_InitTerm_Configuration;
using String_Flag = PX_InitTerm_Ability_Flags;

using Domain = Report_Domain<&PX_Plotter_Configuration::get_init_term_configuration,
                             &PX_Plotter_Capabilities::get_init_term_capabilities,
                             &PX_Plotter_Validator::get_init_term_cfg_changes>;

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

Words words_of(const PX_Smart_Pointer<PX_Dev_String>& string) {
    return {string ? "string " + std::string(bytes_of(*string)) : "none", readable(string.get())};
}

std::vector<Datum> init_term_data(const PX_Plotter_Configuration& /*configuration*/) {
    return {
        Domain::row<&Strings::get_preinit_string, String_Flag::Preinit_String, String_Flag::Preinit_String>(
            "Preinit string", 0),
        Domain::row<&Strings::get_postinit_string, String_Flag::Postinit_String,
                    String_Flag::Postinit_String>("Postinit string", 0),
        Domain::row<&Strings::get_termination_string, String_Flag::Termination_String,
                    String_Flag::Termination_String>("Termination string", 0),
    };
}

}  // namespace plot_host
