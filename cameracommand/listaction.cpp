// SPDX-License-Identifier: MIT
// Which cameras are there: those of the maker's library, and those of an INDI server.
#include <cstdint>
#include <cstdio>
#include <dlfcn.h>
#include <string>

#include "camera/loadprobe.h"
#include "cameracommand/actions.h"
#include "cameracommand/grabbing.h"
#include "framesources/indilist.h"
#include "framesources/nativecameras.h"

#include <QByteArray>

namespace
{
constexpr char library[] = "libveldix.so.20";

/// How many cameras the maker's library finds; says so.
int listMakers()
{
    if (!canLoadSafely(library)) {
        std::printf("maker's library: %s ends or holds up the program as it is loaded\n", library);
        return 0;
    }
    void *const handle = ::dlopen(library, RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        std::printf("maker's library: %s\n", ::dlerror());
        return 0;
    }
    const auto init = reinterpret_cast<std::uint32_t (*)()>(::dlsym(handle, "InitVELDIXResource"));
    const auto scan = reinterpret_cast<std::int32_t (*)()>(::dlsym(handle, "ScanVELDIX"));
    const auto id =
        reinterpret_cast<std::uint32_t (*)(std::int32_t, char *)>(::dlsym(handle, "GetVELDIXId"));
    if (!init || !scan || !id || init() != 0) {
        std::printf("maker's library: it is there and cannot be used: %s\n",
                    init && scan && id ? "it does not start" : "it lacks functions");
        return 0;
    }
    const std::int32_t count = scan();
    if (count <= 0)
        std::printf("maker's library: it finds no camera\n");
    for (std::int32_t i = 0; i < count; ++i) {
        char name[256] = "";
        std::printf("maker's library: %s\n", id(i, name) == 0 ? name : "a camera without an ID");
    }
    return count > 0 ? count : 0;
}
} // namespace

int listCameras(const CameraCommandLine &wishes)
{
    virtualsky::CameraAddress address;
    const std::string host = wishes.target.empty() ? "localhost" : wishes.target;
    if (const auto parsed = virtualsky::parseIndiAddress(host + "/any"))
        address = *parsed;
    else {
        complain("list takes a host, or a host and a port: HOST:PORT");
        return misused;
    }
    int cameras = listMakers();
    for (const framesources::ListedDevice &device : framesources::listIndi(address)) {
        const std::string where = device.name.empty() ? host : addressText(device.address);
        std::printf("%s: %s\n", device.name.empty() ? ("INDI on " + where).c_str() : where.c_str(),
                    device.remark.c_str());
        cameras += device.isCamera ? 1 : 0;
    }
    return cameras > 0 ? succeeded : failed;
}
