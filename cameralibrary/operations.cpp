// SPDX-License-Identifier: MIT
// The sixteen operations of the camera library's binary interface, and nothing else.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "cameralibrary/chosensource.h"
#include "virtualcamera/library.h"
#include "virtualcamera/skyfile.h"

#define VELDIX_OPERATION extern "C" __attribute__((visibility("default")))

namespace
{
using virtualsky::Device;
using virtualsky::Library;
using virtualsky::Operation;

constexpr std::uint32_t success = 0;
constexpr std::uint32_t failure = 0xFFFFFFFFu;
constexpr double noValue = failure;
constexpr std::size_t idBytes = 38;

void reportFault(const std::string &text)
{
    std::fprintf(stderr, "virtual camera: %s\n", text.c_str());
}

// Never destroyed: a thread may still fetch frames during process exit.
Library &library()
{
    static Library *const instance = [] {
        const char *const wish = std::getenv(virtualsky::cameraVariable);
        return new Library(
            *new ChosenSource(virtualsky::skyFilePath(), wish ? wish : "", reportFault));
    }();
    return *instance;
}

std::uintptr_t number(void *handle)
{
    return reinterpret_cast<std::uintptr_t>(handle);
}

// Calls `work` unless the operation is set to fail; an exception counts as a failure.
template <typename Result, typename Work>
Result guarded(Operation operation, Result failed, Work work) noexcept
{
    try {
        return library().fails(operation) ? failed : work();
    } catch (...) {
        return failed;
    }
}

// The same for an operation on an open camera; `work` returns whether it succeeded.
template <typename Work>
std::uint32_t onDevice(Operation operation, void *handle, Work work) noexcept
{
    return guarded(operation, failure, [handle, &work] {
        const std::shared_ptr<Device> device = library().device(number(handle));
        return device && work(*device) ? success : failure;
    });
}

bool plugged()
{
    return !library().frames().behaviour().unplugged;
}
} // namespace

VELDIX_OPERATION std::uint32_t InitVELDIXResource(void)
{
    return guarded(Operation::InitResource, failure,
                   [] { return library().initResource() ? success : failure; });
}

VELDIX_OPERATION std::int32_t ScanVELDIX(void)
{
    return guarded(Operation::Scan, std::int32_t{-1},
                   [] { return static_cast<std::int32_t>(library().cameraCount()); });
}

VELDIX_OPERATION std::uint32_t GetVELDIXId(std::int32_t index, char *id)
{
    return guarded(Operation::GetId, failure, [index, id] {
        const std::string text = library().cameraId(index);
        if (!id || text.empty() || text.size() >= idBytes)
            return failure;
        std::memcpy(id, text.c_str(), text.size() + 1);
        return success;
    });
}

VELDIX_OPERATION void *OpenVELDIX(const char *id)
{
    return guarded(Operation::Open, static_cast<void *>(nullptr), [id] {
        return reinterpret_cast<void *>(id ? library().open(id) : std::uintptr_t{0});
    });
}

VELDIX_OPERATION std::uint32_t SetVELDIXReadMode(void *handle, std::uint32_t mode)
{
    return onDevice(Operation::SetReadMode, handle,
                    [mode](Device &d) { return plugged() && d.setReadMode(mode); });
}

VELDIX_OPERATION std::uint32_t SetVELDIXStreamMode(void *handle, std::uint8_t mode)
{
    return onDevice(Operation::SetStreamMode, handle,
                    [mode](Device &d) { return plugged() && d.setStreamMode(mode); });
}

VELDIX_OPERATION std::uint32_t InitVELDIX(void *handle)
{
    return onDevice(Operation::Init, handle, [](Device &d) { return plugged() && d.init(); });
}

VELDIX_OPERATION std::uint32_t SetVELDIXBitsMode(void *handle, std::uint32_t bits)
{
    return onDevice(Operation::SetBitsMode, handle,
                    [bits](Device &d) { return plugged() && d.setBits(bits); });
}

VELDIX_OPERATION std::uint32_t SetVELDIXBinMode(void *handle, std::uint32_t x, std::uint32_t y)
{
    return onDevice(Operation::SetBinMode, handle,
                    [x, y](Device &d) { return plugged() && d.setBin(x, y); });
}

VELDIX_OPERATION std::uint32_t SetVELDIXResolution(void *handle, std::uint32_t x, std::uint32_t y,
                                                   std::uint32_t width, std::uint32_t height)
{
    return onDevice(Operation::SetResolution, handle,
                    [=](Device &d) { return plugged() && d.setArea(x, y, width, height); });
}

VELDIX_OPERATION double GetVELDIXParam(void *handle, std::int32_t control)
{
    return guarded(Operation::GetParam, noValue, [handle, control] {
        const std::shared_ptr<Device> device = library().device(number(handle));
        return device ? device->parameter(control).value_or(noValue) : noValue;
    });
}

VELDIX_OPERATION std::uint32_t SetVELDIXParam(void *handle, std::int32_t control, double value)
{
    return onDevice(Operation::SetParam, handle, [control, value](Device &d) {
        return plugged() && d.setParameter(control, value);
    });
}

VELDIX_OPERATION std::uint32_t BeginVELDIXLive(void *handle)
{
    return onDevice(Operation::BeginLive, handle,
                    [](Device &d) { return plugged() && d.beginLive(); });
}

VELDIX_OPERATION std::uint32_t GetVELDIXLiveFrame(void *handle, std::uint32_t *width,
                                                  std::uint32_t *height, std::uint32_t *bpp,
                                                  std::uint32_t *channels, std::uint8_t *buffer)
{
    return onDevice(Operation::GetLiveFrame, handle, [=](Device &d) {
        virtualsky::FrameShape shape = {};
        if (!width || !height || !bpp || !channels || !buffer || !d.takeFrame(shape, buffer))
            return false;
        *width = shape.width;
        *height = shape.height;
        *bpp = shape.bitsPerSample;
        *channels = shape.channels;
        return true;
    });
}

VELDIX_OPERATION std::uint32_t StopVELDIXLive(void *handle)
{
    return onDevice(Operation::StopLive, handle, [](Device &d) { return d.stopLive(); });
}

VELDIX_OPERATION std::uint32_t CloseVELDIX(void *handle)
{
    return guarded(Operation::Close, failure,
                   [handle] { return library().close(number(handle)) ? success : failure; });
}
