#pragma once

#include "toolkit/core/fields.h"
#include "toolkit/core/named_object.h"
#include "toolkit/marvcon/std_media_cfg/catalogue_interface.h"
#include "toolkit/marvcon/std_media_cfg/clamps.h"
#include "toolkit/marvcon/std_media_cfg/flags.h"

class PX_EXPORT PX_Std_Media_Type : public PX_Named_Head<PX_Media_Type, PX_Std_Media_Type> {
public:
    static constexpr PX_Naming naming = PX_NAMING(L"PX_Std_Media_Type", px_std_media_cfg_source);

    long get_drying_time() const override { return m_drying_time; }
    PX_Smart_Pointer<PX_Float_XY> get_max_resolution() const override { return m_max_resolution; }

    void set_drying_time(long value) override { m_drying_time = value; }
    void set_max_resolution(const PX_Float_XY* resolution) override;

    void copy_properties_to(PX_Media_Type& new_one) const {
        new_one.set_drying_time(m_drying_time);
        new_one.set_max_resolution(m_max_resolution.get());
    }

private:
    long m_drying_time = 0;
    PX_Smart_Pointer<PX_Float_XY> m_max_resolution{new PX_Float_XY};
};

class PX_EXPORT PX_Std_Media_Description
    : public PX_Named_Head<PX_Media_Description, PX_Std_Media_Description> {
public:
    static constexpr PX_Naming naming = PX_NAMING(L"PX_Std_Media_Description", px_std_media_cfg_source);

    PX_Smart_Pointer<PX_Float_XY> get_media_bounds() const override { return m_media_bounds; }
    PX_Smart_Pointer<PX_Float_Rectangle> get_printable_bounds() const override { return m_printable_bounds; }
    double get_printable_area() const override { return m_printable_area; }
    bool get_dimensional() const override { return m_dimensional; }

    void set_media_bounds(const PX_Float_XY* bounds) override;
    void set_printable_bounds(const PX_Float_Rectangle* bounds) override;
    void set_printable_area(double area) override { m_printable_area = area; }
    void set_dimensional(bool on) override { m_dimensional = on; }

    void copy_properties_to(PX_Media_Description& new_one) const {
        new_one.set_media_bounds(m_media_bounds.get());
        new_one.set_printable_bounds(m_printable_bounds.get());
        new_one.set_printable_area(m_printable_area);
        new_one.set_dimensional(m_dimensional);
    }

private:
    PX_Smart_Pointer<PX_Float_XY> m_media_bounds{new PX_Float_XY};
    PX_Smart_Pointer<PX_Float_Rectangle> m_printable_bounds{new PX_Float_Rectangle};
    double m_printable_area = 0;
    bool m_dimensional = true;
};

class PX_EXPORT PX_Std_Media_Size : public PX_Named_Head<PX_Media_Size, PX_Std_Media_Size> {
public:
    static constexpr PX_Naming naming = PX_NAMING(L"PX_Std_Media_Size", px_std_media_cfg_source);

    PX_Media_Group::Enum get_media_group() const override { return m_media_group; }
    bool get_landscape_mode_flag() const override { return m_landscape_mode_flag; }
    const wchar_t* get_media_description() const override { return m_media_description; }
    const wchar_t* get_form_name() const override { return m_form_name; }

    void set_media_group(PX_Media_Group::Enum group) override { m_media_group = group; }
    void set_landscape_mode_flag(bool on) override { m_landscape_mode_flag = on; }
    void set_media_description(const wchar_t* name) override;
    void set_form_name(const wchar_t* name) override { m_form_name = name; }

    void copy_properties_to(PX_Media_Size& new_one) const {
        new_one.set_media_group(m_media_group);
        new_one.set_landscape_mode_flag(m_landscape_mode_flag);
        new_one.set_media_description(m_media_description);
        new_one.set_form_name(m_form_name);
    }

private:
    PX_Media_Group::Enum m_media_group = PX_Media_Group::Media_Group_None;
    bool m_landscape_mode_flag = false;
    PX_String m_media_description;
    PX_String m_form_name;
};

