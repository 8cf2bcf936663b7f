// SPDX-License-Identifier: MIT
// Refraction by ERFA's two constants.
#include "astrometry/refraction.h"

#include <erfa.h>

#include <algorithm>
#include <cmath>

namespace astrometry
{
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
} // namespace astrometry
