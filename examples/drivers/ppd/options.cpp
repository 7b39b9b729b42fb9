#include "examples/drivers/ppd/options.h"

#include <map>
#include <vector>

#include "examples/common/made.h"
#include "examples/drivers/ppd/media.h"
#include "examples/drivers/ppd/res_color_mem.h"

namespace {

using Factory = PX_Plotter_Class_Factory;

std::vector<std::string> keywords_of_other_domains(const Ppd_File& file) {
    std::vector<std::string> keywords = ppd_media_keywords(file);
    const std::vector<std::string> more = ppd_res_color_mem_keywords(file);
    keywords.insert(keywords.end(), more.begin(), more.end());
    return keywords;
}

PX_Smart_Pointer<PX_String_Custom_Data> value_of(const std::wstring& choice, const Factory& factory) {
    auto value = made(factory.MK_Create_String_Custom_Data(), L"value");
    *value = choice.c_str();
    return value;
}

PX_Smart_Pointer<PX_Custom_Capability> setting_of(const Ppd_Named_Option& option, const Factory& factory) {
    const auto values = made(factory.MK_Create_Custom_Capability_Value_List(), L"values");
    for (const Ppd_Choice& choice : option.choices) {
        const auto value = made(factory.MK_Create_Custom_Capability_Value(), L"value");
        value->set_data_value(value_of(choice.name, factory).get());
        values->append(value);
    }
    auto setting = made_named(factory.MK_Create_Custom_Capability(), L"setting", option.keyword.c_str(),
                              option.text.c_str());
    setting->set_data_type(PX_Data_Type::Data_String);
    setting->set_verifiable(true);
    setting->set_is_range_type(false);
    setting->set_num_values(values->size());
    setting->set_value_list(values.get());
    setting->set_default_data_value(value_of(option.default_choice, factory).get());
    return setting;
}

}  // namespace

PX_Smart_Pointer<PX_Custom_Capabilities> ppd_custom_capabilities(const Ppd_File& file,
                                                                 const PX_Plotter_Class_Factory& factory) {
    const auto settings = made(factory.MK_Create_Custom_Capability_List(), L"settings");
    for (const Ppd_Named_Option& option : file.options_besides(keywords_of_other_domains(file))) {
        if (option.choices.size() > 1)
            settings->append(setting_of(option, factory));
    }
    auto capabilities = made(factory.MK_Create_Custom_Capabilities(), L"custom_capabilities");
    capabilities->set_custom_list(settings.get());
    return capabilities;
}

std::string ppd_settings_code(const Ppd_File& file, const PX_Plotter_Definition& device,
                              Ppd_Section section) {
    const auto settings = device.get_plotter_capabilities()->get_custom_capabilities();
    const auto chosen = device.get_plotter_configuration()->get_custom_configuration();
    const auto items = chosen ? chosen->get_custom_list() : nullptr;
    std::map<std::wstring, std::wstring> choices;
    if (items) {
        for (const auto& item : *items) {
            const auto value = item->get_config_value();
            const auto* const name = dynamic_cast<const PX_String_Custom_Data*>(value.get());
            if (name && settings->get_custom(item->get_canonical_name()))
                choices.emplace(item->get_canonical_name(), name->data());
        }
    }
    return file.code(section, choices);
}
