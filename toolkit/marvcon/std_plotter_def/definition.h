#pragma once

#include "toolkit/host/object.h"
#include "toolkit/marvcon/std_plotter_def/interface.h"

// The standard definition makes the standard class factory and the standard plotter validator for itself. A
// driver with its own puts them in from its derived definition, after this constructor has run; it fills the
// two-way fields itself as well.
class PX_EXPORT PX_Std_Plotter_Definition : public PX_Plotter_Definition, public PX_Object {
public:
    // What the validator's constructor throws goes out as it is. No memory is MVNK_Memory_Exception 1101,
    // detail "m_class_factory" or "m_plotter_validator".
    explicit PX_Std_Plotter_Definition(PX_Smart_Pointer<PX_Error_Handler> handler);
    // A copy would share the validator, which points back here.
    PX_Std_Plotter_Definition(const PX_Std_Plotter_Definition&) = delete;
    PX_Std_Plotter_Definition& operator=(const PX_Std_Plotter_Definition&) = delete;
    ~PX_Std_Plotter_Definition() override;

    PX_Smart_Pointer<PX_Meta_Capabilities> get_meta_capabilities() const override;
    PX_Smart_Pointer<PX_Plotter_Capabilities> get_plotter_capabilities() const override;
    PX_Smart_Pointer<PX_Plotter_Capabilities> get_bidi_capabilities() const override;
    PX_Smart_Pointer<PX_Plotter_Configuration> get_plotter_configuration() const override;
    PX_Smart_Pointer<PX_Plotter_Configuration> get_bidi_configuration() const override;
    PX_Smart_Pointer<PX_Plotter_Validator> get_plotter_validator() const override;
    PX_Smart_Pointer<PX_Plotter_Class_Factory> get_class_factory() const override;
    PX_Smart_Pointer<PX_Shoebox> get_shoebox() const override;
    PX_Smart_Pointer<PX_Error_Handler> get_error_handler() const override;

    void set_meta_capabilities(PX_Meta_Capabilities* capabilities) override;
    void set_plotter_capabilities(PX_Plotter_Capabilities* capabilities) override;
    void set_plotter_configuration(PX_Plotter_Configuration* configuration) override;
    void set_shoebox(const PX_Shoebox* shoebox) override;

    bool CustomConfigure(HWND owner) override;
    bool Custom_Config_UI_Available() override;
    bool DevmodeConfigure(const DEVMODEW*, bool) override;
    bool LongplotUI() override;
    bool Longplot_UI_Available() override;
    bool get_driver_hints_helpfile(PX_String&, PX_String&) override;
    bool get_true_device_colors(PX_Smart_Pointer<PX_Palette> palette) const override;

protected:
    PX_Smart_Pointer<PX_Meta_Capabilities> m_meta_capabilities;
    PX_Smart_Pointer<PX_Plotter_Capabilities> m_plotter_capabilities;
    PX_Smart_Pointer<PX_Plotter_Capabilities> m_bidi_capabilities;
    PX_Smart_Pointer<PX_Plotter_Configuration> m_plotter_configuration;
    PX_Smart_Pointer<PX_Plotter_Configuration> m_bidi_configuration;
    PX_Smart_Pointer<PX_Plotter_Validator> m_plotter_validator;
    PX_Smart_Pointer<PX_Shoebox> m_shoebox;
    PX_Smart_Pointer<PX_Error_Handler> m_error_handler;
    PX_Smart_Pointer<PX_Plotter_Class_Factory> m_class_factory;
};
