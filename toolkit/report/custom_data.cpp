#include <cwchar>

#include "toolkit/report/data.h"
#include "toolkit/report/text.h"

namespace {

PX_Value_Words words_of(const PX_Item_Value& value) {
    return std::visit(
        PX_By_Kind{
            [](std::monostate) { return PX_Value_Words().text("(none)"); },
            [](const std::wstring& wide) {
                return PX_Value_Words{"string " + PX_Value_Words().name(wide.c_str()).exact,
                                      '"' + px_on_one_line(wide) + '"'};
            },
            [](const PX_Dev_String& bytes) {
                const std::string_view view(reinterpret_cast<const char*>(bytes.data()),
                                            static_cast<std::size_t>(bytes.length()));
                return PX_Value_Words{"bytes " + std::string(view), "bytes " + px_readable_bytes(view)};
            },
            [](bool truth) { return px_words_of(truth); },
            [](double number) { return PX_Value_Words().number("number ", number); },
            [](long integer) { return px_words_of(integer); },
        },
        value);
}

// What the device calls the setting of that canonical name, with that name in parentheses where it differs.
std::string title_of_setting(const PX_Plotter_Capabilities& capabilities, const wchar_t* name) {
    const auto settings = capabilities.get_custom_capabilities();
    const auto setting = settings ? settings->get_custom(name) : nullptr;
    const wchar_t* const shown = px_is_there(setting) ? setting->get_localized_name() : L"";
    if (*shown == L'\0' || std::wcscmp(shown, name) == 0)
        return px_quoted(name);
    return px_quoted(shown) + " (" + px_on_one_line(name) + ")";
}

PX_Smart_Pointer<PX_Custom_Configurations> items_of(const PX_Plotter_Configuration& configuration) {
    return px_reported(configuration, &PX_Plotter_Configuration::get_custom_configuration);
}

// The item of that name in the configuration at hand, which is not the one that the row was made from.
PX_Report_Datum item_row(const std::wstring& name) {
    const auto value = [name](const PX_Plotter_Configuration& configuration) {
        const auto item = items_of(configuration)->get_custom(name.c_str());
        return words_of(item ? px_item_value_of(*item) : PX_Item_Value());
    };
    const auto state = [name](const PX_Reported_Run& run) {
        const auto items = items_of(run.configuration);
        PX_Report_State state;
        state.validated = items->get_one_validated(name.c_str());
        state.is_default = items->get_one_default(name.c_str());
        state.is_raised = run.validator.get_one_custom_cfg_change(name.c_str());
        return state;
    };
    PX_Report_Datum row = {
        {PX_Domain_Mask::Custom, -1, name}, '"' + px_on_one_line(name) + '"', -1, value, state};
    row.title = [name](const PX_Plotter_Capabilities& capabilities) {
        return title_of_setting(capabilities, name.c_str());
    };
    return row;
}

}  // namespace

std::vector<PX_Report_Datum> px_custom_data(const PX_Plotter_Configuration& configuration) {
    std::vector<PX_Report_Datum> rows;
    if (const auto items = items_of(configuration)->get_custom_list()) {
        for (const auto& item : *items) {
            if (item)
                rows.push_back(item_row(item->get_canonical_name()));
        }
    }
    return rows;
}
