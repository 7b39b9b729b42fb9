#pragma once

#include "toolkit/marvcon/std_custom_cfg/interface.h"
#include "toolkit/marvcon/std_plotter_def/interface.h"

// How custom data hang in the roots. There is no change word: a change is recorded by name.
struct PX_Custom_Domain {
    using Capabilities = PX_Custom_Capabilities;
    using Configuration = PX_Custom_Configurations;
    using Validator = PX_Custom_Validator;

    static constexpr auto get_capabilities = &PX_Plotter_Capabilities::get_custom_capabilities;
    static constexpr auto get_configuration = &PX_Plotter_Configuration::get_custom_configuration;
    static constexpr const wchar_t* roots_missing = L"plotter_caps or plotter_cfg";
    static constexpr const wchar_t* domain_missing = L"custom_caps or custom_cfg";
    static constexpr const wchar_t* file_tag = px_std_custom_cfg_source.file_tag;
};
