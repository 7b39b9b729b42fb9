#include "toolkit/marvcon/std_raster_caps/capabilities.h"

#include "toolkit/core/clone.h"

PX_Raster_Capabilities::~PX_Raster_Capabilities() = default;

PX_Raster_Capabilities* PX_Std_Raster_Capabilities::clone() const {
    return px_clone<PX_Std_Raster_Capabilities>(L"PX_Std_Raster_Capabilities::clone",
                                                px_std_raster_caps_source.file_tag, [this](auto& new_one) {
                                                    new_one.set_orientation_prefs(get_orientation_prefs());
                                                    new_one.set_abilities(get_abilities());
                                                    new_one.set_caps_state(get_caps_state());
                                                });
}
