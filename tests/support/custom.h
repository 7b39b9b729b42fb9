#pragma once

#include <initializer_list>
#include <string>

#include "tests/support/device.h"
#include "tests/support/entries.h"

namespace support {

inline constexpr const wchar_t* custom_file = L"$Workfile: std_custom_cfg $ $Revision: #1 $";

using Data = PX_Smart_Pointer<PX_Custom_Data>;

// clang-format off
inline Data of(long value) { return new PX_Std_Long_Custom_Data(value); }
inline Data of(double value) { return new PX_Std_Double_Custom_Data(value); }
inline Data of(bool value) { return new PX_Std_Boolean_Custom_Data(value); }
inline Data of(const wchar_t* text) { return new PX_Std_String_Custom_Data(text); }
inline Data raw(std::basic_string<unsigned char> bytes) { return new PX_Std_Raw_Custom_Data(static_cast<long>(bytes.size()), bytes.data()); }
// clang-format on

// The class and the payload.
inline std::wstring show(const Data& value) {
    const auto* const object = value.get();
    if (const auto* number = dynamic_cast<const PX_Std_Long_Custom_Data*>(object))
        return L"long " + std::to_wstring(number->data());
    if (const auto* real = dynamic_cast<const PX_Std_Double_Custom_Data*>(object))
        return std::to_wstring(real->data());
    if (const auto* truth = dynamic_cast<const PX_Std_Boolean_Custom_Data*>(object))
        return truth->data() ? L"true" : L"false";
    if (const auto* text = dynamic_cast<const PX_Std_String_Custom_Data*>(object))
        return std::to_wstring(text->length()) + L" " + text->data();
    const auto* const raw = dynamic_cast<const PX_Std_Raw_Custom_Data*>(object);
    return raw && raw->data() ? L"raw " + std::wstring(raw->data(), raw->data() + raw->size()) : L"none";
}

// Its type is that of its default. It has a range where the bounds are in order.
inline PX_Smart_Pointer<PX_Custom_Capability> setting(const wchar_t* name, const Data& default_value,
                                                      double min = 0, double max = -1) {
    PX_Smart_Pointer<PX_Custom_Capability> setting(named<PX_Std_Custom_Capability>(name));
    setting->set_default_data_value(default_value.get());
    setting->set_data_type(default_value ? default_value->type() : PX_Data_Type::Data_Long);
    setting->set_is_range_type(min <= max);
    setting->set_range_min(min);
    setting->set_range_max(max);
    return setting;
}

inline PX_Smart_Pointer<PX_Custom_Capability> choice(const Data& default_value,
                                                     std::initializer_list<Data> values) {
    auto listed = setting(L"x", default_value);
    for (const Data& value : values) {
        const PX_Smart_Pointer<PX_Custom_Capability_Value> allowed(new PX_Std_Custom_Capability_Value);
        allowed->set_data_value(value.get());
        listed->get_value_list()->append(allowed);
    }
    listed->set_num_values(static_cast<long>(values.size()));
    return listed;
}

// Neither validated nor default.
inline PX_Smart_Pointer<PX_Custom_Config_Item> item(const wchar_t* name, const Data& value) {
    PX_Smart_Pointer<PX_Custom_Config_Item> item(named<PX_Std_Custom_Config_Item>(name));
    item->set_config_value(value.get());
    item->set_validated(false);
    item->set_default(false);
    return item;
}

// Name and value, a v for validated and a d for default.
inline std::wstring show(const PX_Custom_Config_Item& item) {
    return item.get_canonical_name() + (L" " + show(item.get_config_value())) +
           (item.get_validated() ? L" v" : L" -") + (item.get_default() ? L"d" : L"-");
}

}  // namespace support
