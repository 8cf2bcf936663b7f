// SPDX-License-Identifier: MIT
// Which stars are in the picture, where, and how bright?
#pragma once

#include <limits>
#include <optional>
#include <vector>

#include "virtualcamera/astrometry.h"
#include "virtualcamera/optics.h"
#include "virtualcamera/skystate.h"

namespace virtualsky
{
struct ImagedStar {
    Point place;
    double vMagnitude;
    double bMinusV;
};

Site siteOf(const SkyState &state);

/// All zero while refraction is off.
RefractionConstants refractionOf(const SkyState &state);

/// Turns apparent places into picture places for one state and time.
class PlaceInPicture
{
public:
    PlaceInPicture(const SkyState &state, double utcSeconds);
    /// @param cirs unit vector in the celestial intermediate frame of date
    std::optional<Point> ofCirs(const Vector3 &cirs) const;
    /// @param horizon (east, north, up), used as given, without refraction
    std::optional<Point> ofHorizon(const Vector3 &horizon) const;

private:
    Matrix3 horizon;
    Matrix3 camera;
    RefractionConstants refraction;
    bool lifted;
};

/// Keeps the apparent places, which change slowly, between frames. Not for two threads at a time.
class Scene
{
public:
    /// The stars within `marginPixels` of the sensor.
    const std::vector<ImagedStar> &starsAt(const SkyState &state, double utcSeconds,
                                           double marginPixels = 60.0);

private:
    void refresh(const Site &site, double utcSeconds);

    Site placesSite = {std::numeric_limits<double>::quiet_NaN(), 0.0};
    double placesTime = 0.0;
    std::vector<Vector3> places;
    std::vector<ImagedStar> imaged;
};
} // namespace virtualsky
