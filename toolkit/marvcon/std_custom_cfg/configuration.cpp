#include "toolkit/marvcon/std_custom_cfg/configuration.h"

#include "toolkit/core/clone.h"
#include "toolkit/marvcon/std_custom_cfg/custom_data.h"

namespace {

constexpr const wchar_t* file_tag = px_std_custom_cfg_source.file_tag;

using Item = PX_Custom_Config_Item;
using Items = PX_Smart_Pointer<PX_Named_Object_List<Item>>;

bool have_all(const Items& items, bool (Item::*get)() const) {
    if (items) {
        for (const auto& item : *items) {
            if (item && !((*item).*get)())
                return false;
        }
    }
    return true;
}

void set_all(const Items& items, void (Item::*set)(bool), bool value) {
    if (items) {
        for (const auto& item : *items) {
            if (item)
                ((*item).*set)(value);
        }
    }
}

}  // namespace

PX_Custom_Config_Item::~PX_Custom_Config_Item() = default;
PX_Custom_Configurations::~PX_Custom_Configurations() = default;

void PX_Std_Custom_Config_Item::set_canonical_name(const wchar_t* name) {
    px_store_name(m_canonical_name, name, L"PX_Std_Custom_Config_Item::set_canonical_name", L"canonical_name",
                  file_tag);
}

// Unlike elsewhere, this name has to be there too.
void PX_Std_Custom_Config_Item::set_localized_name(const wchar_t* name) {
    px_store_name(m_localized_name, name, L"PX_Std_Custom_Config_Item::set_localized_name", L"localized_name",
                  file_tag);
}

void PX_Std_Custom_Config_Item::set_config_value(const PX_Custom_Data* value) {
    px_store_custom_data(m_config_value, value, L"PX_Std_Custom_Config_Item::set_config_value",
                         L"m_config_value");
}

// The localized name stays behind on purpose.
PX_Custom_Config_Item* PX_Std_Custom_Config_Item::clone() const {
    return px_clone<PX_Std_Custom_Config_Item>(L"PX_Std_Custom_Config_Item::clone", file_tag,
                                               [this](auto& new_one) {
                                                   new_one.set_canonical_name(m_canonical_name);
                                                   new_one.set_validated(m_validated);
                                                   new_one.set_default(m_default);
                                                   new_one.set_config_value(m_config_value.get());
                                               });
}

bool PX_Std_Custom_Configurations::get_validated() const {
    return have_all(m_custom_list, &Item::get_validated);
}

bool PX_Std_Custom_Configurations::get_one_validated(const wchar_t* name) const {
    const auto item = get_custom(name);
    return item && item->get_validated();
}

bool PX_Std_Custom_Configurations::get_default() const {
    return have_all(m_custom_list, &Item::get_default);
}

bool PX_Std_Custom_Configurations::get_one_default(const wchar_t* name) const {
    const auto item = get_custom(name);
    return item && item->get_default();
}

void PX_Std_Custom_Configurations::set_custom_list(const PX_Named_Object_List<PX_Custom_Config_Item>* list) {
    px_store_list(m_custom_list, list, L"PX_Std_Custom_Configurations::set_custom_list", L"copy_list",
                  file_tag);
}

void PX_Std_Custom_Configurations::set_validated(bool validated) {
    set_all(m_custom_list, &Item::set_validated, validated);
}

void PX_Std_Custom_Configurations::set_one_validated(bool validated, const wchar_t* name) {
    if (const auto item = get_custom(name))
        item->set_validated(validated);
}

void PX_Std_Custom_Configurations::set_default(bool is_default) {
    set_all(m_custom_list, &Item::set_default, is_default);
}

void PX_Std_Custom_Configurations::set_one_default(bool is_default, const wchar_t* name) {
    if (const auto item = get_custom(name))
        item->set_default(is_default);
}

PX_Custom_Configurations* PX_Std_Custom_Configurations::clone() const {
    return px_clone<PX_Std_Custom_Configurations>(
        L"PX_Std_Custom_Configurations::clone", file_tag,
        [this](auto& new_one) { new_one.set_custom_list(m_custom_list.get()); });
}
