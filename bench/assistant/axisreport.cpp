// SPDX-License-Identifier: MIT
// How exactly is the axis known when the second stage ends, and is the claim honest?
#include "bench/assistant/reports.h"
#include "bench/assistant/start.h"
#include "bench/recognition/statistics.h"
#include "virtualcamera/optics.h"

#include <cmath>
#include <cstdio>
#include <vector>

void reportAxis(int count, double degreesPerSecond)
{
    std::vector<double> errors, sigmas, frames;
    int inside = 0;
    for (int i = 0; i < count; ++i) {
        const virtualsky::SkyState sky = startingSky(std::uint64_t(i));
        PaintedMount mount(sky, settingsFor(sky));
        if (!turnAxisAsTold(mount, degreesPerSecond))
            continue;
        const assistant::AxisProgress axis = mount.next().axis;
        const virtualsky::Truth truth = mount.truth();
        const double x = axis.place->x - truth.axis->x, y = axis.place->y - truth.axis->y;
        errors.push_back(std::hypot(x, y) * virtualsky::pixelScale);
        sigmas.push_back(axis.sigmaArcseconds);
        frames.push_back(double(axis.frames));
        inside += squaredSigmas(x, y, axis.covariance) <= twoSigmaEllipse;
    }
    std::printf("%zu of %d, %g degrees a second: error median %.2f\", 95 %% %.2f\", worst %.2f\"; "
                "claimed sigma median %.2f\"; %.0f frames; inside two sigma %.1f %%\n",
                errors.size(), count, degreesPerSecond, median(errors), quantile(errors, 0.95),
                quantile(errors, 1.0), median(sigmas), median(frames),
                100.0 * inside / double(errors.size()));
    std::fflush(stdout);
}
