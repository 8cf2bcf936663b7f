// SPDX-License-Identifier: MIT
// What do the guide's tests ask a status?
#pragma once

#include "assistant/status.h"
#include "bench/assistant/mountonsky.h"
#include "bench/assistant/person.h"
#include "bench/assistant/start.h"

#include <QtTest>
#include <algorithm>

inline const assistant::Advice *adviceIn(const assistant::Status &status,
                                         assistant::AdviceCode code)
{
    const auto found =
        std::find_if(status.advice.begin(), status.advice.end(),
                     [code](const assistant::Advice &advice) { return advice.code == code; });
    return found == status.advice.end() ? nullptr : &*found;
}

inline bool says(const assistant::Status &status, assistant::AdviceCode code)
{
    return adviceIn(status, code) != nullptr;
}

inline bool saysFirst(const assistant::Status &status, assistant::AdviceCode code)
{
    return !status.advice.empty() && status.advice.front().code == code;
}

/// The first of the next frames that says so; the last one if none does.
inline assistant::Status nextThatSays(MountOnSky &mount, assistant::AdviceCode code,
                                      int frames = 40)
{
    assistant::Status status;
    for (int i = 0; i < frames; ++i) {
        status = mount.next();
        if (says(status, code))
            break;
    }
    return status;
}

/// Whether what is shown agrees with the bolts and with the angle between axis and pole, within so
/// many standard errors and half an arcsecond on the sky.
inline bool isTrue(const assistant::Status &status, const MountOnSky &mount, double sigmas = 4.0)
{
    if (!status.error || !status.error->altitude || !status.error->azimuth)
        return false;
    const virtualsky::SkyState &sky = mount.sky();
    const double onSky = std::cos((std::abs(sky.latitude) + sky.boltAltitude) * astrometry::degree);
    const auto agrees = [sigmas](double shown, double real, double sigma) {
        return std::abs(shown - real) <= sigmas * sigma + 0.5;
    };
    const auto &[total, altitude, azimuth] = *status.error;
    return agrees(altitude->arcseconds, sky.boltAltitude * 3600.0, altitude->sigma) &&
           agrees(azimuth->arcseconds * onSky, sky.boltAzimuth * 3600.0 * onSky,
                  azimuth->sigma * onSky) &&
           agrees(total.arcseconds, mount.truth().poleError, total.sigma);
}

/// A mount near the pole under a clear sky, as the tests of faults begin.
inline virtualsky::SkyState plainNight(bool south = false)
{
    virtualsky::SkyState sky;
    sky.latitude = south ? -34.0 : 40.0;
    sky.longitude = south ? 149.0 : 116.0;
    sky.date = 1795204800.0; // November 2026
    sky.refraction = true;
    sky.boltAltitude = 0.3;
    sky.boltAzimuth = -0.4;
    return sky;
}

/// Turns the mount's RA axis.
inline void turn(MountOnSky &mount, double degrees)
{
    virtualsky::SkyState sky = mount.sky();
    sky.raAngle += degrees;
    mount.setSky(sky);
}
