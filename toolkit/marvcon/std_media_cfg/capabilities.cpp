#include "toolkit/marvcon/std_media_cfg/capabilities.h"

#include "toolkit/core/clone.h"

PX_Media_Capabilities::~PX_Media_Capabilities() = default;

void PX_Std_Media_Capabilities::set_media_source_list(const PX_Named_Object_List<PX_Media_Source>* list) {
    px_store_list(m_media_source_list, list, L"PX_Std_Media_Capabilities::set_media_source_list");
}

void PX_Std_Media_Capabilities::set_default_media_source(const wchar_t* name) {
    px_store_name(m_default_media_source, name, L"PX_Std_Media_Capabilities::set_default_media_source",
                  L"source_name", px_std_media_cfg_source.file_tag);
}

void PX_Std_Media_Capabilities::set_media_size_list(const PX_Named_Object_List<PX_Media_Size>* list) {
    px_store_list(m_media_size_list, list, L"PX_Std_Media_Capabilities::set_media_size_list");
}

void PX_Std_Media_Capabilities::set_default_media_size(const wchar_t* name) {
    px_store_name(m_default_media_size, name, L"PX_Std_Media_Capabilities::set_default_media_size",
                  L"size_name", px_std_media_cfg_source.file_tag);
}

void PX_Std_Media_Capabilities::set_media_destination_list(
    const PX_Named_Object_List<PX_Media_Destination>* list) {
    px_store_list(m_media_destination_list, list, L"PX_Std_Media_Capabilities::set_media_destination_list");
}

void PX_Std_Media_Capabilities::set_default_media_destination(const wchar_t* name) {
    px_store_name(m_default_media_destination, name,
                  L"PX_Std_Media_Capabilities::set_default_media_destination", L"destination_name",
                  px_std_media_cfg_source.file_tag);
}

void PX_Std_Media_Capabilities::set_media_description_list(
    const PX_Named_Object_List<PX_Media_Description>* list) {
    px_store_list(m_media_description_list, list, L"PX_Std_Media_Capabilities::set_media_description_list");
}

void PX_Std_Media_Capabilities::set_media_type_list(const PX_Named_Object_List<PX_Media_Type>* list) {
    px_store_list(m_media_type_list, list, L"PX_Std_Media_Capabilities::set_media_type_list");
}

void PX_Std_Media_Capabilities::set_default_media_type(const wchar_t* name) {
    px_store_name(m_default_media_type, name, L"PX_Std_Media_Capabilities::set_default_media_type",
                  L"def_name", px_std_media_cfg_source.file_tag);
}

void PX_Std_Media_Capabilities::set_media_size_max(const PX_Float_XY* sheet) {
    px_store_value(m_media_size_max, sheet, L"PX_Std_Media_Capabilities::set_media_size_max",
                   L"m_media_size_max", px_std_media_cfg_source.file_tag);
}

namespace {

// A withdrawn size stays, and so does one of no group.
bool is_filtered_out(const PX_Media_Size& size, unsigned long groups) {
    const int group = size.get_media_group();
    return size.get_caps_type() != PX_Caps_Type::Caps_Type_Withdrawn && group >= 0 &&
           (groups & 1UL << (group & 31)) == 0;
}

}  // namespace

void PX_Std_Media_Capabilities::filter_media_size_list_by_groups(
    PX_Smart_Pointer<PX_Named_Object_List<PX_Caps_Name_List_Object>> list, unsigned long groups) const {
    if (!list)
        return;
    list->remove_if([&](const PX_Caps_Name_List_Object& name) {
        const auto size = get_media_size(name.get_canonical_name());
        return size && is_filtered_out(*size, groups);
    });
}

void PX_Std_Media_Capabilities::filter_media_size_list_by_groups(
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Size>> list, unsigned long groups) const {
    if (list)
        list->remove_if([groups](const PX_Media_Size& size) { return is_filtered_out(size, groups); });
}

PX_Media_Capabilities* PX_Std_Media_Capabilities::clone() const {
    return px_clone<PX_Std_Media_Capabilities>(
        L"PX_Std_Media_Capabilities::clone", px_std_media_cfg_source.file_tag, [this](auto& new_one) {
            new_one.set_media_selection_methods(m_media_selection_methods);
            new_one.set_default_media_selection_method(m_default_media_selection_method);
            new_one.set_media_source_list(m_media_source_list.get());
            new_one.set_default_media_source(m_default_media_source);
            new_one.set_media_size_list(m_media_size_list.get());
            new_one.set_default_media_size(m_default_media_size);
            new_one.set_media_destination_list(m_media_destination_list.get());
            new_one.set_default_media_destination(m_default_media_destination);
            new_one.set_media_description_list(m_media_description_list.get());
            new_one.set_media_type_list(m_media_type_list.get());
            new_one.set_default_media_type(m_default_media_type);
            new_one.set_duplexing_modes(m_duplexing_modes);
            new_one.set_default_duplexing_mode(m_default_duplexing_mode);
            new_one.set_max_number_of_copies(m_max_number_of_copies);
            new_one.set_default_longplot_reduction(m_default_longplot_reduction);
            new_one.set_default_dm_scale(m_default_dm_scale);
            new_one.set_media_size_max(m_media_size_max.get());
            new_one.set_media_roll_max_height(m_media_roll_max_height);
            new_one.set_abilities(get_abilities());
            new_one.set_caps_state(get_caps_state());
            new_one.set_ui_owner(get_ui_owner());
        });
}
