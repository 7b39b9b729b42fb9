#pragma once

#include <string>

#include "toolkit/marvcon/marvcon.h"

// The job-control strings of a device: preinit begins the job, postinit enters the language, termination ends
// the job. An empty one the device has not.
struct Own_Strings {
    std::string preinit;
    std::string postinit;
    std::string termination;
};

// A string that the device has is conditional.
PX_Smart_Pointer<PX_InitTerm_Capabilities> own_strings_capabilities(const Own_Strings& own,
                                                                    const PX_Plotter_Class_Factory& factory);

// Only the device's own strings are valid, and they are the defaults. A string that the device lacks is the
// empty one. Failures are those of the standard validator.
class Own_Strings_Validator : public PX_Std_InitTerm_Validator {
public:
    // The definition owns the validator and outlives it.
    Own_Strings_Validator(PX_Plotter_Definition* plotter, Own_Strings own);

    void validate_preinit_string(PX_Validation_Strategy::Enum strategy) override;
    void validate_postinit_string(PX_Validation_Strategy::Enum strategy) override;
    void validate_termination_string(PX_Validation_Strategy::Enum strategy) override;

    void set_preinit_string_to_default() override;
    void set_postinit_string_to_default() override;
    void set_termination_string_to_default() override;

private:
    struct Datum;
    static const Datum preinit, postinit, termination;

    PX_Smart_Pointer<PX_InitTerm_Configuration> configuration() const;
    void replace_foreign(const Datum& datum);
    void store_own(const Datum& datum);

    Own_Strings m_own;
};
