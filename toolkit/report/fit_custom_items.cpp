#include "toolkit/report/fit_custom_items.h"

#include "toolkit/report/data.h"

namespace {

using Items = PX_Named_Object_List<PX_Custom_Config_Item>;

// Gives the items of the device the values of those that were chosen, the first of each name.
void take_values(const PX_Custom_Configurations& custom, const Items& chosen) {
    for (const auto& item : chosen) {
        if (!item || chosen.find(item->get_canonical_name()) != item)
            continue;
        if (const auto here = custom.get_custom(item->get_canonical_name())) {
            here->set_config_value(item->get_config_value().get());
            here->set_validated(false);
            here->set_default(false);
        }
    }
}

}  // namespace

void px_fit_custom_items(const PX_Plotter_Definition& plotter) {
    constexpr const wchar_t* function = L"px_fit_custom_items";
    const auto configuration = plotter.get_plotter_configuration();
    const auto validator = plotter.get_plotter_validator();
    px_require_argument(configuration && validator && plotter.get_plotter_capabilities(), function,
                        L"plotter", px_report_file);
    const auto custom = px_reported(*configuration, &PX_Plotter_Configuration::get_custom_configuration);
    const auto chosen = custom->get_custom_list();
    // A device without settings leaves the list as it is.
    const Items none;
    custom->set_custom_list(&none);
    try {
        validator->set_selected_to_defaults(PX_Domain_Mask::Custom);
        if (chosen)
            take_values(*custom, *chosen);
    } catch (...) {
        custom->set_custom_list(chosen.get());
        throw;
    }
}
