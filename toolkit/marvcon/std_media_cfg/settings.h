#pragma once

#include "toolkit/host/object.h"
#include "toolkit/host/string.h"
#include "toolkit/marvcon/std_media_cfg/clamps.h"
#include "toolkit/marvcon/std_media_cfg/interface.h"

class PX_EXPORT PX_Std_Media_Settings : public PX_Media_Settings, public PX_Object {
public:
    PX_Std_Media_Settings() = default;
    // A copy would share the values: clone is the operation that copies.
    PX_Std_Media_Settings(const PX_Std_Media_Settings&) = delete;
    PX_Std_Media_Settings& operator=(const PX_Std_Media_Settings&) = delete;

    long get_drying_time() const override { return m_drying_time; }
    PX_Smart_Pointer<PX_Float_XY> get_max_resolution() const override { return m_max_resolution; }
    PX_Smart_Pointer<PX_Float_XY> get_media_bounds() const override { return m_media_bounds; }
    PX_Smart_Pointer<PX_Float_Rectangle> get_printable_bounds() const override { return m_printable_bounds; }
    double get_printable_area() const override { return m_printable_area; }
    bool get_dimensional() const override { return m_dimensional; }
    PX_Media_Group::Enum get_media_group() const override { return m_media_group; }
    bool get_landscape_mode_flag() const override { return m_landscape_mode_flag; }
    const wchar_t* get_form_name() const override { return m_form_name; }
    PX_Media_Feed::Enum get_media_feed() const override { return m_media_feed; }
    PX_Media_Collating_Type::Enum get_collating_type() const override { return m_collating_type; }
    PX_Media_Stapling_Location::Enum get_stapling_location() const override { return m_stapling_location; }
    PX_Media_Stapling_When::Enum get_stapling_when() const override { return m_stapling_when; }
    short get_stapling_orientation() const override { return m_stapling_orientation; }
    PX_Media_Cutting_When::Enum get_cutting_when() const override { return m_cutting_when; }
    PX_Media_Folding_Type::Enum get_folding_type() const override { return m_folding_type; }
    PX_Media_Folding_When::Enum get_folding_when() const override { return m_folding_when; }
    float get_source_width() const override { return m_source_width; }
    float get_source_frame_height() const override { return m_source_frame_height; }

    void set_drying_time(long value) override { m_drying_time = value; }
    void set_max_resolution(const PX_Float_XY* resolution) override;
    void set_media_bounds(const PX_Float_XY* bounds) override;
    void set_printable_bounds(const PX_Float_Rectangle* bounds) override;
    void set_printable_area(double area) override { m_printable_area = area; }
    void set_dimensional(bool on) override { m_dimensional = on; }
    void set_media_group(PX_Media_Group::Enum group) override { m_media_group = group; }
    void set_landscape_mode_flag(bool on) override { m_landscape_mode_flag = on; }
    void set_form_name(const wchar_t* name) override { m_form_name = name; }
    void set_media_feed(PX_Media_Feed::Enum feed) override { m_media_feed = feed; }
    void set_collating_type(PX_Media_Collating_Type::Enum type) override { m_collating_type = type; }
    void set_stapling_location(PX_Media_Stapling_Location::Enum location) override {
        m_stapling_location = location;
    }
    void set_stapling_when(PX_Media_Stapling_When::Enum when) override { m_stapling_when = when; }
    void set_stapling_orientation(short orientation) override {
        m_stapling_orientation = px_degrees(orientation);
    }
    void set_cutting_when(PX_Media_Cutting_When::Enum when) override { m_cutting_when = when; }
    void set_folding_type(PX_Media_Folding_Type::Enum type) override { m_folding_type = type; }
    void set_folding_when(PX_Media_Folding_When::Enum when) override { m_folding_when = when; }
    void set_source_width(float width) override { m_source_width = px_not_negative(width); }
    void set_source_frame_height(float height) override { m_source_frame_height = px_not_negative(height); }

    void set_media_type_settings(const PX_Media_Type* type) override;
    void set_media_size_settings(const PX_Media_Size* size) override;
    void set_media_description_settings(const PX_Media_Description* description) override;
    void set_media_source_settings(const PX_Media_Source* source) override;
    void set_media_source_entry_settings(const PX_Media_Source_Entry* source_entry) override;
    void set_media_destination_settings(const PX_Media_Destination* destination) override;
    void set_media_collating_settings(const PX_Media_Collating* collating) override;
    void set_media_stapling_settings(const PX_Media_Stapling* stapling) override;
    void set_media_cutting_settings(const PX_Media_Cutting* cutting) override;
    void set_media_folding_settings(const PX_Media_Folding* folding) override;

    PX_Media_Settings* clone() const override;

private:
    long m_drying_time = 0;
    PX_Smart_Pointer<PX_Float_XY> m_max_resolution{new PX_Float_XY};
    PX_Smart_Pointer<PX_Float_XY> m_media_bounds{new PX_Float_XY};
    PX_Smart_Pointer<PX_Float_Rectangle> m_printable_bounds{new PX_Float_Rectangle};
    double m_printable_area = 0;
    bool m_dimensional = true;
    PX_Media_Group::Enum m_media_group = PX_Media_Group::Media_Group_None;
    bool m_landscape_mode_flag = false;
    PX_String m_form_name;
    PX_Media_Feed::Enum m_media_feed = PX_Media_Feed::Media_Feed_Settings_Start;
    PX_Media_Collating_Type::Enum m_collating_type = PX_Media_Collating_Type::Collating_Type_0;
    PX_Media_Stapling_Location::Enum m_stapling_location = PX_Media_Stapling_Location::Stapling_Location_None;
    PX_Media_Stapling_When::Enum m_stapling_when = PX_Media_Stapling_When::Stapling_When_0;
    short m_stapling_orientation = 0;
    PX_Media_Cutting_When::Enum m_cutting_when = PX_Media_Cutting_When::Cutting_When_0;
    PX_Media_Folding_Type::Enum m_folding_type = PX_Media_Folding_Type::Folding_Type_None;
    PX_Media_Folding_When::Enum m_folding_when = PX_Media_Folding_When::Folding_When_0;
    float m_source_width = 0;
    float m_source_frame_height = 0;
};
