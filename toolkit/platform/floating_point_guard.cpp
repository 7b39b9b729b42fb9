#include "toolkit/platform/floating_point_guard.h"

#include "toolkit/platform/back_end.h"

PX_Floating_Point_Guard::PX_Floating_Point_Guard() {
    m_is_saved = PX_Get_Platform()._controlfp_s(&m_saved, 0, 0) == 0;
}

PX_Floating_Point_Guard::~PX_Floating_Point_Guard() {
    unsigned int now = 0;
    if (m_is_saved)
        PX_Get_Platform()._controlfp_s(&now, m_saved, px_fp_bits);
}
