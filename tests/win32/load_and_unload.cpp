#include <cstdio>

#include "toolkit/platform/win_types.h"

// A host that loads the library, or a driver that holds it, lets it go, and goes on: nothing stays behind.

namespace {

int failures = 0;

void expect(bool is_so, const char* what) {
    if (!is_so) {
        ++failures;
        std::printf("not so: %s\n", what);
    }
}

}  // namespace

// The driver is the argument.
int wmain(int, wchar_t** arguments) {
    const HMODULE library = LoadLibraryW(L"marvcon.dll");
    expect(library, "the library is loaded");
    if (!library)
        return 1;
    expect(DisableThreadLibraryCalls(library), "it need not be called for each thread");
    const FARPROC procedure = GetProcAddress(library, "_Z18GetMVNErrResHandlev");
    expect(procedure, "it has the way to the texts");
    if (!procedure)
        return 1;
    const auto get_texts =
        reinterpret_cast<unsigned long long (*)()>(reinterpret_cast<void (*)()>(procedure));
    expect(get_texts() && GetModuleHandleW(L"mvnres11.dll"), "the texts are loaded");
    expect(FreeLibrary(library), "the library is let go");
    expect(!GetModuleHandleW(L"marvcon.dll"), "the library is gone");
    expect(!GetModuleHandleW(L"mvnres11.dll"), "the texts are gone with it");

    const HMODULE driver = LoadLibraryW(arguments[1]);
    expect(driver && FreeLibrary(driver), "the driver is loaded and let go");
    return failures;
}
