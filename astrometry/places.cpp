// SPDX-License-Identifier: MIT
// Places of stars by ERFA.
#include "astrometry/places.h"

#include <erfa.h>

#include <cmath>

#include "astrometry/refraction.h"

namespace astrometry
{
namespace
{
constexpr double secondsPerDay = 86400.0;
constexpr double unixEpochJulianDate = 2440587.5;
constexpr double milliarcsecond = arcsecond / 1000.0;

struct JulianDate {
    double day, fraction;
};

JulianDate julianDate(double utcSeconds)
{
    const double days = std::floor(utcSeconds / secondsPerDay);
    return {unixEpochJulianDate + days, (utcSeconds - days * secondsPerDay) / secondsPerDay};
}

JulianDate terrestrialTime(double utcSeconds)
{
    const JulianDate utc = julianDate(utcSeconds);
    JulianDate tai = utc;
    JulianDate tt = utc;
    // The statuses report dates far from the leap second table only; they are a second off then.
    eraUtctai(utc.day, utc.fraction, &tai.day, &tai.fraction);
    eraTaitt(tai.day, tai.fraction, &tt.day, &tt.fraction);
    return tt;
}

std::vector<Vector3> placesOf(const CatalogueStar *first, const CatalogueStar *last,
                              eraASTROM &astrom)
{
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
} // namespace

std::vector<Vector3> apparentPlaces(const CatalogueStar *first, const CatalogueStar *last,
                                    const Site &site, double utcSeconds)
{
    const JulianDate utc = julianDate(utcSeconds);
    eraASTROM astrom;
    double origins = 0.0;
    // The status reports dates far from the leap second table only; the places stay good.
    eraApco13(utc.day, utc.fraction, 0.0, site.longitude * degree, site.latitude * degree, 0.0, 0.0,
              0.0, 0.0, 0.0, 0.0, wavelengthMicrometres, &astrom, &origins);
    return placesOf(first, last, astrom);
}

std::vector<Vector3> apparentPlaces(const CatalogueStar *first, const CatalogueStar *last,
                                    double utcSeconds)
{
    const JulianDate tt = terrestrialTime(utcSeconds);
    eraASTROM astrom;
    double origins = 0.0;
    // Terrestrial time is used for barycentric time: they differ by 2 ms at most.
    eraApci13(tt.day, tt.fraction, &astrom, &origins);
    return placesOf(first, last, astrom);
}

double equationOfOrigins(double utcSeconds)
{
    const JulianDate tt = terrestrialTime(utcSeconds);
    return eraEo06a(tt.day, tt.fraction);
}

double earthRotationAngle(double utcSeconds)
{
    const JulianDate ut1 = julianDate(utcSeconds);
    return eraEra00(ut1.day, ut1.fraction);
}

Matrix3 horizonFromCirs(const Site &site, double utcSeconds)
{
    const double angle = earthRotationAngle(utcSeconds) + site.longitude * degree;
    const double sinLatitude = std::sin(site.latitude * degree);
    const double cosLatitude = std::cos(site.latitude * degree);
    const Vector3 meridian = {std::cos(angle), std::sin(angle), 0.0};
    const Vector3 east = {-std::sin(angle), std::cos(angle), 0.0};
    const Vector3 north = {-sinLatitude * meridian.x, -sinLatitude * meridian.y, cosLatitude};
    const Vector3 up = {cosLatitude * meridian.x, cosLatitude * meridian.y, sinLatitude};
    return {{east, north, up}};
}

} // namespace astrometry
