#pragma once

#include "toolkit/platform/platform.h"

// Saves the floating-point control word and writes it back when it goes, also when an exception passes:
// printer code is not trusted to leave it alone. Rounding, exception masks and denormal control are restored.
class PX_EXPORT PX_Floating_Point_Guard {
public:
    PX_Floating_Point_Guard();
    ~PX_Floating_Point_Guard();
    PX_Floating_Point_Guard(const PX_Floating_Point_Guard&) = delete;
    PX_Floating_Point_Guard& operator=(const PX_Floating_Point_Guard&) = delete;

private:
    unsigned int m_saved = 0;
    bool m_is_saved;  // a word that could not be read is not written
};
