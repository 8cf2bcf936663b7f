// SPDX-License-Identifier: MIT
// Keeps the first frame and measures it again when what it is measured against changes.
#include "assistant/beginning.h"

#include "assistant/errorfigures.h"

#include <utility>

namespace assistant
{
void Beginning::take(const recognition::Recognition &frame,
                     const std::vector<recognition::DetectedStar> &stars,
                     const recognition::Axis &axis, const Settings &given)
{
    settings = given;
    began = First{frame, {}, axis};
    for (const recognition::MatchedStar &match : frame.matched)
        began->stars.push_back(stars[match.detected]);
    mayImprove = true;
    measure();
}

void Beginning::setSettings(const Settings &given)
{
    settings = given;
    if (began)
        recogniseAgain();
}

void Beginning::improveAxis(const recognition::Axis &axis)
{
    if (!began || !mayImprove)
        return;
    began->axis = axis;
    measure();
}

void Beginning::shiftClock(double seconds)
{
    if (!began)
        return;
    began->frame.utcSeconds += seconds;
    recogniseAgain();
}

/// All stars are known to be the pole's, so eight of them are recognised in practice always. If
/// not, the places stay refracted as before, which moves the axis by less than the air lifts it.
void Beginning::recogniseAgain()
{
    constexpr double scaleSlack = 0.02; // relative
    const recognition::Recognition &frame = began->frame;
    recognition::RecognitionOptions options;
    options.utcSeconds = frame.utcSeconds;
    options.hemisphere = frame.hemisphere;
    options.minScale = frame.scale * (1.0 - scaleSlack);
    options.maxScale = frame.scale * (1.0 + scaleSlack);
    options.mirrored = frame.mirrored;
    options.observer = observerOf(settings, frame.hemisphere);
    recognition::Recognition again =
        recognition::recognise(began->stars, frame.width, frame.height, options);
    if (again.status == recognition::RecognitionStatus::Recognised)
        began->frame = std::move(again);
    measure();
}

void Beginning::measure()
{
    const auto error = frameErrorOf(began->frame, began->axis, settings);
    figures = error ? std::optional<ErrorFigures>(figuresOf(*error, settings.site)) : std::nullopt;
}
} // namespace assistant
