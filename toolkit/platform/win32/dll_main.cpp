#include "toolkit/platform/win_types.h"

// The compiler's start of a library asks for this callback, and with it comes a directory of thread-local
// data: Windows then has to call the library for each thread. There is none in it, and so no callback.
extern "C" {
extern const PIMAGE_TLS_CALLBACK __dyn_tls_init_callback;
const PIMAGE_TLS_CALLBACK __dyn_tls_init_callback = nullptr;
}

// The start of the library. Nothing asks for its handle, which is not kept. Its end is handed to
// px_call_at_unload, which serves the static library as well.
extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void*) {
    if (reason == DLL_PROCESS_ATTACH)
        DisableThreadLibraryCalls(module);
    return TRUE;
}
