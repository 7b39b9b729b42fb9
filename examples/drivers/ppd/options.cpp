#include "examples/drivers/ppd/options.h"

#include <map>
#include <vector>

#include "examples/common/listed_setting.h"
#include "examples/common/made.h"
#include "examples/drivers/ppd/media.h"
#include "examples/drivers/ppd/res_color_mem.h"
#include "toolkit/report.h"

namespace {

std::vector<std::string> keywords_of_other_domains(const Ppd_File& file) {
    std::vector<std::string> keywords = ppd_media_keywords(file);
    const std::vector<std::string> more = ppd_res_color_mem_keywords(file);
    keywords.insert(keywords.end(), more.begin(), more.end());
    return keywords;
}

PX_Smart_Pointer<PX_Custom_Capability> setting_of(const Ppd_Named_Option& option,
                                                  const PX_Plotter_Class_Factory& factory) {
    std::vector<std::wstring> names;
    for (const Ppd_Choice& choice : option.choices)
        names.push_back(choice.name);
    return listed_setting(factory, option.keyword.c_str(), option.text.c_str(), names, option.default_choice);
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
            const PX_Item_Value value = px_item_value_of(*item);
            const auto* const name = std::get_if<std::wstring>(&value);
            if (name && settings->get_custom(item->get_canonical_name()))
                choices.emplace(item->get_canonical_name(), *name);
        }
    }
    return file.code(section, choices);
}
