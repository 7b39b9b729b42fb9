#include "toolkit/marvcon/std_init_term_cfg/validator.h"

#include "toolkit/core/frame.h"
#include "toolkit/marvcon/std_init_term_cfg/domain.h"
#include "toolkit/marvcon/std_plval/domain_objects.h"

using Datum = PX_InitTerm_Ability_Flags;
using Configuration = PX_InitTerm_Configuration;

PX_InitTerm_Validator::~PX_InitTerm_Validator() = default;

PX_Std_InitTerm_Validator::PX_Std_InitTerm_Validator(PX_Plotter_Definition* plotter) : m_plotter(plotter) {
}

void PX_Std_InitTerm_Validator::validate_preinit_string(PX_Validation_Strategy::Enum /*strategy*/) {
    mark_validated(Datum::Preinit_String);
}

void PX_Std_InitTerm_Validator::validate_postinit_string(PX_Validation_Strategy::Enum /*strategy*/) {
    mark_validated(Datum::Postinit_String);
}

void PX_Std_InitTerm_Validator::validate_termination_string(PX_Validation_Strategy::Enum /*strategy*/) {
    mark_validated(Datum::Termination_String);
}

// Any bytes will do. All three operations report a failure under the name of the first.
void PX_Std_InitTerm_Validator::mark_validated(Datum::Enum datum) {
    px_domain_configuration<PX_InitTerm_Domain>(m_plotter,
                                                L"PX_Std_InitTerm_Validator::validate_preinit_string")
        ->set_one_validated(true, datum);
}

void PX_Std_InitTerm_Validator::validate_all_init_term(PX_Validation_Strategy::Enum strategy) {
    px_frame(L"PX_Std_InitTerm_Validator::validate_all_init_term", [&] {
        validate_preinit_string(strategy);
        validate_postinit_string(strategy);
        validate_termination_string(strategy);
    });
}

void PX_Std_InitTerm_Validator::set_all_init_term_to_defaults() {
    px_frame(L"PX_Std_InitTerm_Validator::set_all_init_term_to_defaults", [&] {
        set_preinit_string_to_default();
        set_postinit_string_to_default();
        set_termination_string_to_default();
    });
}

void PX_Std_InitTerm_Validator::set_preinit_string_to_default() {
    set_to_empty(Datum::Preinit_String, &Configuration::set_preinit_string,
                 L"PX_Std_InitTerm_Validator::set_preinit_string_to_default");
}

void PX_Std_InitTerm_Validator::set_postinit_string_to_default() {
    set_to_empty(Datum::Postinit_String, &Configuration::set_postinit_string,
                 L"PX_Std_InitTerm_Validator::set_postinit_string_to_default");
}

void PX_Std_InitTerm_Validator::set_termination_string_to_default() {
    set_to_empty(Datum::Termination_String, &Configuration::set_termination_string,
                 L"PX_Std_InitTerm_Validator::set_termination_string_to_default");
}

void PX_Std_InitTerm_Validator::set_to_empty(Datum::Enum datum, Setter set_string, const wchar_t* function) {
    const PX_Domain_Objects<PX_InitTerm_Domain> domain(m_plotter, function);
    if (domain.capabilities->get_one_ability(datum) > 0) {
        const PX_Dev_String nothing;
        ((*domain.configuration).*set_string)(&nothing);
    }
    // Also where the string was left alone.
    domain.configuration->set_one_validated(true, datum);
    domain.configuration->set_one_default(true, datum);
}
