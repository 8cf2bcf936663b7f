// SPDX-License-Identifier: MIT
// The way of the stars from the catalogue into the picture.
#include "virtualcamera/scene.h"

#include <cmath>

#include "virtualcamera/mount.h"

namespace virtualsky
{
namespace
{
// Apparent places move by well under a milliarcsecond in this time.
constexpr double refreshSeconds = 60.0;
} // namespace

Site siteOf(const SkyState &state)
{
    return {state.latitude, state.longitude};
}

RefractionConstants refractionOf(const SkyState &state)
{
    if (!state.refraction)
        return {};
    return refractionConstants(state.pressure, state.temperature, state.humidity);
}

PlaceInPicture::PlaceInPicture(const SkyState &state, double utcSeconds)
    : horizon(horizonFromCirs(siteOf(state), utcSeconds)),
      camera(cameraFromHorizon(state, utcSeconds)),
      refraction(refractionOf(state)),
      lifted(state.refraction)
{
}

std::optional<Point> PlaceInPicture::ofCirs(const Vector3 &cirs) const
{
    const Vector3 seen = apply(horizon, cirs);
    return ofHorizon(lifted ? refracted(seen, refraction) : seen);
}

std::optional<Point> PlaceInPicture::ofHorizon(const Vector3 &direction) const
{
    return project(apply(camera, direction));
}

void Scene::refresh(const Site &site, double utcSeconds)
{
    const bool fresh = site.latitude == placesSite.latitude &&
                       site.longitude == placesSite.longitude &&
                       std::abs(utcSeconds - placesTime) < refreshSeconds;
    if (fresh)
        return;
    const CatalogueView all = catalogue();
    places = apparentPlaces(all.begin(), all.end(), site, utcSeconds);
    placesSite = site;
    placesTime = utcSeconds;
}

const std::vector<ImagedStar> &Scene::starsAt(const SkyState &state, double utcSeconds,
                                              double marginPixels)
{
    refresh(siteOf(state), utcSeconds);
    const PlaceInPicture where(state, utcSeconds);
    imaged.clear();
    const CatalogueStar *star = catalogue().begin();
    for (const Vector3 &cirs : places) {
        const std::optional<Point> place = where.ofCirs(cirs);
        const bool seen = place && place->x > -marginPixels && place->y > -marginPixels &&
                          place->x < sensorWidth + marginPixels &&
                          place->y < sensorHeight + marginPixels;
        if (seen)
            imaged.push_back({*place, star->vMagnitude, star->bMinusV});
        ++star;
    }
    return imaged;
}
} // namespace virtualsky
