// SPDX-License-Identifier: MIT
// A camera library that goes wrong in the way that the environment names; otherwise its frames are
// grey.
#include <csignal>
#include <cstdint>
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
    return &camera;
}

EXPORTED std::uint32_t SetVELDIXReadMode(void *, std::uint32_t)
{
    return 0;
}

EXPORTED std::uint32_t SetVELDIXStreamMode(void *, std::uint8_t)
{
    return 0;
}

EXPORTED std::uint32_t InitVELDIX(void *)
{
    misbehaveIn("InitVELDIX");
    return 0;
}

EXPORTED std::uint32_t SetVELDIXBitsMode(void *, std::uint32_t)
{
    return 0;
}

EXPORTED std::uint32_t SetVELDIXBinMode(void *, std::uint32_t, std::uint32_t)
{
    return 0;
}

EXPORTED std::uint32_t SetVELDIXResolution(void *, std::uint32_t, std::uint32_t, std::uint32_t,
                                           std::uint32_t)
{
    return 0;
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
    misbehaveIn("BeginVELDIXLive");
    return 0;
}

EXPORTED std::uint32_t GetVELDIXLiveFrame(void *, std::uint32_t *width, std::uint32_t *height,
                                          std::uint32_t *bits, std::uint32_t *channels,
                                          std::uint8_t *frame)
{
    misbehaveIn("GetVELDIXLiveFrame");
    *width = 1280;
    *height = 960;
    *bits = 8;
    *channels = 1;
    std::memset(frame, 40, std::size_t(*width) * *height);
    return 0;
}

EXPORTED std::uint32_t StopVELDIXLive(void *)
{
    return 0;
}

EXPORTED std::uint32_t CloseVELDIX(void *)
{
    misbehaveIn("CloseVELDIX");
    return 0;
}
