// SPDX-License-Identifier: MIT
// How long does a frame take to become a status, in each stage?
#include "bench/assistant/mountonsky.h"
#include "bench/assistant/person.h"
#include "bench/assistant/reports.h"
#include "bench/assistant/start.h"
#include "bench/recognition/statistics.h"

#include <cstdio>
#include <vector>

namespace
{
void printRow(const char *what, const std::vector<double> &milliseconds)
{
    std::printf("| %s | %zu | %.1f ms | %.1f ms | %.1f ms |\n", what, milliseconds.size(),
                median(milliseconds), quantile(milliseconds, 0.95), quantile(milliseconds, 1.0));
}
} // namespace

void reportSpeed(int frames)
{
    std::printf("| frame | frames | median | 95 %% | longest |\n|---|---|---|---|---|\n");
    const virtualsky::SkyState sky = startingSky(0);
    PaintedMount mount(sky, settingsFor(sky));
    std::vector<double> blind, turning, atRest, bolts;
    for (int i = 0; i < frames / 10; ++i) {
        mount.guide().startAgain();
        mount.next();
        blind.push_back(1000.0 * mount.lastLatency());
    }
    for (assistant::Status status = mount.next(); status.stage != assistant::Stage::Bolts;) {
        virtualsky::SkyState turned = mount.sky();
        turned.raAngle += 0.6;
        mount.setSky(turned);
        status = mount.next();
        turning.push_back(1000.0 * mount.lastLatency());
    }
    for (int i = 0; i < frames; ++i) {
        mount.next();
        atRest.push_back(1000.0 * mount.lastLatency());
    }
    for (int i = 0; i < frames; ++i) {
        virtualsky::SkyState turned = mount.sky();
        turned.boltAltitude += i % 200 < 100 ? 0.002 : -0.002;
        mount.setSky(turned);
        mount.next();
        bolts.push_back(1000.0 * mount.lastLatency());
    }
    printRow("searched blind", blind);
    printRow("the RA axis turning", turning);
    printRow("bolts at rest", atRest);
    printRow("bolts turning", bolts);
}
