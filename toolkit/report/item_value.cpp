#include "toolkit/report/item_value.h"

PX_Item_Value px_item_value_of(const PX_Custom_Config_Item& item) {
    const auto value = item.get_config_value();
    const PX_Custom_Data* const data = value.get();
    if (const auto* const text = dynamic_cast<const PX_String_Custom_Data*>(data))
        return std::wstring(text->data());
    if (const auto* const integer = dynamic_cast<const PX_Long_Custom_Data*>(data))
        return integer->data();
    if (const auto* const number = dynamic_cast<const PX_Double_Custom_Data*>(data))
        return number->data();
    if (const auto* const truth = dynamic_cast<const PX_Boolean_Custom_Data*>(data))
        return truth->data();
    if (const auto* const raw = dynamic_cast<const PX_Raw_Custom_Data*>(data))
        return PX_Dev_String(raw->data(), raw->size());
    return {};
}
