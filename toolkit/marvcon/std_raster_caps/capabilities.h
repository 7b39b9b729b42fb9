#pragma once

#include "toolkit/core/flag_accessors.h"
#include "toolkit/marvcon/std_raster_caps/interface.h"

class PX_EXPORT PX_Std_Raster_Capabilities
    : public PX_State_Accessors<PX_Ability_Accessors<PX_Raster_Capabilities, PX_Raster_Abilities>,
                                PX_Raster_Caps_State>,
      public PX_Object {
public:
    PX_Raster_Orientation_Prefs::Enum get_orientation_prefs() const override { return m_orientation_prefs; }
    void set_orientation_prefs(PX_Raster_Orientation_Prefs::Enum orientation) override {
        m_orientation_prefs = orientation;
    }

    PX_Raster_Capabilities* clone() const override;

private:
    PX_Raster_Orientation_Prefs::Enum m_orientation_prefs{};
};
