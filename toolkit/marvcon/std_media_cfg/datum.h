#pragma once

#include "toolkit/marvcon/std_media_cfg/domain.h"
#include "toolkit/marvcon/std_plval/datum.h"

// What the validator's operations on media have in common.

using PX_Media_Datum = PX_Datum<PX_Media_Domain>;

// The data that stand and fall together with the destination.
inline constexpr PX_Media_Config_Flags::Enum px_destination_data[] = {
    PX_Media_Config_Flags::Cfg_Media_Destination, PX_Media_Config_Flags::Cfg_Media_Collating,
    PX_Media_Config_Flags::Cfg_Media_Stapling, PX_Media_Config_Flags::Cfg_Media_Cutting,
    PX_Media_Config_Flags::Cfg_Media_Folding};

inline bool px_is_by_source(const PX_Media_Datum& datum) {
    return datum.configuration->get_media_selection_method() ==
           PX_Media_Selection_Method::Media_Selection_By_Source;
}

// What the choices were like; without it, nothing can be compared: MVNK_Error 319. The searches, which rely
// on the test that called them, give the same error instead of a crash.
inline PX_Smart_Pointer<PX_Media_Settings> px_media_snapshot(const PX_Media_Datum& datum) {
    auto settings = datum.configuration->get_media_settings();
    if (!settings)
        datum.fail(PX_Media_Code::No_Settings);
    return settings;
}

// What the configured names stand for now; null for a name that stands for nothing.
inline PX_Smart_Pointer<PX_Media_Source> px_configured_source(const PX_Media_Datum& datum) {
    return datum.capabilities->get_media_source(datum.configuration->get_media_source());
}
inline PX_Smart_Pointer<PX_Media_Source_Entry> px_configured_entry(
    const PX_Media_Datum& datum, const PX_Smart_Pointer<PX_Media_Source>& source) {
    return source ? source->get_source_entry(datum.configuration->get_media_source_entry()) : nullptr;
}
inline PX_Smart_Pointer<PX_Media_Size> px_configured_size(const PX_Media_Datum& datum) {
    return datum.capabilities->get_media_size(datum.configuration->get_media_size());
}
inline PX_Smart_Pointer<PX_Media_Description> px_description_of(const PX_Media_Datum& datum,
                                                                const PX_Smart_Pointer<PX_Media_Size>& size) {
    return size ? datum.capabilities->get_media_description(size->get_media_description()) : nullptr;
}

// Whether a finishing option is still what the user had.
inline bool px_is_as_before(const PX_Media_Settings& had, const PX_Media_Collating& option) {
    return option.get_collating_type() == had.get_collating_type();
}
inline bool px_is_as_before(const PX_Media_Settings& had, const PX_Media_Stapling& option) {
    return option.get_stapling_location() == had.get_stapling_location() &&
           option.get_stapling_when() == had.get_stapling_when() &&
           option.get_stapling_orientation() == had.get_stapling_orientation();
}
inline bool px_is_as_before(const PX_Media_Settings& had, const PX_Media_Cutting& option) {
    return option.get_cutting_when() == had.get_cutting_when();
}
inline bool px_is_as_before(const PX_Media_Settings& had, const PX_Media_Folding& option) {
    return option.get_folding_type() == had.get_folding_type() &&
           option.get_folding_when() == had.get_folding_when();
}
// And whether it is there at all.
template <class Option>
bool px_finishing_stands(const PX_Media_Settings& had, const PX_Smart_Pointer<Option>& option) {
    return px_is_there(option) && px_is_as_before(had, *option);
}
