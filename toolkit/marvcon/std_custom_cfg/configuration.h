#pragma once

#include "toolkit/core/fields.h"
#include "toolkit/marvcon/std_custom_cfg/interface.h"

class PX_EXPORT PX_Std_Custom_Config_Item : public PX_Custom_Config_Item, public PX_Object {
public:
    PX_Std_Custom_Config_Item() = default;
    // A copy would share the value: clone is the operation that copies.
    PX_Std_Custom_Config_Item(const PX_Std_Custom_Config_Item&) = delete;
    PX_Std_Custom_Config_Item& operator=(const PX_Std_Custom_Config_Item&) = delete;

    const wchar_t* get_canonical_name() const override { return m_canonical_name; }
    const wchar_t* get_localized_name() const override { return m_localized_name; }
    PX_Smart_Pointer<PX_Custom_Data> get_config_value() const override { return m_config_value; }
    bool get_validated() const override { return m_validated; }
    bool get_default() const override { return m_default; }

    void set_canonical_name(const wchar_t* name) override;
    void set_localized_name(const wchar_t* name) override;
    void set_config_value(const PX_Custom_Data* value) override;
    void set_validated(bool validated) override { m_validated = validated; }
    void set_default(bool is_default) override { m_default = is_default; }

    PX_Custom_Config_Item* clone() const override;

private:
    PX_String m_canonical_name;
    PX_String m_localized_name;
    bool m_validated = true;
    bool m_default = true;
    PX_Smart_Pointer<PX_Custom_Data> m_config_value;
};

class PX_EXPORT PX_Std_Custom_Configurations : public PX_Custom_Configurations, public PX_Object {
public:
    PX_Std_Custom_Configurations() = default;
    // A copy would share the list: clone is the operation that copies.
    PX_Std_Custom_Configurations(const PX_Std_Custom_Configurations&) = delete;
    PX_Std_Custom_Configurations& operator=(const PX_Std_Custom_Configurations&) = delete;

    PX_Smart_Pointer<PX_Named_Object_List<PX_Custom_Config_Item>> get_custom_list() const override {
        return m_custom_list;
    }
    PX_Smart_Pointer<PX_Custom_Config_Item> get_custom(const wchar_t* name) const override {
        return px_find(m_custom_list, name);
    }
    bool get_validated() const override;
    bool get_one_validated(const wchar_t* name) const override;
    bool get_default() const override;
    bool get_one_default(const wchar_t* name) const override;
    void set_custom_list(const PX_Named_Object_List<PX_Custom_Config_Item>* list) override;
    void set_validated(bool validated) override;
    void set_one_validated(bool validated, const wchar_t* name) override;
    void set_default(bool is_default) override;
    void set_one_default(bool is_default, const wchar_t* name) override;

    PX_Custom_Configurations* clone() const override;

private:
    PX_Smart_Pointer<PX_Named_Object_List<PX_Custom_Config_Item>> m_custom_list =
        px_new_list<PX_Custom_Config_Item>();
};
