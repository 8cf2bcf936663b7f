// SPDX-License-Identifier: MIT
// The astrometry of the virtual sky, by ERFA.
#include "virtualcamera/astrometry.h"

#include <erfa.h>

#include <algorithm>
#include <cmath>

namespace virtualsky
{
namespace
{
constexpr double secondsPerDay = 86400.0;
constexpr double unixEpochJulianDate = 2440587.5;
constexpr double milliarcsecond = arcsecond / 1000.0;
constexpr double wavelengthMicrometres = 0.55;

struct JulianDate {
    double day, fraction;
};

JulianDate julianDate(double utcSeconds)
{
    const double days = std::floor(utcSeconds / secondsPerDay);
    return {unixEpochJulianDate + days, (utcSeconds - days * secondsPerDay) / secondsPerDay};
}
} // namespace

std::vector<Vector3> apparentPlaces(const CatalogueStar *first, const CatalogueStar *last,
                                    const Site &site, double utcSeconds)
{
    const JulianDate utc = julianDate(utcSeconds);
    eraASTROM astrom;
    double equationOfOrigins = 0.0;
    // The status tells of dates far from the leap second table only; the places stay good.
    eraApco13(utc.day, utc.fraction, 0.0, site.longitude * degree, site.latitude * degree, 0.0, 0.0,
              0.0, 0.0, 0.0, 0.0, wavelengthMicrometres, &astrom, &equationOfOrigins);
    std::vector<Vector3> places;
    places.reserve(static_cast<std::size_t>(last - first));
    for (const CatalogueStar *star = first; star != last; ++star) {
        const double dec = star->decDegrees * degree;
        double ra = 0.0;
        double decOfDate = 0.0;
        eraAtciq(star->raDegrees * degree, dec, star->pmRaCosDec * milliarcsecond / std::cos(dec),
                 star->pmDec * milliarcsecond, star->parallax / 1000.0, 0.0, &astrom, &ra,
                 &decOfDate);
        places.push_back(direction(ra, decOfDate));
    }
    return places;
}

Matrix3 horizonFromCirs(const Site &site, double utcSeconds)
{
    const JulianDate ut1 = julianDate(utcSeconds);
    const double angle = eraEra00(ut1.day, ut1.fraction) + site.longitude * degree;
    const double sinLatitude = std::sin(site.latitude * degree);
    const double cosLatitude = std::cos(site.latitude * degree);
    const Vector3 meridian = {std::cos(angle), std::sin(angle), 0.0};
    const Vector3 east = {-std::sin(angle), std::cos(angle), 0.0};
    const Vector3 north = {-sinLatitude * meridian.x, -sinLatitude * meridian.y, cosLatitude};
    const Vector3 up = {cosLatitude * meridian.x, cosLatitude * meridian.y, sinLatitude};
    return {{east, north, up}};
}

RefractionConstants refractionConstants(double pressure, double temperature, double humidity)
{
    RefractionConstants constants;
    eraRefco(pressure, temperature, humidity, wavelengthMicrometres, &constants.a, &constants.b);
    return constants;
}

Vector3 refracted(const Vector3 &horizon, const RefractionConstants &constants)
{
    // One Newton step from the formula in observed zenith distance to the unrefracted one; the same
    // steps as eraAtioq's, limits included.
    const double level = std::max(std::hypot(horizon.x, horizon.y), 1e-6);
    const double height = std::max(horizon.z, 0.05);
    const double tangent = level / height;
    const double cubic = constants.b * tangent * tangent;
    const double lift =
        (constants.a + cubic) * tangent / (1.0 + (constants.a + 3.0 * cubic) / (height * height));
    const double shrink = 1.0 - lift * lift / 2.0 - lift * height / level;
    const Vector3 seen = {horizon.x * shrink, horizon.y * shrink,
                          (1.0 - lift * lift / 2.0) * horizon.z + lift * level};
    return scaled(seen, 1.0 / length(seen));
}
} // namespace virtualsky
