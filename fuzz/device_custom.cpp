#include "fuzz/custom.h"
#include "fuzz/device.h"

namespace fuzz {

namespace {

void fill_allowed(Input& input, PX_Custom_Capability_Value& allowed) {
    allowed.set_data_value(custom_value(input).get());
}

void fill_setting(Input& input, PX_Custom_Capability& setting) {
    const auto preset = custom_value(input);
    setting.set_default_data_value(preset.get());
    setting.set_data_type(preset && !input.rarely() ? preset->type() : Number{input.up_to(6) - 1});
    setting.set_verifiable(!input.rarely(4));
    setting.set_is_range_type(input.flag());
    setting.set_range_min(input.real());
    setting.set_range_max(input.real());
    if (const auto list = setting.get_value_list())
        append<PX_Std_Custom_Capability_Value>(input, list, fill_allowed);
    setting.set_num_values(input.rarely() ? input.number() : 3);
}

}  // namespace

void fill(Input& input, PX_Custom_Capabilities& caps, PX_Custom_Configurations& cfg) {
    append<PX_Std_Custom_Capability>(input, caps.get_custom_list(), fill_setting);
    for (int left = input.up_to(3); left > 0; --left) {
        const wchar_t* const name = input.name();
        // Of two items of one name the second is never validated.
        if (cfg.get_custom(name))
            continue;
        const PX_Smart_Pointer<PX_Custom_Config_Item> item(support::named<PX_Std_Custom_Config_Item>(name));
        item->set_config_value(custom_value(input).get());
        item->set_validated(input.rarely());
        cfg.get_custom_list()->append(item);
    }
}

void tell(std::wostream& out, const PX_Custom_Configurations& cfg) {
    for (const auto& item : *cfg.get_custom_list()) {
        tell_all(out, item->get_canonical_name(), item->get_validated(), item->get_default());
        const auto value = item->get_config_value();
        if (const auto* const number = dynamic_cast<const PX_Long_Custom_Data*>(value.get()))
            tell_all(out, L"long", number->data());
        else if (const auto* const real = dynamic_cast<const PX_Double_Custom_Data*>(value.get()))
            tell_all(out, L"double", real->data());
        else if (const auto* const truth = dynamic_cast<const PX_Boolean_Custom_Data*>(value.get()))
            tell_all(out, L"boolean", truth->data());
        else if (const auto* const text = dynamic_cast<const PX_String_Custom_Data*>(value.get()))
            tell_all(out, L"text", text->data());
        else if (const auto* const raw = dynamic_cast<const PX_Raw_Custom_Data*>(value.get()))
            tell_all(out, L"raw", std::wstring(raw->data(), raw->data() + raw->size()).c_str());
    }
}

}  // namespace fuzz
