#pragma once

#include "toolkit/host/object.h"
#include "toolkit/marvcon/std_phys_pen_cfg/interface.h"

class PX_Plotter_Definition;

class PX_EXPORT PX_Std_PhysPen_Validator : public PX_PhysPen_Validator, public PX_Object {
public:
    // The definition owns the validator and outlives it.
    explicit PX_Std_PhysPen_Validator(PX_Plotter_Definition* plotter);

    void validate_pen_list(PX_Validation_Strategy::Enum strategy) override;
    void validate_num_phys_pens(PX_Validation_Strategy::Enum strategy) override;
    void validate_pen_changing(PX_Validation_Strategy::Enum strategy) override;
    void validate_area_fill_correction(PX_Validation_Strategy::Enum strategy) override;
    void validate_pen_optimization(PX_Validation_Strategy::Enum strategy) override;
    void validate_all_pen(PX_Validation_Strategy::Enum strategy) override;

    void set_pen_list_to_default() override;
    void set_num_phys_pens_to_default() override;
    void set_pen_changing_to_default() override;
    void set_area_fill_correction_to_default() override;
    void set_pen_optimization_to_default() override;
    void set_all_physpen_to_defaults() override;

protected:
    void set_num_phys_pens_to_nearest() override;
    void set_pen_optimization_to_nearest() override;
    bool synchronize_pen_list(PX_Smart_Pointer<PX_PhysPen_Capabilities> capabilities,
                              PX_Smart_Pointer<PX_PhysPen_Configuration> configuration) override;

    PX_Plotter_Definition* m_plotter;
};
