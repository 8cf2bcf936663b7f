// SPDX-License-Identifier: MIT
// Lengthens and shortens the exposure in steps.
#include "assistant/autoexposure.h"

#include <algorithm>
#include <cmath>

namespace assistant
{
namespace
{
using recognition::ExtractionStatus;

constexpr double relativeStep = 1e-3; // a smaller change is none
constexpr std::size_t manyStars = 40; // that are not the pole's: a longer exposure is no help

bool isSame(double a, double b)
{
    return std::abs(a - b) <= relativeStep * b;
}

double factorOf(const ExposureFacts &facts)
{
    switch (facts.status) {
    case ExtractionStatus::SaturatedSky:
        return 0.5;
    case ExtractionStatus::Black:
        return 2.0;
    case ExtractionStatus::TooFewStars:
        return facts.recognised && facts.stars >= enoughStars ? 1.0 : 2.0;
    case ExtractionStatus::Ok:
        if (facts.recognised)
            return facts.stars < enoughStars ? 1.5 : 1.0;
        return facts.stars < manyStars ? 1.5 : 1.0;
    case ExtractionStatus::BadFrame:
    case ExtractionStatus::TooLarge:
    case ExtractionStatus::NoSky:
    case ExtractionStatus::OutOfFocus:
    case ExtractionStatus::Trailed:
        break;
    }
    return 1.0;
}
} // namespace

double betterExposure(const ExposureFacts &facts)
{
    return std::clamp(facts.microseconds * factorOf(facts), shortestExposure, longestExposure);
}

void AutoExposure::setEnabled(bool on)
{
    enabled = on;
    next.reset();
    refused.reset();
    tooLong = 0.0;
}

void AutoExposure::consider(const ExposureFacts &facts)
{
    const bool isNew = !isSame(facts.microseconds, taken);
    taken = facts.microseconds;
    if (!enabled || !(facts.microseconds > 0.0) || isNew)
        return;
    if (next && !isSame(*next, facts.microseconds)) {
        if (++waited < patience)
            return; // the camera has not followed yet
        refused = next;
    }
    next.reset();
    waited = 0;
    double better = betterExposure(facts);
    if (better < facts.microseconds)
        tooLong = facts.microseconds;
    else if (tooLong > 0.0 && better >= tooLong)
        better = std::max(facts.microseconds, 0.75 * tooLong);
    const bool isRefused = refused && isSame(better, *refused);
    if (!isSame(better, facts.microseconds) && !isRefused)
        next = better;
}

std::optional<double> ExposureOrder::due(const std::optional<double> &wanted)
{
    if (!wanted || wanted == ordered) {
        if (!wanted)
            ordered.reset();
        return std::nullopt;
    }
    ordered = wanted;
    return wanted;
}
} // namespace assistant
