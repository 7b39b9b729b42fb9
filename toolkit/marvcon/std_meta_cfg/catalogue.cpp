#include "toolkit/marvcon/std_meta_cfg/catalogue.h"

#include "toolkit/marvcon/std_meta_cfg/required_text.h"

PX_Family::~PX_Family() = default;
PX_Model::~PX_Model() = default;

void PX_Std_Family::supports_user_defined_model(bool supported) {
    m_supports_user_defined_model = supported;
}

bool PX_Std_Family::supports_user_defined_model() const {
    return m_supports_user_defined_model;
}

void PX_Std_Family::copy_properties_to(PX_Family& new_one) const {
    new_one.supports_user_defined_model(m_supports_user_defined_model);
}

const wchar_t* PX_Std_Model::get_user_defined_model_pathname() const {
    return m_user_defined_model_pathname;
}

const wchar_t* PX_Std_Model::get_user_defined_model_basename() const {
    return m_user_defined_model_basename;
}

const wchar_t* PX_Std_Model::get_win_device_name() const {
    return m_win_device_name;
}

const wchar_t* PX_Std_Model::get_win_driver_name() const {
    return m_win_driver_name;
}

const wchar_t* PX_Std_Model::get_short_net_name() const {
    return m_short_net_name;
}

const wchar_t* PX_Std_Model::get_friendly_net_name() const {
    return m_friendly_net_name;
}

long PX_Std_Model::get_dm_driver_version() const {
    return m_dm_driver_version;
}

bool PX_Std_Model::get_default_system_cfg() const {
    return m_default_system_cfg;
}

const wchar_t* PX_Std_Model::get_platform() const {
    return m_platform;
}

const wchar_t* PX_Std_Model::get_locale() const {
    return m_locale;
}

bool PX_Std_Model::get_file_only() const {
    return m_file_only;
}

void PX_Std_Model::set_user_defined_model_pathname(const wchar_t* text) {
    px_store_required_text(m_user_defined_model_pathname, text,
                           L"PX_Std_Model::set_user_defined_model_pathname", L"user_defined_model_pathname");
}

void PX_Std_Model::set_user_defined_model_basename(const wchar_t* text) {
    px_store_required_text(m_user_defined_model_basename, text,
                           L"PX_Std_Model::set_user_defined_model_basename", L"user_defined_model_basename");
}

void PX_Std_Model::set_win_device_name(const wchar_t* text) {
    px_store_required_text(m_win_device_name, text, L"PX_Std_Model::set_win_device_name", L"win_device_name");
}

void PX_Std_Model::set_win_driver_name(const wchar_t* text) {
    px_store_required_text(m_win_driver_name, text, L"PX_Std_Model::set_win_driver_name", L"win_driver_name");
}

void PX_Std_Model::set_short_net_name(const wchar_t* text) {
    px_store_required_text(m_short_net_name, text, L"PX_Std_Model::set_short_net_name", L"short_net_name");
}

void PX_Std_Model::set_friendly_net_name(const wchar_t* text) {
    px_store_required_text(m_friendly_net_name, text, L"PX_Std_Model::set_friendly_net_name",
                           L"friendly_net_name");
}

void PX_Std_Model::set_dm_driver_version(long version) {
    m_dm_driver_version = version;
}

void PX_Std_Model::set_default_system_cfg(bool on) {
    m_default_system_cfg = on;
}

void PX_Std_Model::set_platform(const wchar_t* text) {
    px_store_required_text(m_platform, text, L"PX_Std_Model::set_platform", L"platform");
}

void PX_Std_Model::set_locale(const wchar_t* text) {
    px_store_required_text(m_locale, text, L"PX_Std_Model::set_locale", L"locale");
}

void PX_Std_Model::set_file_only(bool on) {
    m_file_only = on;
}

void PX_Std_Model::copy_properties_to(PX_Model& new_one) const {
    new_one.set_user_defined_model_pathname(m_user_defined_model_pathname);
    new_one.set_user_defined_model_basename(m_user_defined_model_basename);
    new_one.set_win_device_name(m_win_device_name);
    new_one.set_win_driver_name(m_win_driver_name);
    new_one.set_short_net_name(m_short_net_name);
    new_one.set_friendly_net_name(m_friendly_net_name);
    new_one.set_dm_driver_version(m_dm_driver_version);
    new_one.set_default_system_cfg(m_default_system_cfg);
    new_one.set_platform(m_platform);
    new_one.set_locale(m_locale);
    new_one.set_file_only(m_file_only);
    new_one.set_abilities(get_abilities());
}
