#pragma once

#include "toolkit/host/object.h"
#include "toolkit/marvcon/std_init_term_cfg/interface.h"

class PX_Plotter_Definition;

class PX_EXPORT PX_Std_InitTerm_Validator : public PX_InitTerm_Validator, public PX_Object {
public:
    // The definition owns the validator and outlives it.
    explicit PX_Std_InitTerm_Validator(PX_Plotter_Definition* plotter);

    void validate_preinit_string(PX_Validation_Strategy::Enum strategy) override;
    void validate_postinit_string(PX_Validation_Strategy::Enum strategy) override;
    void validate_termination_string(PX_Validation_Strategy::Enum strategy) override;
    void validate_all_init_term(PX_Validation_Strategy::Enum strategy) override;

    void set_all_init_term_to_defaults() override;
    void set_preinit_string_to_default() override;
    void set_postinit_string_to_default() override;
    void set_termination_string_to_default() override;

protected:
    PX_Plotter_Definition* m_plotter;

private:
    using Setter = void (PX_InitTerm_Configuration::*)(const PX_Dev_String*);

    void mark_validated(PX_InitTerm_Ability_Flags::Enum datum);
    void set_to_empty(PX_InitTerm_Ability_Flags::Enum datum, Setter set_string, const wchar_t* function);
};
