#include "toolkit/platform/platform.h"

#include <utility>

PX_Module_Platform::~PX_Module_Platform() = default;
PX_Message_Box_Platform::~PX_Message_Box_Platform() = default;
PX_Floating_Point_Platform::~PX_Floating_Point_Platform() = default;

namespace {
PX_Platform* replacement = nullptr;
}

PX_Platform& PX_Get_Platform() {
    return replacement ? *replacement : px_native_platform();
}

PX_Platform* PX_Set_Platform(PX_Platform* platform) {
    return std::exchange(replacement, platform);
}
