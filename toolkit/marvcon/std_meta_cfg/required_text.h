#pragma once

#include "toolkit/host/string.h"
#include "toolkit/marvcon/std_meta_cfg/interface.h"

// A null text here is 1101 with the field's name, where a null argument elsewhere is 1103; the stored text
// stays. Hosts know it so.
inline void px_store_required_text(PX_String& field, const wchar_t* text, const wchar_t* function,
                                   const wchar_t* detail) {
    if (!text)
        throw MVNK_Memory_Exception(PX_Code::No_Memory, function, detail, std_meta_cfg.file_tag);
    field = text;
}
