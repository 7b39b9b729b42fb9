#include "toolkit/report/domain_checks.h"

void px_check_init_term(const PX_InitTerm_Capabilities& device, const PX_Findings& found) {
    using Flag = PX_InitTerm_Ability_Flags;
    constexpr PX_Gate<Flag> gates[] = {{Flag::Preinit_String, L"preinit string"},
                                       {Flag::Postinit_String, L"postinit string"},
                                       {Flag::Termination_String, L"termination string"}};
    px_check_gates(device, gates, found);
}
