// SPDX-License-Identifier: MIT
// The few statistics of the recognition's reports.
#include "bench/recognition/statistics.h"

#include <algorithm>
#include <cmath>
#include <ctime>

double threadMilliseconds()
{
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) * 1e-6;
}

double quantile(std::vector<double> values, double part)
{
    if (values.empty())
        return 0.0;
    const auto place = values.begin() + std::ptrdiff_t(part * double(values.size() - 1));
    std::nth_element(values.begin(), place, values.end());
    return *place;
}

double median(const std::vector<double> &values)
{
    return quantile(values, 0.5);
}

double rms(const std::vector<double> &values)
{
    double sum = 0.0;
    for (const double value : values)
        sum += value * value;
    return values.empty() ? 0.0 : std::sqrt(sum / double(values.size()));
}

double squaredSigmas(double dx, double dy, const recognition::Covariance &claimed)
{
    const double determinant = claimed.xx * claimed.yy - claimed.xy * claimed.xy;
    return (claimed.yy * dx * dx - 2.0 * claimed.xy * dx * dy + claimed.xx * dy * dy) / determinant;
}
