#pragma once

#include "toolkit/core/flag_accessors.h"
#include "toolkit/core/named_object.h"
#include "toolkit/marvcon/std_meta_cfg/interface.h"

class PX_EXPORT PX_Std_Caps_Name_List_Object
    : public PX_Named_Head<PX_Caps_Name_List_Object, PX_Std_Caps_Name_List_Object> {
public:
    static constexpr PX_Naming naming = PX_NAMING(L"PX_Std_Caps_Name_List_Object", px_std_meta_cfg_source);

    void copy_properties_to(PX_Caps_Name_List_Object& /*new_one*/) const {}
};

class PX_EXPORT PX_Std_Family : public PX_Named_Pair<PX_Family, PX_Std_Family> {
public:
    static constexpr PX_Naming naming =
        PX_NAMING_WITH(L"PX_Std_Family", px_std_meta_cfg_source, 901, L"canonical_name");

    void supports_user_defined_model(bool supported) override;
    bool supports_user_defined_model() const override;
    void copy_properties_to(PX_Family& new_one) const;

private:
    bool m_supports_user_defined_model = false;
};

class PX_EXPORT PX_Std_Model
    : public PX_Named_Pair<PX_Ability_Accessors<PX_Model, PX_Model_Ability>, PX_Std_Model> {
public:
    static constexpr PX_Naming naming =
        PX_NAMING_WITH(L"PX_Std_Model", px_std_meta_cfg_source, 902, L"canonical_name");

    const wchar_t* get_user_defined_model_pathname() const override;
    const wchar_t* get_user_defined_model_basename() const override;
    const wchar_t* get_win_device_name() const override;
    const wchar_t* get_win_driver_name() const override;
    const wchar_t* get_short_net_name() const override;
    const wchar_t* get_friendly_net_name() const override;
    long get_dm_driver_version() const override;
    bool get_default_system_cfg() const override;
    const wchar_t* get_platform() const override;
    const wchar_t* get_locale() const override;
    bool get_file_only() const override;

    void set_user_defined_model_pathname(const wchar_t* text) override;
    void set_user_defined_model_basename(const wchar_t* text) override;
    void set_win_device_name(const wchar_t* text) override;
    void set_win_driver_name(const wchar_t* text) override;
    void set_short_net_name(const wchar_t* text) override;
    void set_friendly_net_name(const wchar_t* text) override;
    void set_dm_driver_version(long version) override;
    void set_default_system_cfg(bool on) override;
    void set_platform(const wchar_t* text) override;
    void set_locale(const wchar_t* text) override;
    void set_file_only(bool on) override;

    void copy_properties_to(PX_Model& new_one) const;

private:
    PX_String m_user_defined_model_pathname;
    PX_String m_user_defined_model_basename;
    PX_String m_win_device_name;
    PX_String m_win_driver_name;
    PX_String m_short_net_name;
    PX_String m_friendly_net_name;
    long m_dm_driver_version = 0;
    bool m_default_system_cfg = false;
    PX_String m_platform;
    PX_String m_locale;
    bool m_file_only = false;
};
