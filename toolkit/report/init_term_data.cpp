#include "toolkit/report/data.h"

std::vector<PX_Report_Datum> px_init_term_data() {
    using Strings = PX_InitTerm_Configuration;
    using Flag = PX_InitTerm_Ability_Flags;
    using Domain =
        PX_Report_Domain<PX_Domain_Mask::Init_Term, &PX_Plotter_Configuration::get_init_term_configuration,
                         &PX_Plotter_Capabilities::get_init_term_capabilities,
                         &PX_Plotter_Validator::get_init_term_cfg_changes>;
    // The standard rules raise no bit; a driver's may raise what it likes.
    constexpr long no_bits = 0;
    return {
        Domain::row<&Strings::get_preinit_string, Flag::Preinit_String, Flag::Preinit_String>(
            "Preinit string", no_bits),
        Domain::row<&Strings::get_postinit_string, Flag::Postinit_String, Flag::Postinit_String>(
            "Postinit string", no_bits),
        Domain::row<&Strings::get_termination_string, Flag::Termination_String, Flag::Termination_String>(
            "Termination string", no_bits),
    };
}
