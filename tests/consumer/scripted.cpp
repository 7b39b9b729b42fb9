#include <cstdio>

#include "toolkit/marvcon/marvcon.h"
#include "toolkit/platform/scripted/scripted_platform.h"

// A driver's author tests on a machine of his own making: here it has no module of texts.
int main() {
    PX_Scripted_Platform machine;
    const PX_Use_Platform use(machine);
    const bool found = GetMVNErrResHandle() != 0;
    std::printf("%s after %d calls\n", found ? "found" : "missing", machine.count_of("LoadLibraryExW"));
}
