#include "toolkit/marvcon/std_meta_cfg/capabilities.h"

#include <new>

#include "toolkit/core/clone.h"
#include "toolkit/core/fields.h"
#include "toolkit/marvcon/std_meta_cfg/catalogue.h"
#include "toolkit/marvcon/std_meta_cfg/required_text.h"

PX_Meta_Capabilities::~PX_Meta_Capabilities() = default;

PX_Std_Meta_Capabilities::PX_Std_Meta_Capabilities()
    : m_family(new PX_Std_Family), m_model(new PX_Std_Model) {
    if (!m_family || !m_model)
        throw std::bad_alloc();
}

const wchar_t* PX_Std_Meta_Capabilities::get_driver_pathname() const {
    return m_driver_pathname;
}

const wchar_t* PX_Std_Meta_Capabilities::get_driver_version() const {
    return m_driver_version;
}

const wchar_t* PX_Std_Meta_Capabilities::get_driver_description() const {
    return m_driver_description;
}

long PX_Std_Meta_Capabilities::get_toolkit_version() const {
    return m_toolkit_version;
}

PX_Smart_Pointer<PX_Family> PX_Std_Meta_Capabilities::get_family() const {
    return m_family;
}

PX_Smart_Pointer<PX_Model> PX_Std_Meta_Capabilities::get_model() const {
    return m_model;
}

PX_Driver_Type::Enum PX_Std_Meta_Capabilities::get_driver_type() const {
    return m_driver_type;
}

bool PX_Std_Meta_Capabilities::get_show_custom_first() const {
    return m_show_custom_first;
}

bool PX_Std_Meta_Capabilities::get_truetype_as_text() const {
    return m_truetype_as_text;
}

void PX_Std_Meta_Capabilities::set_driver_pathname(const wchar_t* text) {
    px_store_required_text(m_driver_pathname, text, L"PX_Std_Meta_Capabilities::set_driver_pathname",
                           L"driver_pathname");
}

void PX_Std_Meta_Capabilities::set_driver_version(const wchar_t* text) {
    px_store_required_text(m_driver_version, text, L"PX_Std_Meta_Capabilities::set_driver_version",
                           L"driver_version");
}

void PX_Std_Meta_Capabilities::set_driver_description(const wchar_t* text) {
    px_store_required_text(m_driver_description, text, L"PX_Std_Meta_Capabilities::set_driver_description",
                           L"desc");
}

void PX_Std_Meta_Capabilities::set_toolkit_version(long version) {
    m_toolkit_version = version;
}

void PX_Std_Meta_Capabilities::set_family(const PX_Family* family) {
    constexpr const wchar_t* function = L"PX_Std_Meta_Capabilities::set_family";
    px_require_made(family, function, L"family", px_std_meta_cfg_source.file_tag);
    px_store_clone(m_family, family, function, L"family", px_std_meta_cfg_source.file_tag);
}

void PX_Std_Meta_Capabilities::set_model(const PX_Model* model) {
    constexpr const wchar_t* function = L"PX_Std_Meta_Capabilities::set_model";
    px_require_made(model, function, L"new_model", px_std_meta_cfg_source.file_tag);
    px_store_clone(m_model, model, function, L"new_model", px_std_meta_cfg_source.file_tag);
}

void PX_Std_Meta_Capabilities::set_driver_type(PX_Driver_Type::Enum type) {
    m_driver_type = type;
}

void PX_Std_Meta_Capabilities::set_show_custom_first(bool first) {
    m_show_custom_first = first;
}

void PX_Std_Meta_Capabilities::set_truetype_as_text(bool as_text) {
    m_truetype_as_text = as_text;
}

PX_Meta_Capabilities* PX_Std_Meta_Capabilities::clone() const {
    return px_clone<PX_Std_Meta_Capabilities>(L"PX_Std_Meta_Capabilities::clone",
                                              px_std_meta_cfg_source.file_tag, [this](auto& new_one) {
                                                  new_one.set_driver_pathname(m_driver_pathname);
                                                  new_one.set_driver_version(m_driver_version);
                                                  new_one.set_driver_description(m_driver_description);
                                                  new_one.set_toolkit_version(m_toolkit_version);
                                                  new_one.set_family(m_family.get());
                                                  new_one.set_model(m_model.get());
                                                  new_one.set_driver_type(m_driver_type);
                                                  new_one.set_show_custom_first(m_show_custom_first);
                                                  new_one.set_truetype_as_text(m_truetype_as_text);
                                              });
}
