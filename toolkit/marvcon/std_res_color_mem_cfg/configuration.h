#pragma once

#include "toolkit/core/flag_accessors.h"
#include "toolkit/host/string.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/interface.h"

class PX_EXPORT PX_Std_ResColorMem_Configuration
    : public PX_Configuration_Accessors<PX_ResColorMem_Configuration, PX_ResColorMem_Default,
                                        PX_ResColorMem_Validated>,
      public PX_Object {
public:
    // No memory for the settings is std::bad_alloc.
    PX_Std_ResColorMem_Configuration();
    // A copy would share the settings: clone is the operation that copies.
    PX_Std_ResColorMem_Configuration(const PX_Std_ResColorMem_Configuration&) = delete;
    PX_Std_ResColorMem_Configuration& operator=(const PX_Std_ResColorMem_Configuration&) = delete;

    const wchar_t* get_res_color_mem() const override { return m_res_color_mem; }
    const wchar_t* get_resolution() const override { return m_resolution; }
    long get_ISM_max_mem() const override { return m_ISM_max_mem; }
    long get_OLE_max_mem() const override { return m_OLE_max_mem; }
    PX_HardSoftNo_Dithering::Enum get_hardsoftno_dithering() const override { return m_hardsoftno_dithering; }
    long get_rast_color_vs_res_pref() const override { return m_rast_color_vs_res_pref; }
    long get_installed_memory() const override { return m_installed_memory; }
    PX_Smart_Pointer<PX_ResColorMem_Settings> get_rescolormem_settings() const override { return m_settings; }
    long get_icm_method() const override { return m_icm_method; }
    long get_icm_intent() const override { return m_icm_intent; }
    long get_dm_color() const override { return m_dm_color; }
    bool get_lines_overwrite() const override { return m_lines_overwrite; }

    void set_res_color_mem(const PX_ResColorMem* rcm) override;
    void set_resolution(const PX_Resolution* resolution) override;
    void set_ISM_max_mem(long memory) override;
    void set_OLE_max_mem(long memory) override;
    void set_hardsoftno_dithering(PX_HardSoftNo_Dithering::Enum dithering) override;
    void set_rast_color_vs_res_pref(long preference) override;
    void set_installed_memory(long memory) override;
    void set_rescolormem_settings(const PX_ResColorMem_Settings* settings) override;
    void set_icm_method(long method) override { m_icm_method = method; }
    void set_icm_intent(long intent) override { m_icm_intent = intent; }
    void set_dm_color(long color) override { m_dm_color = color; }
    void set_lines_overwrite(bool overwrite) override;

    PX_ResColorMem_Configuration* clone() const override;

private:
    PX_String m_res_color_mem;
    PX_String m_resolution;
    long m_ISM_max_mem = 0;
    long m_OLE_max_mem = 0;
    PX_HardSoftNo_Dithering::Enum m_hardsoftno_dithering = PX_HardSoftNo_Dithering::No_Dithering;
    long m_rast_color_vs_res_pref = 0;
    long m_installed_memory = 0;
    PX_Smart_Pointer<PX_ResColorMem_Settings> m_settings;
    long m_icm_method = 1;
    long m_icm_intent = 1;
    long m_dm_color = 1;
    bool m_lines_overwrite = true;
};
