#include "toolkit/platform/platform.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "toolkit/platform/back_end.h"

PX_Module_Platform::~PX_Module_Platform() = default;
PX_Message_Box_Platform::~PX_Message_Box_Platform() = default;
PX_Floating_Point_Platform::~PX_Floating_Point_Platform() = default;
PX_File_Platform::~PX_File_Platform() = default;
PX_Spooler_Platform::~PX_Spooler_Platform() = default;
PX_Network_Platform::~PX_Network_Platform() = default;

namespace {

PX_Platform* replacement = nullptr;

std::vector<void (*)()>& before_exchange() {
    static std::vector<void (*)()> functions;
    return functions;
}

}  // namespace

PX_Platform& PX_Get_Platform() {
    return replacement ? *replacement : px_native_platform();
}

PX_Platform* PX_Set_Platform(PX_Platform* platform) {
    for (auto* const function : before_exchange())
        function();
    return std::exchange(replacement, platform);
}

void px_before_platform_exchange(void (*function)()) {
    auto& functions = before_exchange();
    if (std::find(functions.begin(), functions.end(), function) == functions.end())
        functions.push_back(function);
}
