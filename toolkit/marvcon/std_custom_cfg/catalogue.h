#pragma once

#include "toolkit/core/clamps.h"
#include "toolkit/core/fields.h"
#include "toolkit/marvcon/std_custom_cfg/catalogue_interface.h"

class PX_EXPORT PX_Std_Custom_Capability_Value : public PX_Custom_Capability_Value, public PX_Object {
public:
    PX_Std_Custom_Capability_Value() = default;
    // A copy would share the value: clone is the operation that copies.
    PX_Std_Custom_Capability_Value(const PX_Std_Custom_Capability_Value&) = delete;
    PX_Std_Custom_Capability_Value& operator=(const PX_Std_Custom_Capability_Value&) = delete;

    PX_Data_Type::Enum get_data_type() const override {
        return m_data_value ? m_data_value->type() : PX_Data_Type::Data_Undefined;
    }
    PX_Smart_Pointer<PX_Custom_Data> get_data_value() const override { return m_data_value; }
    PX_Caps_Type::Enum get_caps_type() const override { return m_caps_type; }
    void set_data_value(const PX_Custom_Data* value) override;
    void set_caps_type(PX_Caps_Type::Enum type) override { m_caps_type = type; }

    PX_Custom_Capability_Value* clone() const override;

private:
    PX_Smart_Pointer<PX_Custom_Data> m_data_value;
    PX_Caps_Type::Enum m_caps_type = PX_Caps_Type::Caps_Type_Device;
};

class PX_EXPORT PX_Std_Custom_Capability : public PX_Custom_Capability, public PX_Object {
public:
    PX_Std_Custom_Capability() = default;
    // A copy would share list and value: clone is the operation that copies.
    PX_Std_Custom_Capability(const PX_Std_Custom_Capability&) = delete;
    PX_Std_Custom_Capability& operator=(const PX_Std_Custom_Capability&) = delete;

    const wchar_t* get_canonical_name() const override { return m_canonical_name; }
    const wchar_t* get_localized_name() const override { return m_localized_name; }
    PX_Data_Type::Enum get_data_type() const override { return m_data_type; }
    bool get_verifiable() const override { return m_verifiable; }
    bool get_is_range_type() const override { return m_is_range_type; }
    double get_range_min() const override { return get_is_range_type() ? m_range_min : 0.0; }
    double get_range_max() const override { return get_is_range_type() ? m_range_max : 0.0; }
    long get_num_values() const override { return get_is_range_type() ? 0 : m_num_values; }
    PX_Smart_Pointer<PX_Object_List<PX_Custom_Capability_Value>> get_value_list() const override {
        return m_value_list;
    }
    PX_Smart_Pointer<PX_Custom_Data> get_default_data_value() const override { return m_default_data_value; }
    PX_Caps_Type::Enum get_caps_type() const override { return m_caps_type; }

    void set_canonical_name(const wchar_t* name) override;
    void set_localized_name(const wchar_t* name) override;
    void set_data_type(PX_Data_Type::Enum type) override { m_data_type = type; }
    void set_verifiable(bool on) override { m_verifiable = on; }
    void set_is_range_type(bool on) override { m_is_range_type = on; }
    void set_range_min(double min) override { m_range_min = min; }
    void set_range_max(double max) override { m_range_max = max; }
    void set_num_values(long count) override { m_num_values = px_not_negative(count); }
    void set_value_list(const PX_Object_List<PX_Custom_Capability_Value>* list) override;
    void set_default_data_value(const PX_Custom_Data* value) override;
    void set_caps_type(PX_Caps_Type::Enum type) override { m_caps_type = type; }

    PX_Custom_Capability* clone() const override;

private:
    PX_String m_canonical_name;
    PX_String m_localized_name;
    PX_Data_Type::Enum m_data_type = PX_Data_Type::Data_Undefined;
    bool m_verifiable = true;
    bool m_is_range_type = false;
    double m_range_min = 0;
    double m_range_max = 0;
    long m_num_values = 0;
    PX_Smart_Pointer<PX_Object_List<PX_Custom_Capability_Value>> m_value_list =
        px_new_list<PX_Custom_Capability_Value, PX_Object_List>();
    PX_Smart_Pointer<PX_Custom_Data> m_default_data_value;
    PX_Caps_Type::Enum m_caps_type = PX_Caps_Type::Caps_Type_Device;
};
