// SPDX-License-Identifier: MIT
// Measures the last frame's stars again.
#include "recognition/follower.h"

#include "recognition/extraction.h"
#include "recognition/fieldstars.h"
#include "recognition/outcome.h"
#include "recognition/refinement.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace recognition
{
namespace
{
constexpr std::size_t guides = 5;      // stars that give the field's shift
constexpr double foundPart = 0.5;      // of the stars looked for: fewer and the field is lost
constexpr double scaleChange = 0.01;   // relative; more is not the same lens
constexpr double knownScale = 0.05;    // relative, for searching again
constexpr double worseResiduals = 3.0; // times those of the last frame
constexpr double residualPixels = 0.5; // that are no cause for alarm

constexpr double placesLifetime = 60.0; // seconds

double middleOf(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

bool isInside(PixelPlace p, const cv::Mat &frame, double margin)
{
    return p.x >= margin && p.y >= margin && p.x <= frame.cols - 1 - margin &&
           p.y <= frame.rows - 1 - margin;
}
} // namespace

void Follower::reset()
{
    last.reset();
    measured.clear();
    byWindows = false;
    unlike = 0;
}

Recognition Follower::follow(const cv::Mat &frame, double utcSeconds)
{
    // Another size is another binning or another camera: nothing that was learned holds.
    if (last && !frame.empty() && (last->width != frame.cols || last->height != frame.rows))
        reset();
    std::optional<Recognition> result;
    if (last && !frame.empty())
        result = byLastFrame(frame, utcSeconds);
    byWindows = result.has_value();
    if (!result)
        result = byWholeFrame(frame, utcSeconds);
    // What was learned of lens and camera is kept while the field is lost; so are the stars, which
    // may be back in the next frame.
    if (result->status == RecognitionStatus::Recognised)
        last = result;
    return *result;
}

void Follower::enrol(const Recognition &recognition)
{
    roster.clear();
    for (const MatchedStar &star : recognition.matched)
        if (roster.size() < 2 * given.maxStars)
            roster.push_back(star.catalogue);
    refreshPlaces(recognition.utcSeconds);
}

void Follower::refreshPlaces(double utcSeconds)
{
    RecognitionOptions options = given.recognition;
    options.utcSeconds = utcSeconds;
    rosterPlaces = placesAsSeen(roster, options);
    enrolled = utcSeconds;
}

std::vector<Follower::Target> Follower::targets() const
{
    std::vector<Target> all;
    for (std::size_t i = 0; i < roster.size(); ++i)
        if (const auto place = last->mapping.pixelOf(rosterPlaces[i]))
            all.push_back({roster[i], *place});
    return all;
}

std::optional<Follower::Shift> Follower::shiftOf(const cv::Mat &frame,
                                                 const std::vector<Target> &expected) const
{
    std::vector<double> x, y;
    for (const Target &target : expected) {
        if (x.size() == guides)
            break;
        if (!isInside(target.place, frame, given.searchRadius + 1.0))
            continue;
        const auto star = measureStar(frame, target.place.x, target.place.y, given.searchRadius);
        if (!star)
            continue;
        x.push_back(star->x - target.place.x);
        y.push_back(star->y - target.place.y);
    }
    if (x.size() < 3)
        return std::nullopt;
    return Shift{middleOf(x), middleOf(y)};
}

Follower::Measured Follower::measure(const cv::Mat &frame, const std::vector<Target> &expected,
                                     Shift shift) const
{
    Measured found;
    for (const Target &target : expected) {
        const PixelPlace place = {target.place.x + shift.x, target.place.y + shift.y};
        if (found.tried == given.maxStars)
            break;
        if (!isInside(place, frame, given.windowRadius + 1.0))
            continue;
        ++found.tried;
        const auto star = measureStar(frame, place.x, place.y, given.windowRadius);
        if (!star)
            continue;
        found.catalogue.push_back(target.catalogue);
        found.stars.push_back(*star);
    }
    return found;
}

std::optional<Recognition> Follower::byLastFrame(const cv::Mat &frame, double utcSeconds)
{
    // With refraction the places go with the hour angle.
    if (std::abs(utcSeconds - enrolled) > placesLifetime)
        refreshPlaces(utcSeconds);
    const std::vector<Target> expected = targets();
    const std::optional<Shift> shift = shiftOf(frame, expected);
    if (!shift)
        return std::nullopt;
    Measured found = measure(frame, expected, *shift);
    const double enough =
        std::max(foundPart * static_cast<double>(found.tried), static_cast<double>(minStars));
    if (static_cast<double>(found.stars.size()) < enough)
        return std::nullopt;
    std::vector<Correspondence> known;
    for (std::size_t i = 0; i < found.stars.size(); ++i)
        known.push_back({i, found.catalogue[i]});
    RecognitionOptions options = given.recognition;
    options.utcSeconds = utcSeconds;
    const StarFrame starFrame = {found.stars, frame.cols, frame.rows};
    const auto refined = refine(starFrame, last->mirrored, known, found.catalogue, options);
    if (!refined || static_cast<double>(refined->matched.size()) < enough)
        return std::nullopt;
    Recognition result = outcomeOf(*refined, starFrame, last->hemisphere, std::log(last->chance),
                                   found.stars.size(), options);
    const bool likely = result.status == RecognitionStatus::Recognised &&
                        std::abs(result.scale / last->scale - 1.0) < scaleChange &&
                        result.rms < worseResiduals * last->rms + residualPixels * result.scale;
    if (!likely)
        return std::nullopt;
    measured = std::move(found.stars);
    return result;
}

RecognitionOptions Follower::narrowed(RecognitionOptions options) const
{
    options.hemisphere = last->hemisphere;
    options.mirrored = last->mirrored;
    options.minScale = std::max(options.minScale, last->scale * (1.0 - knownScale));
    options.maxScale = std::min(options.maxScale, last->scale * (1.0 + knownScale));
    return options;
}

Recognition Follower::byWholeFrame(const cv::Mat &frame, double utcSeconds)
{
    Extraction extraction = extractStars(frame);
    RecognitionOptions options = given.recognition;
    options.utcSeconds = utcSeconds;
    measured = std::exchange(extraction.stars, {});
    wholeFrame = std::move(extraction);
    Recognition result =
        recognise(measured, frame.cols, frame.rows, last ? narrowed(options) : options);
    // A blind search that finds nothing takes the longest: after the first frame that is like
    // nothing expected, every second one has to do.
    if (last && result.status == RecognitionStatus::NoMatch && unlike++ % 2 == 0)
        result = recognise(measured, frame.cols, frame.rows, options);
    if (result.status != RecognitionStatus::Recognised)
        return result;
    unlike = 0;
    enrol(result);
    return result;
}
} // namespace recognition
