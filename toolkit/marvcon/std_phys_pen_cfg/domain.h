#pragma once

#include "toolkit/marvcon/std_phys_pen_cfg/interface.h"
#include "toolkit/marvcon/std_plotter_def/interface.h"

// How the pens hang in the roots.
struct PX_Pen_Domain {
    using Capabilities = PX_PhysPen_Capabilities;
    using Configuration = PX_PhysPen_Configuration;
    using Validator = PX_PhysPen_Validator;

    static constexpr auto get_capabilities = &PX_Plotter_Capabilities::get_phys_pen_capabilities;
    static constexpr auto get_configuration = &PX_Plotter_Configuration::get_phys_pen_configuration;
    static constexpr auto get_changes = &PX_Plotter_Validator::get_phys_pen_cfg_changes;
    static constexpr auto set_changes = &PX_Plotter_Validator::set_phys_pen_cfg_changes;
    static constexpr const wchar_t* roots_missing = L"plotter_caps or plotter_cfg";
    static constexpr const wchar_t* domain_missing = L"pen_caps or pen_cfg";
    static constexpr const wchar_t* file_tag = px_std_phys_pen_cfg_source.file_tag;
};
