// SPDX-License-Identifier: MIT
// Prints the method's accuracy as a Markdown table.
#include "bench/accuracy.h"
#include "resources/resources.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    initialiseResources();
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    constexpr int trials = 40;
    printf(
        "| pole | date of the sky | light | star A: rms / bound | star B: rms / bound | axis rms "
        "| pole: mean / rms / scatter | angles alone |\n|---|---|---|---|---|---|---|---|\n");
    for (const AccuracyCase &sky : accuracyCases()) {
        const Accuracy a = measureAccuracy(sky, trials);
        printf("| %s | %s | %s | %.3f / %.3f | %.3f / %.3f | %.3f | %.0f / %.0f / %.1f | %.0f |\n",
               sky.south ? "south" : "north", qPrintable(sky.date), qPrintable(sky.name),
               a.starA.rms, a.starA.bound, a.starB.rms, a.starB.bound, a.axisRms, a.poleMean,
               a.poleRms, a.poleScatter, poleErrorOfTheAngles(sky.date, sky.south));
        if (a.failures > 0)
            fprintf(stderr, "%s %s %s: nothing was found in %d trials\n",
                    sky.south ? "south" : "north", qPrintable(sky.date), qPrintable(sky.name),
                    a.failures);
    }
    return 0;
}
