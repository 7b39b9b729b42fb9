#include "toolkit/marvcon/std_media_cfg/settings.h"

#include "toolkit/core/clone.h"
#include "toolkit/core/fields.h"
#include "toolkit/core/frame.h"

PX_Media_Settings::~PX_Media_Settings() = default;

void PX_Std_Media_Settings::set_max_resolution(const PX_Float_XY* resolution) {
    px_store_value(m_max_resolution, resolution, L"PX_Std_Media_Settings::set_max_resolution",
                   L"m_max_resolution", px_std_media_cfg_source.file_tag);
}

void PX_Std_Media_Settings::set_media_bounds(const PX_Float_XY* bounds) {
    px_store_value(m_media_bounds, bounds, L"PX_Std_Media_Settings::set_media_bounds", L"m_media_bounds",
                   px_std_media_cfg_source.file_tag);
}

void PX_Std_Media_Settings::set_printable_bounds(const PX_Float_Rectangle* bounds) {
    px_store_value(m_printable_bounds, bounds, L"PX_Std_Media_Settings::set_printable_bounds",
                   L"m_printable_bounds", px_std_media_cfg_source.file_tag);
}

void PX_Std_Media_Settings::set_media_type_settings(const PX_Media_Type* type) {
    if (!type)
        return;
    px_memory_frame(L"PX_Std_Media_Settings::set_media_type_settings", [&] {
        set_drying_time(type->get_drying_time());
        set_max_resolution(type->get_max_resolution().get());
    });
}

void PX_Std_Media_Settings::set_media_size_settings(const PX_Media_Size* size) {
    if (!size)
        return;
    px_memory_frame(L"PX_Std_Media_Settings::set_media_size_settings", [&] {
        set_media_group(size->get_media_group());
        set_landscape_mode_flag(size->get_landscape_mode_flag());
        set_form_name(size->get_form_name());
    });
}

void PX_Std_Media_Settings::set_media_description_settings(const PX_Media_Description* description) {
    if (!description)
        return;
    px_memory_frame(L"PX_Std_Media_Settings::set_media_description_settings", [&] {
        set_media_bounds(description->get_media_bounds().get());
        set_printable_bounds(description->get_printable_bounds().get());
        set_printable_area(description->get_printable_area());
        set_dimensional(description->get_dimensional());
    });
}

void PX_Std_Media_Settings::set_media_source_settings(const PX_Media_Source* source) {
    if (!source)
        return;
    px_memory_frame(L"PX_Std_Media_Settings::set_media_source_settings",
                    [&] { set_media_feed(source->get_media_feed()); });
}

void PX_Std_Media_Settings::set_media_source_entry_settings(const PX_Media_Source_Entry* source_entry) {
    if (!source_entry)
        return;
    px_memory_frame(L"PX_Std_Media_Settings::set_media_source_entry_settings", [&] {
        set_source_width(source_entry->get_source_width());
        set_source_frame_height(source_entry->get_source_frame_height());
    });
}

void PX_Std_Media_Settings::set_media_destination_settings(const PX_Media_Destination* /*destination*/) {
}

void PX_Std_Media_Settings::set_media_collating_settings(const PX_Media_Collating* collating) {
    if (!collating)
        return;
    px_memory_frame(L"PX_Std_Media_Settings::set_media_collating_settings",
                    [&] { set_collating_type(collating->get_collating_type()); });
}

void PX_Std_Media_Settings::set_media_stapling_settings(const PX_Media_Stapling* stapling) {
    if (!stapling)
        return;
    px_memory_frame(L"PX_Std_Media_Settings::set_media_stapling_settings", [&] {
        set_stapling_location(stapling->get_stapling_location());
        set_stapling_when(stapling->get_stapling_when());
        set_stapling_orientation(stapling->get_stapling_orientation());
    });
}

void PX_Std_Media_Settings::set_media_cutting_settings(const PX_Media_Cutting* cutting) {
    if (!cutting)
        return;
    px_memory_frame(L"PX_Std_Media_Settings::set_media_cutting_settings",
                    [&] { set_cutting_when(cutting->get_cutting_when()); });
}

void PX_Std_Media_Settings::set_media_folding_settings(const PX_Media_Folding* folding) {
    if (!folding)
        return;
    px_memory_frame(L"PX_Std_Media_Settings::set_media_folding_settings", [&] {
        set_folding_type(folding->get_folding_type());
        set_folding_when(folding->get_folding_when());
    });
}

PX_Media_Settings* PX_Std_Media_Settings::clone() const {
    return px_clone<PX_Std_Media_Settings>(L"PX_Std_Media_Settings::clone", px_std_media_cfg_source.file_tag,
                                           [this](auto& new_one) {
                                               new_one.set_drying_time(m_drying_time);
                                               new_one.set_max_resolution(m_max_resolution.get());
                                               new_one.set_media_bounds(m_media_bounds.get());
                                               new_one.set_printable_bounds(m_printable_bounds.get());
                                               new_one.set_printable_area(m_printable_area);
                                               new_one.set_dimensional(m_dimensional);
                                               new_one.set_media_group(m_media_group);
                                               new_one.set_landscape_mode_flag(m_landscape_mode_flag);
                                               new_one.set_form_name(m_form_name);
                                               new_one.set_media_feed(m_media_feed);
                                               new_one.set_collating_type(m_collating_type);
                                               new_one.set_stapling_location(m_stapling_location);
                                               new_one.set_stapling_when(m_stapling_when);
                                               new_one.set_stapling_orientation(m_stapling_orientation);
                                               new_one.set_cutting_when(m_cutting_when);
                                               new_one.set_folding_type(m_folding_type);
                                               new_one.set_folding_when(m_folding_when);
                                               new_one.set_source_width(m_source_width);
                                               new_one.set_source_frame_height(m_source_frame_height);
                                           });
}
