#pragma once

#include "toolkit/core/flag_accessors.h"
#include "toolkit/marvcon/std_init_term_cfg/interface.h"

class PX_EXPORT PX_Std_InitTerm_Capabilities
    : public PX_Owner_Accessors<PX_Ability_Accessors<PX_InitTerm_Capabilities, PX_InitTerm_Abilities>,
                                PX_InitTerm_UI_Owner>,
      public PX_Object {
public:
    PX_InitTerm_Capabilities* clone() const override;
};
