#include "toolkit/marvcon/std_init_term_cfg/capabilities.h"

#include "toolkit/core/clone.h"

PX_InitTerm_Capabilities::~PX_InitTerm_Capabilities() = default;

PX_InitTerm_Capabilities* PX_Std_InitTerm_Capabilities::clone() const {
    return px_clone<PX_Std_InitTerm_Capabilities>(
        L"PX_Std_InitTerm_Capabilities::clone", px_std_init_term_cfg_source.file_tag, [this](auto& new_one) {
            new_one.set_abilities(get_abilities());
            new_one.set_ui_owner(get_ui_owner());
        });
}
