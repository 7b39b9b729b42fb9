#pragma once

#include "toolkit/core/fields.h"
#include "toolkit/core/flag_accessors.h"
#include "toolkit/marvcon/std_media_cfg/interface.h"

class PX_EXPORT PX_Std_Media_Capabilities
    : public PX_Owner_Accessors<
          PX_State_Accessors<PX_Ability_Accessors<PX_Media_Capabilities, PX_Media_Abilities>,
                             PX_Media_Caps_State>,
          PX_Media_UI_Owner>,
      public PX_Object {
public:
    PX_Std_Media_Capabilities() = default;
    // A copy would share the lists: clone is the operation that copies.
    PX_Std_Media_Capabilities(const PX_Std_Media_Capabilities&) = delete;
    PX_Std_Media_Capabilities& operator=(const PX_Std_Media_Capabilities&) = delete;

    long get_media_selection_methods() const override { return m_media_selection_methods; }
    PX_Media_Selection_Method::Enum get_default_media_selection_method() const override {
        return m_default_media_selection_method;
    }
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Source>> get_media_source_list() const override {
        return m_media_source_list;
    }
    PX_Smart_Pointer<PX_Media_Source> get_media_source(const wchar_t* name) const override {
        return px_find(m_media_source_list, name);
    }
    const wchar_t* get_default_media_source() const override { return m_default_media_source; }
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Size>> get_media_size_list() const override {
        return m_media_size_list;
    }
    PX_Smart_Pointer<PX_Media_Size> get_media_size(const wchar_t* name) const override {
        return px_find(m_media_size_list, name);
    }
    const wchar_t* get_default_media_size() const override { return m_default_media_size; }
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Destination>> get_media_destination_list() const override {
        return m_media_destination_list;
    }
    PX_Smart_Pointer<PX_Media_Destination> get_media_destination(const wchar_t* name) const override {
        return px_find(m_media_destination_list, name);
    }
    const wchar_t* get_default_media_destination() const override { return m_default_media_destination; }
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Description>> get_media_description_list() const override {
        return m_media_description_list;
    }
    PX_Smart_Pointer<PX_Media_Description> get_media_description(const wchar_t* name) const override {
        return px_find(m_media_description_list, name);
    }
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Type>> get_media_type_list() const override {
        return m_media_type_list;
    }
    PX_Smart_Pointer<PX_Media_Type> get_media_type(const wchar_t* name) const override {
        return px_find(m_media_type_list, name);
    }
    const wchar_t* get_default_media_type() const override { return m_default_media_type; }
    long get_duplexing_modes() const override { return m_duplexing_modes; }
    PX_Duplexing_Mode::Enum get_default_duplexing_mode() const override { return m_default_duplexing_mode; }
    long get_max_number_of_copies() const override { return m_max_number_of_copies; }
    double get_default_longplot_reduction() const override { return m_default_longplot_reduction; }
    long get_default_dm_scale() const override { return m_default_dm_scale; }
    PX_Smart_Pointer<PX_Float_XY> get_media_size_max() const override { return m_media_size_max; }
    float get_media_roll_max_height() const override { return m_media_roll_max_height; }

    void set_media_selection_methods(long methods) override { m_media_selection_methods = methods; }
    void set_default_media_selection_method(PX_Media_Selection_Method::Enum method) override {
        m_default_media_selection_method = method;
    }
    void set_media_source_list(const PX_Named_Object_List<PX_Media_Source>* list) override;
    void set_default_media_source(const wchar_t* name) override;
    void set_media_size_list(const PX_Named_Object_List<PX_Media_Size>* list) override;
    void set_default_media_size(const wchar_t* name) override;
    void set_media_destination_list(const PX_Named_Object_List<PX_Media_Destination>* list) override;
    void set_default_media_destination(const wchar_t* name) override;
    void set_media_description_list(const PX_Named_Object_List<PX_Media_Description>* list) override;
    void set_media_type_list(const PX_Named_Object_List<PX_Media_Type>* list) override;
    void set_default_media_type(const wchar_t* name) override;
    void set_duplexing_modes(long modes) override { m_duplexing_modes = modes; }
    void set_default_duplexing_mode(PX_Duplexing_Mode::Enum mode) override {
        m_default_duplexing_mode = mode;
    }
    void set_max_number_of_copies(long copies) override { m_max_number_of_copies = copies; }
    void set_default_longplot_reduction(double factor) override { m_default_longplot_reduction = factor; }
    void set_default_dm_scale(long percent) override { m_default_dm_scale = percent; }
    void set_media_size_max(const PX_Float_XY* sheet) override;
    void set_media_roll_max_height(float height) override { m_media_roll_max_height = height; }

    void filter_media_size_list_by_groups(
        PX_Smart_Pointer<PX_Named_Object_List<PX_Caps_Name_List_Object>> list,
        unsigned long groups) const override;
    void filter_media_size_list_by_groups(PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Size>> list,
                                          unsigned long groups) const override;
    PX_Media_Capabilities* clone() const override;

private:
    long m_media_selection_methods = 1;
    PX_Media_Selection_Method::Enum m_default_media_selection_method =
        PX_Media_Selection_Method::Media_Selection_By_Source;
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Source>> m_media_source_list =
        px_new_list<PX_Media_Source>();
    PX_String m_default_media_source;
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Size>> m_media_size_list = px_new_list<PX_Media_Size>();
    PX_String m_default_media_size;
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Destination>> m_media_destination_list =
        px_new_list<PX_Media_Destination>();
    PX_String m_default_media_destination;
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Description>> m_media_description_list =
        px_new_list<PX_Media_Description>();
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Type>> m_media_type_list = px_new_list<PX_Media_Type>();
    PX_String m_default_media_type;
    long m_duplexing_modes = 1;
    PX_Duplexing_Mode::Enum m_default_duplexing_mode = PX_Duplexing_Mode::Duplexing_1;
    long m_max_number_of_copies = 1;
    double m_default_longplot_reduction = 1.0;
    long m_default_dm_scale = 100;
    PX_Smart_Pointer<PX_Float_XY> m_media_size_max{new PX_Float_XY};
    float m_media_roll_max_height = 0;
};