class PX_EXPORT PX_Std_Media_Source_Entry
    : public PX_Named_Head<PX_Media_Source_Entry, PX_Std_Media_Source_Entry> {
public:
    static constexpr PX_Naming naming = PX_NAMING(L"PX_Std_Media_Source_Entry", px_std_media_cfg_source);

    PX_Smart_Pointer<PX_Named_Object_List<PX_Caps_Name_List_Object>> get_media_size_name_list()
        const override {
        return m_media_size_name_list;
    }
    const wchar_t* get_default_media_size() const override { return m_default_media_size; }
    float get_source_width() const override { return m_source_width; }
    float get_source_frame_height() const override { return m_source_frame_height; }

    void set_media_size_name_list(const PX_Named_Object_List<PX_Caps_Name_List_Object>* list) override;
    void set_default_media_size(const wchar_t* name) override;
    void set_source_width(float width) override { m_source_width = px_not_negative(width); }
    void set_source_frame_height(float height) override { m_source_frame_height = px_not_negative(height); }

    void copy_properties_to(PX_Media_Source_Entry& new_one) const {
        new_one.set_media_size_name_list(m_media_size_name_list.get());
        new_one.set_default_media_size(m_default_media_size);
        new_one.set_source_width(m_source_width);
        new_one.set_source_frame_height(m_source_frame_height);
    }

private:
    PX_Smart_Pointer<PX_Named_Object_List<PX_Caps_Name_List_Object>> m_media_size_name_list =
        px_new_list<PX_Caps_Name_List_Object>();
    PX_String m_default_media_size;
    float m_source_width = 0;
    float m_source_frame_height = 0;
};

class PX_EXPORT PX_Std_Media_Source : public PX_Named_Head<PX_Media_Source, PX_Std_Media_Source> {
public:
    static constexpr PX_Naming naming = PX_NAMING(L"PX_Std_Media_Source", px_std_media_cfg_source);

    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Source_Entry>> get_source_entry_list() const override {
        return m_source_entry_list;
    }
    PX_Smart_Pointer<PX_Media_Source_Entry> get_source_entry(const wchar_t* name) const override {
        return px_find(m_source_entry_list, name);
    }
    const wchar_t* get_default_source_entry() const override { return m_default_source_entry; }
    PX_Media_Feed::Enum get_media_feed() const override { return m_media_feed; }

    void set_source_entry_list(const PX_Named_Object_List<PX_Media_Source_Entry>* list) override;
    void set_default_source_entry(const wchar_t* name) override;
    void set_media_feed(PX_Media_Feed::Enum feed) override { m_media_feed = feed; }

    void copy_properties_to(PX_Media_Source& new_one) const {
        new_one.set_source_entry_list(m_source_entry_list.get());
        new_one.set_default_source_entry(m_default_source_entry);
        new_one.set_media_feed(m_media_feed);
    }

private:
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Source_Entry>> m_source_entry_list =
        px_new_list<PX_Media_Source_Entry>();
    PX_String m_default_source_entry;
    PX_Media_Feed::Enum m_media_feed = PX_Media_Feed::Media_Feed_Unset;
};

class PX_EXPORT PX_Std_Media_Collating : public PX_Named_Head<PX_Media_Collating, PX_Std_Media_Collating> {
public:
    static constexpr PX_Naming naming = PX_NAMING(L"PX_Std_Media_Collating", px_std_media_cfg_source);

    PX_Media_Collating_Type::Enum get_collating_type() const override { return m_collating_type; }

    void set_collating_type(PX_Media_Collating_Type::Enum type) override { m_collating_type = type; }

    void copy_properties_to(PX_Media_Collating& new_one) const {
        new_one.set_collating_type(m_collating_type);
    }

private:
    PX_Media_Collating_Type::Enum m_collating_type = PX_Media_Collating_Type::Collating_Type_0;
};

class PX_EXPORT PX_Std_Media_Stapling : public PX_Named_Head<PX_Media_Stapling, PX_Std_Media_Stapling> {
public:
    static constexpr PX_Naming naming = PX_NAMING(L"PX_Std_Media_Stapling", px_std_media_cfg_source);

    PX_Media_Stapling_Location::Enum get_stapling_location() const override { return m_stapling_location; }
    PX_Media_Stapling_When::Enum get_stapling_when() const override { return m_stapling_when; }
    short get_stapling_orientation() const override { return m_stapling_orientation; }

    void set_stapling_location(PX_Media_Stapling_Location::Enum location) override {
        m_stapling_location = location;
    }
    void set_stapling_when(PX_Media_Stapling_When::Enum when) override { m_stapling_when = when; }
    void set_stapling_orientation(short orientation) override {
        m_stapling_orientation = px_degrees(orientation);
    }

    void copy_properties_to(PX_Media_Stapling& new_one) const {
        new_one.set_stapling_location(m_stapling_location);
        new_one.set_stapling_when(m_stapling_when);
        new_one.set_stapling_orientation(m_stapling_orientation);
    }

private:
    PX_Media_Stapling_Location::Enum m_stapling_location = PX_Media_Stapling_Location::Stapling_Location_None;
    PX_Media_Stapling_When::Enum m_stapling_when = PX_Media_Stapling_When::Stapling_When_0;
    short m_stapling_orientation = 0;
};

