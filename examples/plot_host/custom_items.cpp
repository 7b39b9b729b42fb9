#include "examples/plot_host/custom_items.h"

namespace plot_host {

void fit_custom_items(const PX_Plotter_Definition& device) {
    const auto custom = device.get_plotter_configuration()->get_custom_configuration();
    const auto chosen = custom->get_custom_list();
    // A device without settings leaves the list as it is.
    const PX_Named_Object_List<PX_Custom_Config_Item> none;
    custom->set_custom_list(&none);
    device.get_plotter_validator()->set_selected_to_defaults(PX_Domain_Mask::Custom);
    if (!chosen)
        return;
    for (const auto& item : *chosen) {
        const auto here = item ? custom->get_custom(item->get_canonical_name()) : nullptr;
        if (!here)
            continue;
        here->set_config_value(item->get_config_value().get());
        here->set_validated(false);
        here->set_default(false);
    }
}

}  // namespace plot_host
