// SPDX-License-Identifier: MIT
// Which exposure is shown between the user's choice and the camera's answer?
#pragma once

#include <optional>

namespace assistantwindow
{
/// What the user asked for counts until the camera reports it, or has had `patience` for it.
class AskedExposure
{
public:
    static constexpr double patience = 3.0; // seconds

    /// @param microseconds nothing: automatic
    void ask(std::optional<double> microseconds, double now);
    /// Whether what the camera reports is not to be shown yet.
    bool isAwaited(double microseconds, bool automatic, double now);

private:
    bool awaited = false;
    std::optional<double> wanted;
    double since = 0.0;
};
} // namespace assistantwindow
