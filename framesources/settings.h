// SPDX-License-Identifier: MIT
// Which camera is the source of the frames, and what is known of its lens?
#pragma once

#include "virtualcamera/cameraaddress.h"
#include "virtualcamera/framesource.h"
#include "virtualcamera/skystate.h"

namespace framesources
{
struct SourceSettings {
    virtualsky::CameraAddress address;
    virtualsky::Pace pace = virtualsky::Pace::Exposure;
    bool stream = true;
    bool soften = false;
    virtualsky::LensScale scale;
    virtualsky::Mirrored mirrored = virtualsky::Mirrored::False;

    bool operator==(const SourceSettings &o) const
    {
        return address == o.address && pace == o.pace && stream == o.stream && soften == o.soften &&
               scale.kind == o.scale.kind && scale.arcseconds == o.scale.arcseconds &&
               mirrored == o.mirrored;
    }
    bool operator!=(const SourceSettings &o) const { return !(*this == o); }
};

/// File name of the module that holds these sources, in the folder of the camera library: sources
/// need libraries that the sky does not.
inline constexpr char moduleFile[] = "quorvandel-framesources.so";

/// The module's one function, a `virtualsky::FrameSource *(const SourceSettings *)`. Null = there
/// is no such source.
inline constexpr char moduleFunction[] = "openQuorvandelFrameSource";
using OpenFrameSource = virtualsky::FrameSource *(*)(const SourceSettings *settings);
} // namespace framesources
