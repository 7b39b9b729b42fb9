#pragma once

#include "toolkit/marvcon/std_media_cfg/interface.h"
#include "toolkit/marvcon/std_plotter_def/interface.h"

// How media hang in the roots.
struct PX_Media_Domain {
    using Capabilities = PX_Media_Capabilities;
    using Configuration = PX_Media_Configuration;
    using Validator = PX_Media_Validator;

    static constexpr auto get_capabilities = &PX_Plotter_Capabilities::get_media_capabilities;
    static constexpr auto get_configuration = &PX_Plotter_Configuration::get_media_configuration;
    static constexpr auto get_changes = &PX_Plotter_Validator::get_media_cfg_changes;
    static constexpr auto set_changes = &PX_Plotter_Validator::set_media_cfg_changes;
    static constexpr const wchar_t* roots_missing = L"plotter_caps or plotter_cfg";
    static constexpr const wchar_t* domain_missing = L"media_caps or media_cfg";
    static constexpr const wchar_t* file_tag = px_std_media_cfg_source.file_tag;
};
