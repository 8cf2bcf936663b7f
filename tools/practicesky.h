// SPDX-License-Identifier: MIT
// Under which sky is the program shown and measured?
#pragma once

#include "virtualcamera/skystate.h"

/// One site on each hemisphere, on a May night whose star angles are built in; the time stands
/// still. Everything else has its default.
inline virtualsky::SkyState practiceSky(bool south)
{
    virtualsky::SkyState sky;
    sky.latitude = south ? -34.0 : 40.0;
    sky.longitude = south ? 149.0 : 116.0;
    sky.date = 1716472800.0; // 2024-05-23T14:00:00Z
    sky.running = false;
    return sky;
}
