#include "toolkit/marvcon/std_media_cfg/catalogue.h"

PX_Media_Type::~PX_Media_Type() = default;
PX_Media_Description::~PX_Media_Description() = default;
PX_Media_Size::~PX_Media_Size() = default;
PX_Media_Source_Entry::~PX_Media_Source_Entry() = default;
PX_Media_Source::~PX_Media_Source() = default;
PX_Media_Collating::~PX_Media_Collating() = default;
PX_Media_Stapling::~PX_Media_Stapling() = default;
PX_Media_Cutting::~PX_Media_Cutting() = default;
PX_Media_Folding::~PX_Media_Folding() = default;
PX_Media_Destination::~PX_Media_Destination() = default;

void PX_Std_Media_Type::set_max_resolution(const PX_Float_XY* resolution) {
    px_store_value(m_max_resolution, resolution, L"PX_Std_Media_Type::set_max_resolution",
                   L"m_max_resolution", px_std_media_cfg_source.file_tag);
}

void PX_Std_Media_Description::set_media_bounds(const PX_Float_XY* bounds) {
    px_store_value(m_media_bounds, bounds, L"PX_Std_Media_Description::set_media_bounds", L"m_media_bounds",
                   px_std_media_cfg_source.file_tag);
}

void PX_Std_Media_Description::set_printable_bounds(const PX_Float_Rectangle* bounds) {
    px_store_value(m_printable_bounds, bounds, L"PX_Std_Media_Description::set_printable_bounds",
                   L"m_printable_bounds", px_std_media_cfg_source.file_tag);
}

void PX_Std_Media_Size::set_media_description(const wchar_t* name) {
    px_store_name(m_media_description, name, L"PX_Std_Media_Size::set_media_description", L"canonical_name",
                  px_std_media_cfg_source.file_tag);
}

void PX_Std_Media_Source_Entry::set_media_size_name_list(
    const PX_Named_Object_List<PX_Caps_Name_List_Object>* list) {
    px_store_list(m_media_size_name_list, list, L"PX_Std_Media_Source_Entry::set_media_size_name_list");
}

void PX_Std_Media_Source_Entry::set_default_media_size(const wchar_t* name) {
    px_store_name(m_default_media_size, name, L"PX_Std_Media_Source_Entry::set_default_media_size", L"name",
                  px_std_media_cfg_source.file_tag);
}

void PX_Std_Media_Source::set_source_entry_list(const PX_Named_Object_List<PX_Media_Source_Entry>* list) {
    px_store_list(m_source_entry_list, list, L"PX_Std_Media_Source::set_source_entry_list");
}

void PX_Std_Media_Source::set_default_source_entry(const wchar_t* name) {
    px_store_name(m_default_source_entry, name, L"PX_Std_Media_Source::set_default_source_entry", L"name",
                  px_std_media_cfg_source.file_tag);
}

void PX_Std_Media_Destination::set_collating_list(const PX_Named_Object_List<PX_Media_Collating>* list) {
    px_store_list(m_collating_list, list, L"PX_Std_Media_Destination::set_collating_list");
}

void PX_Std_Media_Destination::set_default_collating(const wchar_t* name) {
    px_store_name(m_default_collating, name, L"PX_Std_Media_Destination::set_default_collating",
                  L"canonical_name", px_std_media_cfg_source.file_tag);
}

void PX_Std_Media_Destination::set_stapling_list(const PX_Named_Object_List<PX_Media_Stapling>* list) {
    px_store_list(m_stapling_list, list, L"PX_Std_Media_Destination::set_stapling_list");
}

void PX_Std_Media_Destination::set_default_stapling(const wchar_t* name) {
    px_store_name(m_default_stapling, name, L"PX_Std_Media_Destination::set_default_stapling",
                  L"canonical_name", px_std_media_cfg_source.file_tag);
}

void PX_Std_Media_Destination::set_cutting_list(const PX_Named_Object_List<PX_Media_Cutting>* list) {
    px_store_list(m_cutting_list, list, L"PX_Std_Media_Destination::set_cutting_list");
}

void PX_Std_Media_Destination::set_default_cutting(const wchar_t* name) {
    px_store_name(m_default_cutting, name, L"PX_Std_Media_Destination::set_default_cutting",
                  L"canonical_name", px_std_media_cfg_source.file_tag);
}

void PX_Std_Media_Destination::set_folding_list(const PX_Named_Object_List<PX_Media_Folding>* list) {
    px_store_list(m_folding_list, list, L"PX_Std_Media_Destination::set_folding_list");
}

void PX_Std_Media_Destination::set_default_folding(const wchar_t* name) {
    px_store_name(m_default_folding, name, L"PX_Std_Media_Destination::set_default_folding",
                  L"canonical_name", px_std_media_cfg_source.file_tag);
}

void PX_Std_Media_Destination::copy_properties_to(PX_Media_Destination& new_one) const {
    new_one.set_collating_list(m_collating_list.get());
    new_one.set_default_collating(m_default_collating);
    new_one.set_stapling_list(m_stapling_list.get());
    new_one.set_default_stapling(m_default_stapling);
    new_one.set_cutting_list(m_cutting_list.get());
    new_one.set_default_cutting(m_default_cutting);
    new_one.set_folding_list(m_folding_list.get());
    new_one.set_default_folding(m_default_folding);
}
