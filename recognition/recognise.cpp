// SPDX-License-Identifier: MIT
// From a list of stars to the pole: search, refinement and what follows from the mapping.
#include "recognition/recognise.h"

#include "recognition/outcome.h"
#include "recognition/patterns.h"
#include "recognition/refinement.h"
#include "recognition/search.h"

#include <algorithm>
#include <cmath>

namespace recognition
{
namespace
{
using astrometry::Vector3;

constexpr std::size_t maxStars = 1500; // more would only cost time

bool areValid(int width, int height, const RecognitionOptions &options)
{
    constexpr double year1900 = -2208988800.0;
    constexpr double year2200 = 7258118400.0;
    return width > 0 && height > 0 && width <= 65536 && height <= 65536 && options.minScale > 0.0 &&
           options.maxScale >= options.minScale && options.maxScale <= coarsestScale &&
           options.acceptedChance > 0.0 && options.acceptedChance < 1.0 &&
           options.utcSeconds >= year1900 && options.utcSeconds <= year2200;
}

bool isFinite(const DetectedStar &star)
{
    return std::isfinite(star.x) && std::isfinite(star.y);
}

// The frame's own stars, and the index of each in the given list.
struct UsableStars {
    std::vector<DetectedStar> stars;
    std::vector<std::size_t> given;
};

UsableStars usableStars(const std::vector<DetectedStar> &stars, int width, int height)
{
    UsableStars usable;
    for (std::size_t i = 0; i < stars.size() && usable.stars.size() < maxStars; ++i) {
        const DetectedStar &s = stars[i];
        const bool inside = isFinite(s) && s.x > -1.0 && s.y > -1.0 && s.x < width && s.y < height;
        if (!inside)
            continue;
        usable.stars.push_back(s);
        usable.given.push_back(i);
    }
    return usable;
}

FrameStars frameStarsOf(const std::vector<DetectedStar> &stars, int width, int height)
{
    std::vector<CentredPixel> pixels;
    double widths = 0.0;
    for (const DetectedStar &star : stars) {
        pixels.push_back({star.x - (width - 1) / 2.0, star.y - (height - 1) / 2.0});
        widths += star.fwhm > 0.0 && star.fwhm < 50.0 ? star.fwhm : 2.5;
    }
    const double centroidError =
        std::min(0.3 + 0.1 * widths / static_cast<double>(stars.size()), 1.5);
    return FrameStars(std::move(pixels), width, height, centroidError);
}

// The catalogue's stars in a circle about the frame.
std::vector<std::size_t> fieldOf(const SearchResult &found, const FrameStars &frame,
                                 const PoleStars &stars, double utcSeconds)
{
    constexpr double margin = 1.1;
    const Pose &pose = found.hypothesis.pose;
    const Vector3 &forward = pose.cameraFromSky.rows[2];
    const double minCosine = std::cos(std::atan(margin * frame.radius() / pose.focalLength));
    const std::vector<Vector3> places = stars.placesAt(utcSeconds);
    std::vector<std::size_t> field;
    for (std::size_t i = 0; i < places.size(); ++i)
        if (dot(places[i], forward) > minCosine)
            field.push_back(stars.catalogueIndex(i));
    return field;
}
} // namespace

Recognition recognise(const std::vector<DetectedStar> &stars, int width, int height,
                      const RecognitionOptions &options)
{
    Recognition result;
    result.extracted = stars.size();
    result.utcSeconds = options.utcSeconds;
    result.width = width;
    result.height = height;
    if (!areValid(width, height, options)) {
        result.status = RecognitionStatus::InvalidOptions;
        return result;
    }
    const UsableStars usable = usableStars(stars, width, height);
    if (usable.stars.size() < minStars) {
        result.status = RecognitionStatus::TooFewStars;
        return result;
    }
    const FrameStars frame = frameStarsOf(usable.stars, width, height);
    const std::optional<SearchResult> found = search(frame, width, height, options);
    if (!found)
        return result;
    const PoleStars &poleStars = hemisphereIndex(found->hemisphere).stars;
    std::vector<Correspondence> known;
    for (const Pair &pair : found->verification.pairs)
        known.push_back({pair.first, poleStars.catalogueIndex(pair.second)});
    const std::optional<Refined> refined =
        refine({usable.stars, width, height}, found->hypothesis.mirrored, known,
               fieldOf(*found, frame, poleStars, options.utcSeconds), options);
    if (!refined || refined->matched.size() < minStars)
        return result;
    result = outcomeOf(*refined, {usable.stars, width, height}, found->hemisphere, found->logChance,
                       stars.size(), options);
    for (MatchedStar &star : result.matched)
        star.detected = usable.given[star.detected];
    return result;
}
} // namespace recognition
