// SPDX-License-Identifier: MIT
// Keeps the points of the plot.
#include "assistant/history.h"

namespace assistant
{
void History::add(const Status &status, double seconds)
{
    if (!recorded.empty() && seconds < recorded.back().seconds)
        recorded.clear();
    while (!recorded.empty() && seconds - recorded.front().seconds > longest)
        recorded.pop_front();
    if (!status.error || (!recorded.empty() && seconds - recorded.back().seconds < spacing))
        return;
    const auto value = [](const std::optional<recognition::Measured> &measured) {
        return measured ? std::optional<double>(measured->arcseconds) : std::nullopt;
    };
    recorded.push_back({seconds, status.error->total.arcseconds, value(status.error->altitude),
                        value(status.error->azimuth)});
}
} // namespace assistant
