#pragma once

#include "toolkit/host/object.h"
#include "toolkit/host/string.h"
#include "toolkit/marvcon/std_meta_cfg/interface.h"

class PX_EXPORT PX_Std_Meta_Capabilities : public PX_Meta_Capabilities, public PX_Object {
public:
    // No memory for the family or the model is std::bad_alloc.
    PX_Std_Meta_Capabilities();
    // A copy would share the family and the model: clone is the operation that copies.
    PX_Std_Meta_Capabilities(const PX_Std_Meta_Capabilities&) = delete;
    PX_Std_Meta_Capabilities& operator=(const PX_Std_Meta_Capabilities&) = delete;

    const wchar_t* get_driver_pathname() const override;
    const wchar_t* get_driver_version() const override;
    const wchar_t* get_driver_description() const override;
    long get_toolkit_version() const override;
    PX_Smart_Pointer<PX_Family> get_family() const override;
    PX_Smart_Pointer<PX_Model> get_model() const override;
    PX_Driver_Type::Enum get_driver_type() const override;
    bool get_show_custom_first() const override;
    bool get_truetype_as_text() const override;

    void set_driver_pathname(const wchar_t* text) override;
    void set_driver_version(const wchar_t* text) override;
    void set_driver_description(const wchar_t* text) override;
    void set_toolkit_version(long version) override;
    void set_family(const PX_Family* family) override;
    void set_model(const PX_Model* model) override;
    void set_driver_type(PX_Driver_Type::Enum type) override;
    void set_show_custom_first(bool first) override;
    void set_truetype_as_text(bool as_text) override;

    PX_Meta_Capabilities* clone() const override;

private:
    PX_String m_driver_pathname;
    PX_String m_driver_version;
    PX_String m_driver_description;
    long m_toolkit_version = 1;
    PX_Smart_Pointer<PX_Family> m_family;
    PX_Smart_Pointer<PX_Model> m_model;
    PX_Driver_Type::Enum m_driver_type = PX_Driver_Type::Driver_Type_Undefined;
    bool m_show_custom_first = false;
    bool m_truetype_as_text = true;
};
