#pragma once

#include "toolkit/host/object.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/interface.h"

class PX_Plotter_Definition;

class PX_EXPORT PX_Std_ResColorMem_Validator : public PX_ResColorMem_Validator, public PX_Object {
public:
    // The definition owns the validator and outlives it.
    explicit PX_Std_ResColorMem_Validator(PX_Plotter_Definition* plotter);

    void validate_res_color_mem(PX_Validation_Strategy::Enum strategy) override;
    void validate_dithering_mode(PX_Validation_Strategy::Enum) override {}
    void validate_resolution(PX_Validation_Strategy::Enum strategy) override;
    void validate_ISM_max_mem(PX_Validation_Strategy::Enum strategy) override;
    void validate_OLE_max_mem(PX_Validation_Strategy::Enum strategy) override;
    void validate_HardSoftNo_Dithering(PX_Validation_Strategy::Enum strategy) override;
    void validate_RastColorVsResPref(PX_Validation_Strategy::Enum strategy) override;
    void validate_installed_memory(PX_Validation_Strategy::Enum strategy) override;
    void validate_mem_area(PX_Validation_Strategy::Enum) override {}
    void validate_icm_method(PX_Validation_Strategy::Enum strategy) override;
    void validate_icm_intent(PX_Validation_Strategy::Enum strategy) override;
    void validate_dm_color(PX_Validation_Strategy::Enum strategy) override;
    void validate_lines_overwrite(PX_Validation_Strategy::Enum strategy) override;
    void validate_color_vs_mono(PX_Validation_Strategy::Enum strategy) override;
    void validate_all_res_color_mem(PX_Validation_Strategy::Enum strategy) override;

    void set_res_color_mem_to_default() override;
    void set_dithering_mode_to_default() override {}
    void set_resolution_to_default() override;
    void set_ISM_max_mem_to_default() override;
    void set_OLE_max_mem_to_default() override;
    void set_HardSoftNo_Dithering_to_default() override;
    void set_RastColorVsResPref_to_default() override;
    void set_installed_memory_to_default() override;
    void set_mem_area_to_default() override {}
    void set_icm_method_to_default() override;
    void set_icm_intent_to_default() override;
    void set_dm_color_to_default() override;
    void set_lines_overwrite_to_default() override;
    void set_color_vs_mono_to_default() override;
    void set_all_res_color_mem_to_defaults() override;

protected:
    void set_res_color_mem_to_nearest() override;
    void set_dithering_mode_to_nearest() override {}
    void set_resolution_to_nearest() override;
    void set_ISM_max_mem_to_nearest() override {}
    void set_OLE_max_mem_to_nearest() override {}
    void set_HardSoftNo_Dithering_to_nearest() override {}
    void set_RastColorVsResPref_to_nearest() override;
    void set_installed_memory_to_nearest() override {}
    void set_mem_area_to_nearest() override {}

    PX_Plotter_Definition* m_plotter;
};
