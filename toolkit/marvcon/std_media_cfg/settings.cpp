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

namespace {

// Copies from a catalogue object, of which null has nothing to copy, in the frame of `function`.
template <class Object, class Copy>
void copy_values(const Object* object, const wchar_t* function, Copy copy) {
    if (object)
        px_memory_frame(function, [&] { copy(*object); });
}

}  // namespace

void PX_Std_Media_Settings::set_media_type_settings(const PX_Media_Type* type) {
    copy_values(type, L"PX_Std_Media_Settings::set_media_type_settings", [this](const auto& from) {
        set_drying_time(from.get_drying_time());
        set_max_resolution(from.get_max_resolution().get());
    });
}

void PX_Std_Media_Settings::set_media_size_settings(const PX_Media_Size* size) {
    copy_values(size, L"PX_Std_Media_Settings::set_media_size_settings", [this](const auto& from) {
        set_media_group(from.get_media_group());
        set_landscape_mode_flag(from.get_landscape_mode_flag());
        set_form_name(from.get_form_name());
    });
}

void PX_Std_Media_Settings::set_media_description_settings(const PX_Media_Description* description) {
    copy_values(description, L"PX_Std_Media_Settings::set_media_description_settings",
                [this](const auto& from) {
                    set_media_bounds(from.get_media_bounds().get());
                    set_printable_bounds(from.get_printable_bounds().get());
                    set_printable_area(from.get_printable_area());
                    set_dimensional(from.get_dimensional());
                });
}

void PX_Std_Media_Settings::set_media_source_settings(const PX_Media_Source* source) {
    copy_values(source, L"PX_Std_Media_Settings::set_media_source_settings",
                [this](const auto& from) { set_media_feed(from.get_media_feed()); });
}

void PX_Std_Media_Settings::set_media_source_entry_settings(const PX_Media_Source_Entry* source_entry) {
    copy_values(source_entry, L"PX_Std_Media_Settings::set_media_source_entry_settings",
                [this](const auto& from) {
                    set_source_width(from.get_source_width());
                    set_source_frame_height(from.get_source_frame_height());
                });
}

void PX_Std_Media_Settings::set_media_destination_settings(const PX_Media_Destination* /*destination*/) {
}

void PX_Std_Media_Settings::set_media_collating_settings(const PX_Media_Collating* collating) {
    copy_values(collating, L"PX_Std_Media_Settings::set_media_collating_settings",
                [this](const auto& from) { set_collating_type(from.get_collating_type()); });
}

void PX_Std_Media_Settings::set_media_stapling_settings(const PX_Media_Stapling* stapling) {
    copy_values(stapling, L"PX_Std_Media_Settings::set_media_stapling_settings", [this](const auto& from) {
        set_stapling_location(from.get_stapling_location());
        set_stapling_when(from.get_stapling_when());
        set_stapling_orientation(from.get_stapling_orientation());
    });
}

void PX_Std_Media_Settings::set_media_cutting_settings(const PX_Media_Cutting* cutting) {
    copy_values(cutting, L"PX_Std_Media_Settings::set_media_cutting_settings",
                [this](const auto& from) { set_cutting_when(from.get_cutting_when()); });
}

void PX_Std_Media_Settings::set_media_folding_settings(const PX_Media_Folding* folding) {
    copy_values(folding, L"PX_Std_Media_Settings::set_media_folding_settings", [this](const auto& from) {
        set_folding_type(from.get_folding_type());
        set_folding_when(from.get_folding_when());
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
