// SPDX-License-Identifier: MIT
// Which cameras are there: those of the maker's library, and those of an INDI server.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <dlfcn.h>
#include <exception>
#include <optional>
#include <string>

#include "camera/cameraopening.h"
#include "camera/loadprobe.h"
#include "camera/veldix.h"
#include "cameracommand/actions.h"
#include "cameracommand/grabbing.h"
#include "framesources/indilist.h"
#include "framesources/nativecameras.h"

#include <QByteArray>

namespace
{
void say(const std::string &text)
{
    std::printf("maker's library: %s\n", text.c_str());
}

/// The three functions that a list needs.
struct Makers {
    std::uint32_t (*init)() = nullptr;
    std::int32_t (*scan)() = nullptr;
    std::uint32_t (*id)(std::int32_t, char *) = nullptr;
};

template <typename Function> void resolve(void *handle, const char *name, Function &function)
{
    function = reinterpret_cast<Function>(::dlsym(handle, name));
}

/// Nothing if the library cannot be used, which is said.
std::optional<Makers> loadMakers()
{
    if (!canLoadSafely(makersLibrary)) {
        say(std::string(makersLibrary) + " ends or holds up the program as it is loaded");
        return std::nullopt;
    }
    void *const handle = ::dlopen(makersLibrary, RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        say(::dlerror());
        return std::nullopt;
    }
    Makers makers;
    resolve(handle, "InitVELDIXResource", makers.init);
    resolve(handle, "ScanVELDIX", makers.scan);
    resolve(handle, "GetVELDIXId", makers.id);
    if (makers.init && makers.scan && makers.id)
        return makers;
    say("it is there and cannot be used: it lacks functions");
    return std::nullopt;
}

/// Says what camera `index` is. The library is given far more room than its IDs need.
bool listOne(const Makers &makers, std::int32_t index)
{
    std::array<char, 16384> buffer{};
    if (makers.id(index, buffer.data()) != 0) {
        say("a camera without an ID");
        return false;
    }
    buffer.back() = '\0';
    const std::string id = buffer.data();
    const bool isUsable = id.size() < std::size_t(maxIdSize);
    say(isUsable ? id
                 : "a camera that cannot be used: its ID of " + std::to_string(id.size()) +
                       " characters is too long");
    return isUsable;
}

/// How many cameras the maker's library finds; says so.
int listFound(const Makers &makers)
{
    if (makers.init() != 0) {
        say("it is there and cannot be used: it does not start");
        return 0;
    }
    const std::int32_t count = std::min(makers.scan(), maxCameras);
    if (count <= 0)
        say("it finds no camera");
    int usable = 0;
    for (std::int32_t i = 0; i < count; ++i)
        usable += listOne(makers, i) ? 1 : 0;
    return usable;
}

int listMakers()
{
    const auto makers = loadMakers();
    if (!makers)
        return 0;
    std::string thrown = "no std::exception";
    try {
        return listFound(*makers);
    } catch (const std::exception &exception) {
        thrown = exception.what() ? exception.what() : "";
    } catch (...) {
    }
    say("it is there and cannot be used: it threw an exception: " + thrown);
    return 0;
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
