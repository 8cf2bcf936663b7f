// SPDX-License-Identifier: MIT
// The table of ratios of the repetitions' medians.
#include "bench/ratioreporter.h"

#include <algorithm>
#include <cstdio>
#include <limits>

namespace
{
/// One line of the table; `measured` and `plain` are benchmark names.
struct Ratio {
    const char *what;
    const char *measured;
    const char *plain;
};

constexpr Ratio ratios[] = {
    {"capture pass, no marks / two conversions", "capture/pass", "capture/conversions"},
    {"capture pass, three marks / two conversions", "capture/pass with marks",
     "capture/conversions"},
    {"two conversions into new memory / into old", "capture/conversions into new memory",
     "capture/conversions"},
    {"what monitoring adds / whole-frame form", "monitor/added", "monitor/plain"},
    {"frame shown at 100 % / bare", "display/shown 100", "display/bare 100"},
    {"frame shown at 75 % / bare", "display/shown 75", "display/bare 75"},
    {"frame shown at 50 % / bare", "display/shown 50", "display/bare 50"},
    {"virtual camera's frame / plain rendering", "camera/frame", "camera/plain"},
};
} // namespace

void RatioReporter::ReportRuns(const std::vector<Run> &runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run &run : runs)
        if (run.run_type == Run::RT_Iteration && !run.error_occurred)
            milliseconds[run.run_name.function_name].push_back(1e3 * run.cpu_accumulated_time /
                                                               double(run.iterations));
}

double RatioReporter::median(const std::string &name) const
{
    const auto found = milliseconds.find(name);
    if (found == milliseconds.end())
        return std::numeric_limits<double>::quiet_NaN();
    std::vector<double> values = found->second;
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void RatioReporter::Finalize()
{
    ConsoleReporter::Finalize();
    printf("\n%-46s %12s %12s %8s\n", "processor time, medians", "measured ms", "plain ms",
           "ratio");
    for (const Ratio &row : ratios) {
        const double measured = median(row.measured), plain = median(row.plain);
        printf("%-46s %12.4f %12.4f %8.3f\n", row.what, measured, plain, measured / plain);
    }
}
