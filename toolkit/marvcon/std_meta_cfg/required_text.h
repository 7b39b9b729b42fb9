#pragma once

#include "toolkit/host/string.h"
#include "toolkit/marvcon/std_meta_cfg/interface.h"

// A null text here is 1101 with the field's name, where a null argument elsewhere is 1103; the stored text
// stays. Hosts know it so.
inline void px_store_required_text(PX_String& field, const wchar_t* text, const wchar_t* function,
                                   const wchar_t* detail) {
    px_require_made(text, function, detail, px_std_meta_cfg_source.file_tag);
    field = text;
}
