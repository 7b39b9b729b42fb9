#include "examples/plot_host/custom_items.h"

#include <cwchar>

#include "examples/common/text.h"
#include "examples/plot_host/report_data.h"

namespace plot_host {

std::string title_of_setting(const PX_Plotter_Capabilities& capabilities, const wchar_t* name) {
    const auto setting = capabilities.get_custom_capabilities()->get_custom(name);
    const wchar_t* const shown = px_is_there(setting) ? setting->get_localized_name() : L"";
    if (*shown == L'\0' || std::wcscmp(shown, name) == 0)
        return quoted(name);
    return quoted(shown) + " (" + text::on_one_line(text::to_utf8(name)) + ")";
}

std::vector<std::string> fit_custom_items(const PX_Plotter_Definition& device) {
    const auto capabilities = device.get_plotter_capabilities();
    const auto settings = capabilities->get_custom_capabilities();
    std::vector<std::string> lines;
    const auto items = device.get_plotter_configuration()->get_custom_configuration()->get_custom_list();
    if (!items)
        return lines;
    const auto shown = [&](const PX_Custom_Config_Item& item) {
        return "Custom " + title_of_setting(*capabilities, item.get_canonical_name()) + ", " +
               words_of(value_of(item)).shown;
    };
    items->remove_if([&](const PX_Custom_Config_Item& item) {
        const bool is_foreign = !px_is_there(settings->get_custom(item.get_canonical_name()));
        if (is_foreign)
            lines.push_back(shown(item) + ": not on this device.");
        return is_foreign;
    });
    for (const auto& item : *items) {
        // What is read is to be validated yet.
        if (item && item->get_validated())
            lines.push_back(shown(*item) + ": not in the choice, the device's default.");
    }
    return lines;
}

}  // namespace plot_host
