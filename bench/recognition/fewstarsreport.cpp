// SPDX-License-Identifier: MIT
// The pole's error and its claim for few stars, with lenses that distort and without.
#include <cstdio>
#include <initializer_list>

#include "bench/recognition/bars.h"
#include "bench/recognition/fewstars.h"
#include "bench/recognition/reports.h"

bool reportFewStars(int count)
{
    Bars bars;
    std::printf("| stars | distortion in the corners | frames | lost | rms | inside the two-sigma "
                "ellipse |\n|---|---|---|---|---|---|\n");
    constexpr int numbers[][2] = {{12, 19}, {20, 30}, {40, 60}};
    for (const auto &[least, most] : numbers)
        for (const double distortion : {0.0, 0.003, 0.01}) {
            const FewStarsTally tally = tallyFewStars({distortion, least, most}, count);
            std::printf("| %d to %d | %.1f %% | %d | %d | %.1f\" | %.1f %% |\n", least, most,
                        100.0 * distortion, tally.frames, tally.lost, tally.rms,
                        100.0 * tally.inside / tally.frames);
            bars.atMost("percent lost", 100.0 * tally.lost / (tally.frames + tally.lost), 2.0);
        }
    return bars.kept();
}
