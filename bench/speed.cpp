// SPDX-License-Identifier: MIT
// Measures individual operations of the program against plain implementations of the same work.
#include "bench/ratioreporter.h"
#include "resources/resources.h"

#include <QApplication>
#include <opencv2/core/utility.hpp>
#include <vector>

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    initialiseResources();
    // Repetitions of all benchmarks are interleaved, so that other load on the machine affects all.
    std::vector<char *> arguments(argv, argv + argc);
    char turns[] = "--benchmark_enable_random_interleaving=true";
    char repetitions[] = "--benchmark_repetitions=15";
    char duration[] = "--benchmark_min_time=0.1";
    char summary[] = "--benchmark_report_aggregates_only=false";
    arguments.insert(arguments.begin() + 1, {turns, repetitions, duration, summary});
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
