#pragma once

#include "toolkit/marvcon/std_plotter_def/interface.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/interface.h"

// How resolution, colour and memory hang in the roots.
struct PX_RCM_Domain {
    using Capabilities = PX_ResColorMem_Capabilities;
    using Configuration = PX_ResColorMem_Configuration;
    using Validator = PX_ResColorMem_Validator;

    static constexpr auto get_capabilities = &PX_Plotter_Capabilities::get_res_color_mem_capabilities;
    static constexpr auto get_configuration = &PX_Plotter_Configuration::get_res_color_mem_configuration;
    static constexpr auto get_changes = &PX_Plotter_Validator::get_res_color_mem_cfg_changes;
    static constexpr auto set_changes = &PX_Plotter_Validator::set_res_color_mem_cfg_changes;
    static constexpr const wchar_t* roots_missing = L"plotter_caps or plotter_config";
    static constexpr const wchar_t* domain_missing = L"rcm_caps or rcm_config";
    static constexpr const wchar_t* file_tag = px_std_res_color_mem_cfg_source.file_tag;
};
