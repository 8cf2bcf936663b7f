// SPDX-License-Identifier: MIT
// What do the camera operations need from a source of frames?
#pragma once

#include <cstdint>
#include <string>

#include "virtualcamera/frame.h"
#include "virtualcamera/operationnames.h"

namespace virtualsky
{
/// The current behaviour of the camera itself.
struct Behaviour {
    OperationSet fail;
    unsigned cameras = 1;     ///< 0 to 2
    bool unplugged = false;   ///< no frames, and no camera is found
    double slowSeconds = 0.0; ///< added to the time of every frame
    bool unthrottled = false; ///< exposures take no time: the source decides when a frame is there
};

struct FrameRequest {
    Area area;
    Exposure exposure;
};

/// Frames with parameters: a rendered sky, replayed files, another camera. All members are
/// thread-safe.
class FrameSource
{
public:
    virtual ~FrameSource() = default;

    virtual Behaviour behaviour() = 0;

    /// What follows "QUORVANDEL-" in a camera's ID: letters, digits and underscores, at most 26.
    virtual std::string serialNumber(unsigned camera)
    {
        return "V000" + std::to_string(camera + 1);
    }

    /// No more frames are fetched for now.
    virtual void pause() {}

    /// Fills `out` with 8-bit samples, rows without padding.
    /// @param out at least area.width * area.height * 3 bytes
    /// @return channels of the frame, 1 or 3; 0 = there is no new frame yet
    virtual unsigned frame(const FrameRequest &request, std::uint8_t *out) = 0;
};
} // namespace virtualsky
