#include "toolkit/marvcon/std_res_color_mem_cfg/configuration.h"

#include <new>

#include "toolkit/core/clamps.h"
#include "toolkit/core/clone.h"
#include "toolkit/core/fields.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/catalogue.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/settings.h"

using Datum = PX_ResColorMem_Config_Flags;

namespace {

constexpr const wchar_t* file_tag = px_std_res_color_mem_cfg_source.file_tag;

}  // namespace

PX_ResColorMem_Configuration::~PX_ResColorMem_Configuration() = default;

PX_Std_ResColorMem_Configuration::PX_Std_ResColorMem_Configuration()
    : m_settings(new PX_Std_ResColorMem_Settings) {
    if (!m_settings)
        throw std::bad_alloc();
}

void PX_Std_ResColorMem_Configuration::set_res_color_mem(const PX_ResColorMem* rcm) {
    constexpr const wchar_t* function = L"PX_Std_ResColorMem_Configuration::set_res_color_mem";
    px_store_choice(m_res_color_mem, rcm, function, L"rcm", file_tag);
    px_frame(function, [&] { m_settings->set_rescolormem_settings(rcm); });
    clear_flags_of(Datum::RCM_Cfg_Res_Color_Mem);
}

void PX_Std_ResColorMem_Configuration::set_resolution(const PX_Resolution* resolution) {
    constexpr const wchar_t* function = L"PX_Std_ResColorMem_Configuration::set_resolution";
    px_store_choice(m_resolution, resolution, function, L"resolution", file_tag);
    px_frame(function, [&] { m_settings->set_resolution_settings(resolution); });
    clear_flags_of(Datum::RCM_Cfg_Resolution);
}

void PX_Std_ResColorMem_Configuration::set_ISM_max_mem(long memory) {
    m_ISM_max_mem = px_not_negative(memory);
    clear_flags_of(Datum::RCM_Cfg_ISM_Max_Mem);
}

void PX_Std_ResColorMem_Configuration::set_OLE_max_mem(long memory) {
    m_OLE_max_mem = px_not_negative(memory);
    clear_flags_of(Datum::RCM_Cfg_OLE_Max_Mem);
}

void PX_Std_ResColorMem_Configuration::set_hardsoftno_dithering(PX_HardSoftNo_Dithering::Enum dithering) {
    m_hardsoftno_dithering = dithering;
    clear_flags_of(Datum::RCM_Cfg_HardSoftNo_Dithering);
}

void PX_Std_ResColorMem_Configuration::set_rast_color_vs_res_pref(long preference) {
    m_rast_color_vs_res_pref = preference;
    clear_flags_of(Datum::RCM_Cfg_Rast_Color_Vs_Res_Pref);
}

void PX_Std_ResColorMem_Configuration::set_installed_memory(long memory) {
    m_installed_memory = px_not_negative(memory);
    clear_flags_of(Datum::RCM_Cfg_Installed_Memory);
}

void PX_Std_ResColorMem_Configuration::set_rescolormem_settings(const PX_ResColorMem_Settings* settings) {
    px_store_clone(m_settings, settings, L"PX_Std_ResColorMem_Configuration::set_rescolormem_settings",
                   L"settings", file_tag);
}

void PX_Std_ResColorMem_Configuration::set_lines_overwrite(bool overwrite) {
    m_lines_overwrite = overwrite;
    clear_flags_of(Datum::RCM_Cfg_Lines_Overwrite);
}

PX_ResColorMem_Configuration* PX_Std_ResColorMem_Configuration::clone() const {
    return px_clone<PX_Std_ResColorMem_Configuration>(
        L"PX_Std_ResColorMem_Configuration::clone", file_tag, [this](auto& new_one) {
            // They carry the names alone: the numbers come with the snapshot.
            PX_Std_ResColorMem mode;
            PX_Std_Resolution resolution;
            mode.set_canonical_name(m_res_color_mem);
            resolution.set_canonical_name(m_resolution);
            new_one.set_res_color_mem(&mode);
            new_one.set_resolution(&resolution);
            new_one.set_ISM_max_mem(m_ISM_max_mem);
            new_one.set_OLE_max_mem(m_OLE_max_mem);
            new_one.set_hardsoftno_dithering(m_hardsoftno_dithering);
            new_one.set_rast_color_vs_res_pref(m_rast_color_vs_res_pref);
            new_one.set_installed_memory(m_installed_memory);
            new_one.set_rescolormem_settings(get_rescolormem_settings().get());
            new_one.set_icm_method(m_icm_method);
            new_one.set_icm_intent(m_icm_intent);
            new_one.set_dm_color(m_dm_color);
            copy_flags_to(new_one);
            // Last, so that its flags are down in the clone, whatever they were. That is meant.
            new_one.set_lines_overwrite(m_lines_overwrite);
        });
}
