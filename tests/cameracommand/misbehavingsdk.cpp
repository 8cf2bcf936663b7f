// SPDX-License-Identifier: MIT
// A camera library that goes wrong in the way that the environment names; otherwise its frames are
// grey.
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>
#include <unistd.h>

#define EXPORTED extern "C" __attribute__((visibility("default")))

namespace
{
bool is(const char *way)
{
    const char *const wanted = std::getenv("MISBEHAVING_SDK");
    return wanted && std::strcmp(wanted, way) == 0;
}

__attribute__((constructor)) void load()
{
    if (is("abort"))
        std::abort();
}

__attribute__((destructor)) void unload()
{
    if (is("crashes at the end"))
        std::raise(SIGSEGV);
    if (is("hangs at the end"))
        for (;;)
            ::pause();
}

/// "crashes in ScanVELDIX", for example.
void misbehaveIn(const std::string &call)
{
    if (is(("crashes in " + call).c_str()))
        std::raise(SIGSEGV);
    if (is(("aborts in " + call).c_str()))
        std::abort();
    if (is(("ends in " + call).c_str()))
        std::exit(3);
    while (is(("hangs in " + call).c_str()))
        ::pause();
}

bool isClosed = false;

/// What a call for a camera returns: 1 for "refuses InitVELDIX", for example. A closed camera may
/// not be used.
std::uint32_t resultOf(const std::string &call)
{
    if (isClosed)
        std::abort();
    misbehaveIn(call);
    return is(("refuses " + call).c_str()) ? 1 : 0;
}
} // namespace

EXPORTED std::uint32_t InitVELDIXResource()
{
    misbehaveIn("InitVELDIXResource");
    if (is("throws at the start"))
        throw std::runtime_error("no bus");
    return is("does not start") ? 1 : 0;
}

EXPORTED std::int32_t ScanVELDIX()
{
    misbehaveIn("ScanVELDIX");
    if (is("throws a number"))
        throw 115;
    return is("too many") ? 2147483647 : 1;
}

EXPORTED std::uint32_t GetVELDIXId(std::int32_t, char *id)
{
    misbehaveIn("GetVELDIXId");
    if (is("throws for an ID"))
        throw std::runtime_error("no answer");
    std::strcpy(id, is("long ID") ? std::string(5000, 'x').c_str() : "QUORVANDEL-0815");
    return is("no ID") ? 1 : 0;
}

EXPORTED void *OpenVELDIX(const char *)
{
    misbehaveIn("OpenVELDIX");
    static int camera;
    isClosed = false;
    return &camera;
}

EXPORTED std::uint32_t SetVELDIXReadMode(void *, std::uint32_t mode)
{
    // Its only one; the result of success is the camera's own.
    return resultOf("SetVELDIXReadMode") == 0 && mode == 0 ? 7 : 0xffffffff;
}

EXPORTED std::uint32_t SetVELDIXStreamMode(void *, std::uint8_t)
{
    return resultOf("SetVELDIXStreamMode");
}

EXPORTED std::uint32_t InitVELDIX(void *)
{
    return resultOf("InitVELDIX");
}

EXPORTED std::uint32_t SetVELDIXBitsMode(void *, std::uint32_t)
{
    return resultOf("SetVELDIXBitsMode");
}

EXPORTED std::uint32_t SetVELDIXBinMode(void *, std::uint32_t, std::uint32_t)
{
    return resultOf("SetVELDIXBinMode");
}

EXPORTED std::uint32_t SetVELDIXResolution(void *, std::uint32_t, std::uint32_t, std::uint32_t,
                                           std::uint32_t)
{
    return resultOf("SetVELDIXResolution");
}

EXPORTED double GetVELDIXParam(void *, std::int32_t)
{
    return 0.0;
}

EXPORTED std::uint32_t SetVELDIXParam(void *, std::int32_t, double)
{
    return 0;
}

EXPORTED std::uint32_t BeginVELDIXLive(void *)
{
    return resultOf("BeginVELDIXLive");
}

EXPORTED std::uint32_t GetVELDIXLiveFrame(void *, std::uint32_t *width, std::uint32_t *height,
                                          std::uint32_t *bits, std::uint32_t *channels,
                                          std::uint8_t *frame)
{
    const std::uint32_t result = resultOf("GetVELDIXLiveFrame");
    *width = 1280;
    *height = 960;
    *bits = 8;
    *channels = 1;
    std::memset(frame, 40, std::size_t(*width) * *height);
    static bool isFirst = true;
    const char *const way = std::getenv("MISBEHAVING_SDK");
    if (isFirst && way)
        std::sscanf(way, "first says %u x %u, %u", width, height, channels);
    isFirst = false;
    return result;
}

EXPORTED std::uint32_t StopVELDIXLive(void *)
{
    return resultOf("StopVELDIXLive");
}

EXPORTED std::uint32_t CloseVELDIX(void *)
{
    const std::uint32_t result = resultOf("CloseVELDIX");
    isClosed = true;
    return result;
}
