#include "toolkit/platform/floating_point_guard.h"

namespace {
constexpr unsigned int restored_bits = 0x0308031F;
}

PX_Floating_Point_Guard::PX_Floating_Point_Guard() {
    m_is_saved = PX_Get_Platform()._controlfp_s(&m_saved, 0, 0) == 0;
}

PX_Floating_Point_Guard::~PX_Floating_Point_Guard() {
    unsigned int now = 0;
    if (m_is_saved)
        PX_Get_Platform()._controlfp_s(&now, m_saved, restored_bits);
}
