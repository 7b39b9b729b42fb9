#pragma once

#include "toolkit/core/flag_accessors.h"
#include "toolkit/host/string.h"
#include "toolkit/marvcon/std_media_cfg/interface.h"

// A new one is valid only after a validator has run over it.
class PX_EXPORT PX_Std_Media_Configuration
    : public PX_Configuration_Accessors<PX_Media_Configuration, PX_Media_Default, PX_Media_Validated>,
      public PX_Object {
public:
    // No memory for the settings is std::bad_alloc.
    PX_Std_Media_Configuration();
    // A copy would share the settings and the bounds: clone is the operation that copies.
    PX_Std_Media_Configuration(const PX_Std_Media_Configuration&) = delete;
    PX_Std_Media_Configuration& operator=(const PX_Std_Media_Configuration&) = delete;

    PX_Media_Selection_Method::Enum get_media_selection_method() const override { return m_selection_method; }
    const wchar_t* get_media_type() const override { return m_type; }
    const wchar_t* get_media_source() const override { return m_source; }
    const wchar_t* get_media_source_entry() const override { return m_source_entry; }
    const wchar_t* get_media_size() const override { return m_size; }
    const wchar_t* get_media_destination() const override { return m_destination; }
    const wchar_t* get_media_collating() const override { return m_collating; }
    const wchar_t* get_media_stapling() const override { return m_stapling; }
    const wchar_t* get_media_cutting() const override { return m_cutting; }
    const wchar_t* get_media_folding() const override { return m_folding; }
    PX_Smart_Pointer<PX_Media_Settings> get_media_settings() const override { return m_settings; }
    long get_number_of_copies() const override { return m_number_of_copies; }
    PX_Duplexing_Mode::Enum get_duplexing_mode() const override { return m_duplexing_mode; }
    PX_Smart_Pointer<PX_Float_Rectangle> get_margins() const override { return m_margins; }
    double get_longplot_reduction() const override { return m_longplot_reduction; }
    long get_dm_scale() const override { return m_dm_scale; }
    long get_dm_orientation() const override { return m_dm_orientation; }
    PX_Smart_Pointer<PX_Float_Rectangle> get_actual_printable_bounds() const override {
        return m_actual_printable_bounds;
    }

    void set_media_selection_method(PX_Media_Selection_Method::Enum method) override;
    void set_media_type(const PX_Media_Type* type) override;
    void set_media_source(const PX_Media_Source* source) override;
    void set_media_source_entry(const PX_Media_Source_Entry* entry) override;
    void set_media_size(const PX_Media_Size* size, const PX_Media_Description* description) override;
    void set_media_destination(const PX_Media_Destination* destination) override;
    void set_media_collating(const PX_Media_Collating* collating) override;
    void set_media_stapling(const PX_Media_Stapling* stapling) override;
    void set_media_cutting(const PX_Media_Cutting* cutting) override;
    void set_media_folding(const PX_Media_Folding* folding) override;
    void set_media_settings(const PX_Media_Settings* settings) override;
    void set_number_of_copies(long copies) override;
    void set_duplexing_mode(PX_Duplexing_Mode::Enum mode) override;
    void set_margins(const PX_Float_Rectangle* margins) override;
    void set_longplot_reduction(double factor) override;
    void set_dm_scale(long percent) override;
    void set_dm_orientation(long orientation) override;
    void set_actual_printable_bounds(const PX_Float_Rectangle* bounds) override;

    PX_Media_Configuration* clone() const override;

private:
    using Datum = PX_Media_Config_Flags;
    struct Choice;

    template <class Object>
    void choose(PX_String& name, const Object* object, void (PX_Media_Settings::*set_settings)(const Object*),
                Datum::Enum datum, const Choice& choice);
    template <class Object>
    void choose_finishing(PX_String& name, const Object* object,
                          void (PX_Media_Settings::*set_settings)(const Object*), Datum::Enum datum,
                          const Choice& choice);
    void lay_printable_bounds();

    PX_Media_Selection_Method::Enum m_selection_method = PX_Media_Selection_Method::Media_Selection_None;
    PX_String m_type;
    PX_String m_source;
    PX_String m_source_entry;
    PX_String m_size;
    PX_String m_destination;
    PX_String m_collating;
    PX_String m_stapling;
    PX_String m_cutting;
    PX_String m_folding;
    PX_Smart_Pointer<PX_Media_Settings> m_settings;
    long m_number_of_copies = 1;
    PX_Duplexing_Mode::Enum m_duplexing_mode = PX_Duplexing_Mode::Duplexing_None;
    PX_Smart_Pointer<PX_Float_Rectangle> m_margins{new PX_Float_Rectangle};
    double m_longplot_reduction = 1.0;
    long m_dm_scale = 100;
    long m_dm_orientation = PX_Dm_Orientation::Dm_Orientation_Upright;
    PX_Smart_Pointer<PX_Float_Rectangle> m_actual_printable_bounds{new PX_Float_Rectangle};
};
