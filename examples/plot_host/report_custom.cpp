#include <cwchar>

#include "examples/common/text.h"
#include "examples/plot_host/report_data.h"

namespace plot_host {
namespace {

// What the device calls the setting of that canonical name, with that name in parentheses where it differs.
std::string title_of_setting(const PX_Plotter_Capabilities& capabilities, const wchar_t* name) {
    const auto setting = capabilities.get_custom_capabilities()->get_custom(name);
    const wchar_t* const shown = px_is_there(setting) ? setting->get_localized_name() : L"";
    if (*shown == L'\0' || std::wcscmp(shown, name) == 0)
        return quoted(name);
    return quoted(shown) + " (" + text::on_one_line(text::to_utf8(name)) + ")";
}

// The item of that name in the configuration at hand, which is not the one that the row was made from.
Datum custom_row(const std::wstring& item_name) {
    const auto value = [item_name](const PX_Plotter_Configuration& configuration) {
        const auto item = configuration.get_custom_configuration()->get_custom(item_name.c_str());
        const Words words = words_of(item ? value_of(*item) : Custom_Value());
        return Value{words.exact, words.shown};
    };
    const auto state = [item_name](const PX_Plotter_Capabilities&,
                                   const PX_Plotter_Configuration& configuration) {
        const auto items = configuration.get_custom_configuration();
        return State{std::nullopt, items->get_one_validated(item_name.c_str()),
                     items->get_one_default(item_name.c_str())};
    };
    const auto is_raised = [item_name](const PX_Plotter_Validator& validator) {
        return validator.get_one_custom_cfg_change(item_name.c_str());
    };
    const auto title = [item_name](const PX_Plotter_Capabilities& capabilities) {
        return title_of_setting(capabilities, item_name.c_str());
    };
    // No row of another domain has a name in quotes.
    return {'"' + text::to_utf8(item_name) + '"', value, state, is_raised, title};
}

}  // namespace

Words words_of(const Custom_Value& value) {
    return std::visit(By_Kind{
                          [](std::monostate) { return Words().text("(none)"); },
                          [](const std::wstring& wide) {
                              const std::string utf8 = text::to_utf8(wide);
                              return Words{"string " + utf8, '"' + text::on_one_line(utf8) + '"'};
                          },
                          [](const PX_Dev_String& bytes) {
                              const auto* const data = reinterpret_cast<const char*>(bytes.data());
                              return Words{"bytes " + std::string(data, data + bytes.length()),
                                           "bytes " + readable(&bytes)};
                          },
                          [](bool truth) { return words_of(truth); },
                          [](double number) { return Words().number("number ", number); },
                          [](long integer) { return Words().text(std::to_string(integer)); },
                      },
                      value);
}

std::vector<Datum> custom_data(const PX_Plotter_Configuration& configuration) {
    std::vector<Datum> rows;
    if (const auto items = configuration.get_custom_configuration()->get_custom_list()) {
        for (const auto& item : *items) {
            if (item)
                rows.push_back(custom_row(item->get_canonical_name()));
        }
    }
    return rows;
}

}  // namespace plot_host
