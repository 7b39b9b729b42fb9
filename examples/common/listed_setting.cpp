#include "examples/common/listed_setting.h"

#include "examples/common/made.h"

namespace {

PX_Smart_Pointer<PX_String_Custom_Data> data_of(const std::wstring& text,
                                                const PX_Plotter_Class_Factory& factory) {
    auto data = made(factory.MK_Create_String_Custom_Data(), L"value");
    *data = text.c_str();
    return data;
}

}  // namespace

PX_Smart_Pointer<PX_Custom_Capability> listed_setting(const PX_Plotter_Class_Factory& factory,
                                                      const wchar_t* name, const wchar_t* shown,
                                                      const std::vector<std::wstring>& values,
                                                      const std::wstring& default_value) {
    const auto list = made(factory.MK_Create_Custom_Capability_Value_List(), L"values");
    for (const std::wstring& text : values) {
        const auto value = made(factory.MK_Create_Custom_Capability_Value(), L"value");
        value->set_data_value(data_of(text, factory).get());
        list->append(value);
    }
    auto setting = made_named(factory.MK_Create_Custom_Capability(), L"setting", name, shown);
    setting->set_data_type(PX_Data_Type::Data_String);
    setting->set_verifiable(true);
    setting->set_is_range_type(false);
    setting->set_num_values(list->size());
    setting->set_value_list(list.get());
    setting->set_default_data_value(data_of(default_value, factory).get());
    return setting;
}
