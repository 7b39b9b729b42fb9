#include "toolkit/platform/win_types.h"

// The start of the library. Its end is handed to px_call_at_unload, which serves the static library as well.
extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void*) {
    if (reason == DLL_PROCESS_ATTACH)
        DisableThreadLibraryCalls(module);
    return TRUE;
}
