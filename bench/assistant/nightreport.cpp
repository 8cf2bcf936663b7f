// SPDX-License-Identifier: MIT
// A night, tracking and not.
#include "bench/assistant/night.h"
#include "bench/assistant/reports.h"
#include "bench/assistant/start.h"

#include <cstdio>

void reportNight(double hours)
{
    std::printf("| mount | hours | frames | with a figure | worst error | in sigma | change of the "
                "mean | growth |\n|---|---|---|---|---|---|---|---|\n");
    for (const bool tracking : {true, false}) {
        virtualsky::SkyState sky = startingSky(4); // refraction is on
        sky.tracking = tracking;
        const NightResult night = nightAtRest(sky, hours, 10.0);
        std::printf("| %s | %.0f | %d | %d | %.2f\" | %.1f | %+.2f\" | %.2f MB |\n",
                    tracking ? "tracking" : "at rest", hours, night.frames, night.figures,
                    night.worstDrift, night.worstSigmas, night.change, night.growthMebibytes);
    }
}
