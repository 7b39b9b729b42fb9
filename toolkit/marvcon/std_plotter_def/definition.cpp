#include "toolkit/marvcon/std_plotter_def/definition.h"

#include "toolkit/core/fields.h"
#include "toolkit/marvcon/std_meta_cfg/interface.h"
#include "toolkit/marvcon/std_plotter_def/class_factory.h"
#include "toolkit/marvcon/std_plval/validator.h"

namespace {
constexpr const wchar_t* constructor = L"PX_Std_Plotter_Definition::PX_Std_Plotter_Definition";
}

PX_Plotter_Definition::~PX_Plotter_Definition() = default;

PX_Std_Plotter_Definition::PX_Std_Plotter_Definition(PX_Smart_Pointer<PX_Error_Handler> handler)
    : m_error_handler(std::move(handler)) {
    m_class_factory = new PX_Std_Plotter_Class_Factory;
    px_require_made(m_class_factory, constructor, L"m_class_factory", px_std_plotter_def_source.file_tag);
    // Asks this definition for the factory, which is why that comes first.
    m_plotter_validator = new PX_Std_Plotter_Validator(this);
    px_require_made(m_plotter_validator, constructor, L"m_plotter_validator",
                    px_std_plotter_def_source.file_tag);
}

PX_Std_Plotter_Definition::~PX_Std_Plotter_Definition() = default;

PX_Smart_Pointer<PX_Meta_Capabilities> PX_Std_Plotter_Definition::get_meta_capabilities() const {
    return m_meta_capabilities;
}

PX_Smart_Pointer<PX_Plotter_Capabilities> PX_Std_Plotter_Definition::get_plotter_capabilities() const {
    return m_plotter_capabilities;
}

PX_Smart_Pointer<PX_Plotter_Capabilities> PX_Std_Plotter_Definition::get_bidi_capabilities() const {
    return m_bidi_capabilities;
}

PX_Smart_Pointer<PX_Plotter_Configuration> PX_Std_Plotter_Definition::get_plotter_configuration() const {
    return m_plotter_configuration;
}

PX_Smart_Pointer<PX_Plotter_Configuration> PX_Std_Plotter_Definition::get_bidi_configuration() const {
    return m_bidi_configuration;
}

PX_Smart_Pointer<PX_Plotter_Validator> PX_Std_Plotter_Definition::get_plotter_validator() const {
    return m_plotter_validator;
}

PX_Smart_Pointer<PX_Plotter_Class_Factory> PX_Std_Plotter_Definition::get_class_factory() const {
    return m_class_factory;
}

PX_Smart_Pointer<PX_Shoebox> PX_Std_Plotter_Definition::get_shoebox() const {
    return m_shoebox;
}

PX_Smart_Pointer<PX_Error_Handler> PX_Std_Plotter_Definition::get_error_handler() const {
    return m_error_handler;
}

void PX_Std_Plotter_Definition::set_meta_capabilities(PX_Meta_Capabilities* capabilities) {
    m_meta_capabilities = PX_Smart_Pointer<PX_Meta_Capabilities>(capabilities);
}

void PX_Std_Plotter_Definition::set_plotter_capabilities(PX_Plotter_Capabilities* capabilities) {
    m_plotter_capabilities = PX_Smart_Pointer<PX_Plotter_Capabilities>(capabilities);
}

void PX_Std_Plotter_Definition::set_plotter_configuration(PX_Plotter_Configuration* configuration) {
    m_plotter_configuration = PX_Smart_Pointer<PX_Plotter_Configuration>(configuration);
}

void PX_Std_Plotter_Definition::set_shoebox(const PX_Shoebox* shoebox) {
    px_store_clone(m_shoebox, shoebox, L"PX_Std_Plotter_Definition::set_shoebox", L"shoebox",
                   px_std_plotter_def_source.file_tag);
}

bool PX_Std_Plotter_Definition::CustomConfigure(HWND /*owner*/) {
    return false;
}

bool PX_Std_Plotter_Definition::Custom_Config_UI_Available() {
    return false;
}

bool PX_Std_Plotter_Definition::DevmodeConfigure(const DEVMODEW* /*mode*/, bool /*apply*/) {
    return false;
}

bool PX_Std_Plotter_Definition::LongplotUI() {
    return false;
}

bool PX_Std_Plotter_Definition::Longplot_UI_Available() {
    return false;
}

bool PX_Std_Plotter_Definition::get_driver_hints_helpfile(PX_String& /*file*/, PX_String& /*topic*/) {
    return false;
}

bool PX_Std_Plotter_Definition::get_true_device_colors(PX_Smart_Pointer<PX_Palette> /*palette*/) const {
    return false;
}
