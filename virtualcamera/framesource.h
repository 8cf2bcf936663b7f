// SPDX-License-Identifier: MIT
// What the camera operations need of whatever makes the frames.
#pragma once

#include <cstdint>

#include "virtualcamera/frame.h"
#include "virtualcamera/operationnames.h"

namespace virtualsky
{
/// How the camera around the frames behaves just now.
struct Behaviour {
    OperationSet fail;
    unsigned cameras = 1;     ///< 0 to 2
    bool unplugged = false;   ///< frames stop, no camera is found
    double slowSeconds = 0.0; ///< that every frame takes longer
    bool unthrottled = false; ///< a frame at every call
};

struct FrameRequest {
    Area area;
    Exposure exposure;
};

/// Frames with parameters: a rendered sky, replayed files, another camera.
/// Every member may be called from any thread.
class FrameSource
{
public:
    virtual ~FrameSource() = default;

    virtual Behaviour behaviour() = 0;

    /// Fills `out` with 8-bit samples, rows without padding.
    /// @param out room for area.width * area.height * 3 bytes
    /// @return channels of the frame, 1 or 3
    virtual unsigned frame(const FrameRequest &request, std::uint8_t *out) = 0;
};
} // namespace virtualsky
