// SPDX-License-Identifier: MIT
// The complete camera library: which cameras exist, and which are open?
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "virtualcamera/device.h"

namespace virtualsky
{
/// All members are thread-safe.
class Library
{
public:
    explicit Library(FrameSource &frameSource) : source(frameSource) {}

    FrameSource &frames() { return source; }
    bool fails(Operation operation);

    bool initResource();
    /// 0 before `initResource` and while the camera is unplugged.
    unsigned cameraCount();
    /// "QUORVANDEL-V0001" and so on, by the source; empty for an index without a camera.
    std::string cameraId(std::int32_t index);

    /// Returns a handle that was never used before, or 0 if there is no such camera. A camera may
    /// be opened more than once.
    std::uintptr_t open(const std::string &id);
    /// Null for a handle that is not open.
    std::shared_ptr<Device> device(std::uintptr_t handle);
    bool close(std::uintptr_t handle);

private:
    std::string idOf(unsigned index);
    std::uintptr_t add();

    FrameSource &source;
    std::mutex mutex; // guards everything below
    bool ready = false;
    std::uintptr_t lastHandle = 0;
    std::map<std::uintptr_t, std::shared_ptr<Device>> devices;
};
} // namespace virtualsky
