#pragma once

#include "toolkit/marvcon/std_io_cfg/interface.h"
#include "toolkit/marvcon/std_plotter_def/interface.h"

// How the output hangs in the roots.
struct PX_IO_Domain {
    using Capabilities = PX_Plotter_IO_Capabilities;
    using Configuration = PX_Plotter_IO_Configuration;
    using Validator = PX_Plotter_IO_Validator;

    static constexpr auto get_capabilities = &PX_Plotter_Capabilities::get_io_capabilities;
    static constexpr auto get_configuration = &PX_Plotter_Configuration::get_io_configuration;
    static constexpr auto get_changes = &PX_Plotter_Validator::get_io_cfg_changes;
    static constexpr auto set_changes = &PX_Plotter_Validator::set_io_cfg_changes;
    static constexpr const wchar_t* roots_missing = L"plotter_caps or plotter_cfg";
    static constexpr const wchar_t* domain_missing = L"io caps or io cfg";
    static constexpr const wchar_t* file_tag = px_std_io_cfg_source.file_tag;
};
