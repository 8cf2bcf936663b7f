// SPDX-License-Identifier: MIT
// What error remains after alignments from random starts?
#include "bench/assistant/reports.h"
#include "bench/assistant/start.h"
#include "bench/recognition/statistics.h"

#include <cstdio>
#include <vector>

void reportStarts(int count,
                  const std::function<AlignmentResult(const virtualsky::SkyState &)> &align)
{
    std::printf("| start | true error | shown | sigma | inside | seconds | of bolts |\n"
                "|---|---|---|---|---|---|---|\n");
    std::vector<double> errors;
    int inside = 0;
    for (int i = 0; i < count; ++i) {
        const virtualsky::SkyState sky = startingSky(std::uint64_t(i));
        const AlignmentResult result = align(sky);
        if (!result.finished) {
            std::printf("| %d | %s |\n", i, result.whyNot.c_str());
            continue;
        }
        errors.push_back(result.trueError);
        inside += result.inside;
        std::printf("| %d | %.2f\" | %.2f\" | %.2f\" | %s | %.0f | %.0f |\n", i, result.trueError,
                    result.shown, result.sigma, result.inside ? "yes" : "no", result.seconds,
                    result.boltsSeconds);
        std::fflush(stdout);
    }
    std::printf("\nfinished %zu of %d, median %.2f\", worst %.2f\", inside two sigma %d\n",
                errors.size(), count, median(errors), quantile(errors, 1.0), inside);
}
