// SPDX-License-Identifier: MIT
// Which sky is the program demonstrated and measured with?
#pragma once

#include "virtualcamera/skystate.h"

/// One site per hemisphere, on a night in May for which star angles are built in; time is stopped.
/// Everything else has its default.
inline virtualsky::SkyState practiceSky(bool south)
{
    virtualsky::SkyState sky;
    sky.latitude = south ? -34.0 : 40.0;
    sky.longitude = south ? 149.0 : 116.0;
    sky.date = 1716472800.0; // 2024-05-23T14:00:00Z
    sky.running = false;
    return sky;
}

/// Exposures take no time. Frames still come no faster than a window shows them: more of them would
/// only take a core.
inline void hurry(virtualsky::SkyState &sky)
{
    sky.unthrottled = true;
    sky.slow = 0.015;
}
