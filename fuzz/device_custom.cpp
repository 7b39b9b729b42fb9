#include "fuzz/custom.h"
#include "fuzz/device.h"
#include "tests/support/custom.h"

namespace fuzz {

static void fill(Input& input, PX_Custom_Capability_Value& allowed) {
    allowed.set_data_value(custom_value(input).get());
}

static void fill(Input& input, PX_Custom_Capability& setting) {
    using Setting = PX_Custom_Capability;
    const auto preset = custom_value(input);
    setting.set_default_data_value(preset.get());
    setting.set_data_type(preset && !input.rarely() ? preset->type() : Number{input.up_to(6) - 1});
    setting.set_verifiable(!input.rarely(4));
    set_all(input, setting, &Setting::set_is_range_type, &Setting::set_range_min, &Setting::set_range_max);
    append<PX_Std_Custom_Capability_Value>(input, setting.get_value_list());
    setting.set_num_values(input.rarely() ? input.number() : 3);
}

void fill(Input& input, PX_Custom_Capabilities& caps, PX_Custom_Configurations& cfg) {
    append<PX_Std_Custom_Capability>(input, caps.get_custom_list());
    for (int left = input.up_to(3); left > 0; --left) {
        const auto item = support::item(input.name(), custom_value(input));
        item->set_validated(input.rarely());
        // Of two items of one name the second is never validated.
        if (!cfg.get_custom(item->get_canonical_name()))
            cfg.get_custom_list()->append(item);
    }
}

void tell(std::wostream& out, const PX_Custom_Configurations& cfg) {
    for (const auto& item : *cfg.get_custom_list())
        tell_all(out, support::show(*item));
}

}  // namespace fuzz
