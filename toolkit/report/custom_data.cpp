#include <cwchar>
#include <map>

#include "toolkit/report/by_kind.h"
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
                const std::string_view view = px_bytes_of(bytes);
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

// Of the configuration at hand, which is not the one that the row was made from.
PX_Smart_Pointer<PX_Custom_Config_Item> item_of(const PX_Plotter_Configuration& configuration,
                                                const std::wstring& name, int place) {
    if (const auto items = items_of(configuration)->get_custom_list()) {
        for (const auto& item : *items) {
            if (item && name == item->get_canonical_name() && place-- == 0)
                return item;
        }
    }
    return nullptr;
}

PX_Report_Datum item_row(const std::wstring& name, int place) {
    const auto value = [name, place](const PX_Plotter_Configuration& configuration) {
        const auto item = item_of(configuration, name, place);
        return words_of(item ? px_item_value_of(*item) : PX_Item_Value());
    };
    const auto state = [name, place](const PX_Reported_Run& run) {
        const auto item = item_of(run.configuration, name, place);
        PX_Report_State state;
        state.validated = item && item->get_validated();
        state.is_default = item && item->get_default();
        // The record of a name tells of the item that is found by it.
        state.is_raised = place == 0 && run.validator.get_one_custom_cfg_change(name.c_str());
        return state;
    };
    PX_Report_Datum row = {
        {PX_Domain_Mask::Custom, -1, name, place}, '"' + px_on_one_line(name) + '"', -1, value, state};
    row.flag_follows_value = false;
    row.title = [name](const PX_Plotter_Capabilities& capabilities) {
        return title_of_setting(capabilities, name.c_str());
    };
    return row;
}

}  // namespace

std::vector<PX_Report_Datum> px_custom_data(const PX_Plotter_Configuration& configuration) {
    std::vector<PX_Report_Datum> rows;
    if (const auto items = items_of(configuration)->get_custom_list()) {
        std::map<std::wstring, int> places;
        for (const auto& item : *items) {
            if (!item)
                continue;
            const std::wstring name = item->get_canonical_name();
            rows.push_back(item_row(name, places[name]++));
        }
    }
    return rows;
}