class PX_EXPORT PX_Std_Media_Cutting : public PX_Named_Head<PX_Media_Cutting, PX_Std_Media_Cutting> {
public:
    static constexpr PX_Naming naming = PX_NAMING(L"PX_Std_Media_Cutting", px_std_media_cfg_source);

    PX_Media_Cutting_When::Enum get_cutting_when() const override { return m_cutting_when; }

    void set_cutting_when(PX_Media_Cutting_When::Enum when) override { m_cutting_when = when; }

    void copy_properties_to(PX_Media_Cutting& new_one) const { new_one.set_cutting_when(m_cutting_when); }

private:
    PX_Media_Cutting_When::Enum m_cutting_when = PX_Media_Cutting_When::Cutting_When_0;
};

class PX_EXPORT PX_Std_Media_Folding : public PX_Named_Head<PX_Media_Folding, PX_Std_Media_Folding> {
public:
    static constexpr PX_Naming naming = PX_NAMING(L"PX_Std_Media_Folding", px_std_media_cfg_source);

    PX_Media_Folding_Type::Enum get_folding_type() const override { return m_folding_type; }
    PX_Media_Folding_When::Enum get_folding_when() const override { return m_folding_when; }

    void set_folding_type(PX_Media_Folding_Type::Enum type) override { m_folding_type = type; }
    void set_folding_when(PX_Media_Folding_When::Enum when) override { m_folding_when = when; }

    void copy_properties_to(PX_Media_Folding& new_one) const {
        new_one.set_folding_type(m_folding_type);
        new_one.set_folding_when(m_folding_when);
    }

private:
    PX_Media_Folding_Type::Enum m_folding_type = PX_Media_Folding_Type::Folding_Type_None;
    PX_Media_Folding_When::Enum m_folding_when = PX_Media_Folding_When::Folding_When_0;
};

class PX_EXPORT PX_Std_Media_Destination
    : public PX_Named_Head<PX_Media_Destination, PX_Std_Media_Destination> {
public:
    static constexpr PX_Naming naming =
        PX_NAMING_WITH(L"PX_Std_Media_Destination", px_std_media_cfg_source, PX_Code::Null_Argument, L"name");

    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Collating>> get_collating_list() const override {
        return m_collating_list;
    }
    PX_Smart_Pointer<PX_Media_Collating> get_collating(const wchar_t* name) const override {
        return px_find(m_collating_list, name);
    }
    const wchar_t* get_default_collating() const override { return m_default_collating; }
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Stapling>> get_stapling_list() const override {
        return m_stapling_list;
    }
    PX_Smart_Pointer<PX_Media_Stapling> get_stapling(const wchar_t* name) const override {
        return px_find(m_stapling_list, name);
    }
    const wchar_t* get_default_stapling() const override { return m_default_stapling; }
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Cutting>> get_cutting_list() const override {
        return m_cutting_list;
    }
    PX_Smart_Pointer<PX_Media_Cutting> get_cutting(const wchar_t* name) const override {
        return px_find(m_cutting_list, name);
    }
    const wchar_t* get_default_cutting() const override { return m_default_cutting; }
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Folding>> get_folding_list() const override {
        return m_folding_list;
    }
    PX_Smart_Pointer<PX_Media_Folding> get_folding(const wchar_t* name) const override {
        return px_find(m_folding_list, name);
    }
    const wchar_t* get_default_folding() const override { return m_default_folding; }

    void set_collating_list(const PX_Named_Object_List<PX_Media_Collating>* list) override;
    void set_default_collating(const wchar_t* name) override;
    void set_stapling_list(const PX_Named_Object_List<PX_Media_Stapling>* list) override;
    void set_default_stapling(const wchar_t* name) override;
    void set_cutting_list(const PX_Named_Object_List<PX_Media_Cutting>* list) override;
    void set_default_cutting(const wchar_t* name) override;
    void set_folding_list(const PX_Named_Object_List<PX_Media_Folding>* list) override;
    void set_default_folding(const wchar_t* name) override;

    void copy_properties_to(PX_Media_Destination& new_one) const;

private:
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Collating>> m_collating_list =
        px_new_list<PX_Media_Collating>();
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Stapling>> m_stapling_list =
        px_new_list<PX_Media_Stapling>();
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Cutting>> m_cutting_list = px_new_list<PX_Media_Cutting>();
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Folding>> m_folding_list = px_new_list<PX_Media_Folding>();
    PX_String m_default_collating;
    PX_String m_default_stapling;
    PX_String m_default_cutting;
    PX_String m_default_folding;
};
