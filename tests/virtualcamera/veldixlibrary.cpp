// SPDX-License-Identifier: MIT
// Loads the camera library for tests.
#include "tests/virtualcamera/veldixlibrary.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

namespace
{
template <typename Function> void resolve(void *library, const char *name, Function *&function)
{
    function = reinterpret_cast<Function *>(dlsym(library, name));
    if (function)
        return;
    std::fprintf(stderr, "%s is missing\n", name);
    std::abort();
}
} // namespace

VeldixLibrary::VeldixLibrary()
{
    void *const library = dlopen(VELDIX_FILE, RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        std::fprintf(stderr, "%s\n", dlerror());
        std::abort();
    }
    resolve(library, "InitVELDIXResource", initResource);
    resolve(library, "ScanVELDIX", scan);
    resolve(library, "GetVELDIXId", getId);
    resolve(library, "OpenVELDIX", open);
    resolve(library, "SetVELDIXReadMode", setReadMode);
    resolve(library, "SetVELDIXStreamMode", setStreamMode);
    resolve(library, "InitVELDIX", init);
    resolve(library, "SetVELDIXBitsMode", setBits);
    resolve(library, "SetVELDIXBinMode", setBin);
    resolve(library, "SetVELDIXResolution", setResolution);
    resolve(library, "GetVELDIXParam", getParam);
    resolve(library, "SetVELDIXParam", setParam);
    resolve(library, "BeginVELDIXLive", beginLive);
    resolve(library, "GetVELDIXLiveFrame", getLiveFrame);
    resolve(library, "StopVELDIXLive", stopLive);
    resolve(library, "CloseVELDIX", close);
}

void *VeldixLibrary::openLive(const char *id)
{
    void *const handle = initResource() == 0 ? open(id) : nullptr;
    const bool live =
        handle && setStreamMode(handle, 1) == 0 && init(handle) == 0 && beginLive(handle) == 0;
    return live ? handle : nullptr;
}
