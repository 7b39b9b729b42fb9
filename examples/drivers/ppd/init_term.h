#pragma once

#include <memory>

#include "examples/drivers/ppd/ppd_file.h"
#include "toolkit/marvcon/marvcon.h"

// The job-control strings of the description: preinit begins the job, postinit enters the language,
// termination ends the job. A string that the file gives is conditional; one that it lacks the device has
// not.
PX_Smart_Pointer<PX_InitTerm_Capabilities> ppd_init_term_capabilities(
    const Ppd_File& file, const PX_Plotter_Class_Factory& factory);

// Only the device's own strings are valid, and they are the defaults. A string that the device lacks is the
// empty one. Failures are those of the standard validator.
class Ppd_InitTerm_Validator : public PX_Std_InitTerm_Validator {
public:
    // The definition owns the validator and outlives it.
    Ppd_InitTerm_Validator(PX_Plotter_Definition* plotter, std::shared_ptr<const Ppd_File> file);

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

    std::shared_ptr<const Ppd_File> m_file;
};
