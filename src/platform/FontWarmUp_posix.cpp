#include "platform/FontWarmUp.h"

#include <dlfcn.h>

std::jthread WarmUpFonts()
{
    // Not through QLibrary: no Qt object may come into being before the application's, on another thread.
    return std::jthread([] {
        void* fontconfig = dlopen("libfontconfig.so.1", RTLD_NOW);
        using Initialise = int (*)();
        if (const auto initialise =
                fontconfig ? reinterpret_cast<Initialise>(dlsym(fontconfig, "FcInit")) : nullptr)
            initialise();
    });
}
