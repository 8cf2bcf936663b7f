// SPDX-License-Identifier: MIT
// What does the tracker see of a painted mount whose axis, bolts and camera move?
#pragma once

#include "tests/assistant/guidetest.h"

#include "recognition/recognise.h"

/// Recognitions of a painted mount, as the guide's.
class Eye
{
public:
    explicit Eye(const virtualsky::SkyState &sky) : mount(sky, settingsFor(sky)) { mount.next(); }

    recognition::Recognition lookAt(double raAngle, double altitude = 0.3, double axisX = 40.0)
    {
        virtualsky::SkyState sky = mount.sky();
        sky.raAngle = raAngle;
        sky.boltAltitude = altitude;
        sky.axisX = axisX;
        mount.setSky(sky);
        return *mount.next().sky;
    }
    virtualsky::Point axis() const { return *mount.truth().axis; }

    PaintedMount mount;
};
