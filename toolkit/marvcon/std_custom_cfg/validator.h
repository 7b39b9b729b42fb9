#pragma once

#include "toolkit/host/object.h"
#include "toolkit/marvcon/std_custom_cfg/interface.h"

class PX_Plotter_Definition;

class PX_EXPORT PX_Std_Custom_Validator : public PX_Custom_Validator, public PX_Object {
public:
    // The definition owns the validator and outlives it.
    explicit PX_Std_Custom_Validator(PX_Plotter_Definition* plotter);

    void validate_all_custom(PX_Validation_Strategy::Enum strategy) override;
    void validate_named_custom(PX_Validation_Strategy::Enum strategy, const wchar_t* name) override;
    void set_all_custom_to_defaults() override;
    void set_named_custom_to_default(const wchar_t* name) override;

protected:
    PX_Plotter_Definition* m_plotter;
};
