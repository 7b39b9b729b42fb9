#pragma once

#include "toolkit/marvcon/std_plval/datum.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/domain.h"

// What the validator's operations on resolution, colour and memory have in common.

using PX_RCM_Datum = PX_Datum<PX_RCM_Domain>;

// What the configured names stand for now; null for a name that stands for nothing.
inline PX_Smart_Pointer<PX_ResColorMem> px_configured_mode(const PX_RCM_Datum& datum) {
    return datum.capabilities->get_res_color_mem(datum.configuration->get_res_color_mem());
}
inline PX_Smart_Pointer<PX_Resolution> px_configured_resolution(const PX_RCM_Datum& datum,
                                                                const PX_ResColorMem& mode) {
    return mode.get_resolution(datum.configuration->get_resolution());
}
inline PX_Smart_Pointer<PX_Dithering_Method> px_dithering_of(const PX_RCM_Datum& datum,
                                                             const PX_Resolution& resolution) {
    return datum.capabilities->get_dithering(resolution.get_dithering_name());
}

// Whether the device can print at the resolution: where it insists on dithering, the method has to be there.
inline bool px_can_be_dithered(const PX_RCM_Datum& datum, const PX_Resolution& resolution) {
    return !datum.is_required(PX_ResColorMem_Ability_Flags::RCM_Dithering) ||
           px_is_there(px_dithering_of(datum, resolution));
}

// What the choices were like; without it, nothing can be compared: MVNK_Error 1103, "settings".
inline PX_Smart_Pointer<PX_ResColorMem_Settings> px_rcm_snapshot(const PX_RCM_Datum& datum) {
    auto settings = datum.configuration->get_rescolormem_settings();
    if (!settings)
        datum.fail(PX_Code::Null_Argument, L"settings");
    return settings;
}
