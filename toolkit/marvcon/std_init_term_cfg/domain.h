#pragma once

#include "toolkit/marvcon/std_init_term_cfg/interface.h"
#include "toolkit/marvcon/std_plotter_def/interface.h"

// How the init and term strings hang in the roots.
struct PX_InitTerm_Domain {
    using Capabilities = PX_InitTerm_Capabilities;
    using Configuration = PX_InitTerm_Configuration;
    using Validator = PX_InitTerm_Validator;

    static constexpr auto get_capabilities = &PX_Plotter_Capabilities::get_init_term_capabilities;
    static constexpr auto get_configuration = &PX_Plotter_Configuration::get_init_term_configuration;
    static constexpr const wchar_t* roots_missing = L"plotter_caps or plotter_cfg";
    static constexpr const wchar_t* domain_missing = L"initterm_caps or initterm_cfg";
    static constexpr const wchar_t* file_tag = px_std_init_term_cfg_source.file_tag;
};
