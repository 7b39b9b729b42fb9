#include <dlfcn.h>

#include <cstdio>

// A host that loads the driver named on the command line, lets it go, and goes on. Whether the driver leaves
// the memory there and then is the compiler's affair: some of its symbols may keep it to the end of the
// process.
int main(int, char** arguments) {
    void* const driver = dlopen(arguments[1], RTLD_NOW);
    if (!driver || dlclose(driver) != 0)
        std::printf("ERROR: %s\n", dlerror());
}
