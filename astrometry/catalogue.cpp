// SPDX-License-Identifier: MIT
// Finds the template stars in the catalogue.
#include "astrometry/catalogue.h"

#include "astrometry/vector3.h"

namespace astrometry
{
namespace
{
struct EquatorialPosition {
    double ra, dec;
};
// North: lambda UMi, Polaris, HD 221525. South: HD 90105, sigma Oct, HD 106461. Degrees, ICRS.
constexpr EquatorialPosition templatePositions[2][3] = {
    {{259.23525, 89.03772}, {37.95454, 89.26411}, {351.75363, 87.30750}},
    {{130.52279, -89.46053}, {317.19517, -88.95650}, {184.69192, -88.41492}}};
} // namespace

const CatalogueStar &nearestStar(double raDegrees, double decDegrees)
{
    const Vector3 wanted = direction(raDegrees * degree, decDegrees * degree);
    const CatalogueView stars = catalogue();
    const CatalogueStar *best = stars.begin();
    double bestCosine = -2.0;
    for (const CatalogueStar &star : stars) {
        const double cosine =
            dot(wanted, direction(star.raDegrees * degree, star.decDegrees * degree));
        if (cosine > bestCosine) {
            bestCosine = cosine;
            best = &star;
        }
    }
    return *best;
}

const CatalogueStar &templateStar(bool south, TemplateStar star)
{
    const EquatorialPosition &position = templatePositions[south ? 1 : 0][static_cast<int>(star)];
    return nearestStar(position.ra, position.dec);
}
} // namespace astrometry
