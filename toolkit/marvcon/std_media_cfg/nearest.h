#pragma once

#include "toolkit/marvcon/std_media_cfg/interface.h"

// The scores of the nearest searches: how far an entry of the catalogue lies from what the user had, the
// least one wins. They are told to the last bit, so that whoever compares entries sees what a search saw.
// `had` is the snapshot of the configuration. Against a blank one, whose sheet or printable area is zero, the
// score of a size is infinite or no number. A score that is no number never wins.

// 0.0 is identical. `had_name` is the name of the size that was configured, null the empty one. A size above
// 500.0 is none that a search takes.
PX_EXPORT double px_media_size_score(const PX_Media_Settings& had, const wchar_t* had_name,
                                     const PX_Media_Size& size, const PX_Media_Description& description);
// By resolution and drying time.
PX_EXPORT double px_media_type_score(const PX_Media_Settings& had, const PX_Media_Type& type);
// By width and frame height.
PX_EXPORT double px_media_source_entry_score(const PX_Media_Settings& had,
                                             const PX_Media_Source_Entry& entry);
// How many of the finishing options that were configured the destination lacks, 0 to 4; options that the
// device does not list count as there.
PX_EXPORT int px_media_destination_score(const PX_Media_Capabilities& capabilities,
                                         const PX_Media_Configuration& had,
                                         const PX_Media_Settings& had_settings,
                                         const PX_Media_Destination& destination);
