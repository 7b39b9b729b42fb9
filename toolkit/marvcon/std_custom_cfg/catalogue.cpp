#include "toolkit/marvcon/std_custom_cfg/catalogue.h"

#include "toolkit/core/clone.h"
#include "toolkit/marvcon/std_custom_cfg/custom_data.h"

namespace {

constexpr const wchar_t* file_tag = px_std_custom_cfg_source.file_tag;

}  // namespace

PX_Custom_Capability_Value::~PX_Custom_Capability_Value() = default;
PX_Custom_Capability::~PX_Custom_Capability() = default;

void PX_Std_Custom_Capability_Value::set_data_value(const PX_Custom_Data* value) {
    px_store_custom_data(m_data_value, value, L"PX_Std_Custom_Capability_Value::set_data_value",
                         L"m_data_value");
}

PX_Custom_Capability_Value* PX_Std_Custom_Capability_Value::clone() const {
    return px_clone<PX_Std_Custom_Capability_Value>(L"PX_Std_Custom_Capability_Value::clone", file_tag,
                                                    [this](auto& new_one) {
                                                        new_one.set_caps_type(m_caps_type);
                                                        new_one.set_data_value(m_data_value.get());
                                                    });
}

void PX_Std_Custom_Capability::set_canonical_name(const wchar_t* name) {
    px_store_name(m_canonical_name, name, L"PX_Std_Custom_Capability::set_canonical_name", L"canonical_name",
                  file_tag);
}

// Unlike elsewhere, this name has to be there too.
void PX_Std_Custom_Capability::set_localized_name(const wchar_t* name) {
    px_store_name(m_localized_name, name, L"PX_Std_Custom_Capability::set_localized_name", L"localized_name",
                  file_tag);
}

void PX_Std_Custom_Capability::set_value_list(const PX_Object_List<PX_Custom_Capability_Value>* list) {
    px_store_list(m_value_list, list, L"PX_Std_Custom_Capability::set_value_list", L"new_list", file_tag);
}

void PX_Std_Custom_Capability::set_default_data_value(const PX_Custom_Data* value) {
    px_store_custom_data(m_default_data_value, value, L"PX_Std_Custom_Capability::set_default_data_value",
                         L"m_default_data_value");
}

// What is stored is copied, not what the getters show of it.
PX_Custom_Capability* PX_Std_Custom_Capability::clone() const {
    return px_clone<PX_Std_Custom_Capability>(L"PX_Std_Custom_Capability::clone", file_tag,
                                              [this](auto& new_one) {
                                                  new_one.set_localized_name(m_localized_name);
                                                  new_one.set_canonical_name(m_canonical_name);
                                                  new_one.set_data_type(m_data_type);
                                                  new_one.set_verifiable(m_verifiable);
                                                  new_one.set_is_range_type(m_is_range_type);
                                                  new_one.set_range_min(m_range_min);
                                                  new_one.set_range_max(m_range_max);
                                                  new_one.set_num_values(m_num_values);
                                                  new_one.set_value_list(m_value_list.get());
                                                  new_one.set_default_data_value(m_default_data_value.get());
                                                  new_one.set_caps_type(m_caps_type);
                                              });
}
