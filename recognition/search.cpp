// SPDX-License-Identifier: MIT
// Blind search by triangles.
#include "recognition/search.h"

#include "recognition/frametriangle.h"
#include "recognition/patterns.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <unordered_set>

namespace recognition
{
namespace
{
using astrometry::Vector3;

constexpr std::size_t brightestInFrame = 12;
constexpr std::size_t brightestInPart = 7;
constexpr double minSide = 8.0;          // pixels
constexpr double lensTolerance = 0.0025; // relative, of a side, by distortion
constexpr double widestTangent = 1.2;    // of the angle off the centre, of a triangle's corner
constexpr double maxPattern = 20.5 * astrometry::degree; // the index has none wider

struct Sky {
    Hemisphere hemisphere;
    const HemisphereIndex *index;
    std::vector<Vector3> places;
};

double distance(CentredPixel a, CentredPixel b)
{
    const double dx = a.x - b.x;
    const double dy = a.y - b.y;
    return std::sqrt(dx * dx + dy * dy);
}

class Search
{
public:
    Search(const FrameStars &frameStars, const RecognitionOptions &recognitionOptions);

    /// True when found. Every triangle of a list of stars, the first ones first.
    bool tryTriangles(const std::vector<std::size_t> &stars);
    std::optional<SearchResult> found;

private:
    bool isNew(const std::array<std::size_t, 3> &stars);
    bool tryTriangle(const std::array<std::size_t, 3> &stars);
    bool tryPattern(const FrameTriangle &triangle, const Sky &sky, const Pattern &pattern,
                    double tolerance);

    const FrameStars &frame;
    const RecognitionOptions &options;
    std::vector<Sky> skies;
    std::unordered_set<std::uint64_t> tried; // parts of the frame share stars
    double tries = 0.0;
};

Search::Search(const FrameStars &frameStars, const RecognitionOptions &recognitionOptions)
    : frame(frameStars), options(recognitionOptions)
{
    for (const Hemisphere hemisphere : {Hemisphere::North, Hemisphere::South})
        if (options.hemisphere.value_or(hemisphere) == hemisphere) {
            const HemisphereIndex &index = hemisphereIndex(hemisphere);
            skies.push_back({hemisphere, &index, index.stars.placesAt(options.utcSeconds)});
        }
}

bool Search::tryPattern(const FrameTriangle &t, const Sky &sky, const Pattern &pattern,
                        double tolerance)
{
    const bool mirrored = pattern.positive != t.positive;
    if (options.mirrored && *options.mirrored != mirrored)
        return false;
    tries += 1.0;
    std::array<CentredPixel, 3> pixels = t.pixels;
    std::array<Vector3, 3> places;
    for (std::size_t i = 0; i < 3; ++i) {
        pixels[i].x = mirrored ? -pixels[i].x : pixels[i].x;
        places[i] = sky.places[pattern.stars[i]];
    }
    const auto pose = poseOf(pixels, places, pattern.longest, tolerance);
    if (!pose)
        return false;
    const double exactScale = 1.0 / (pose->focalLength * astrometry::arcsecond);
    if (exactScale < options.minScale || exactScale > options.maxScale)
        return false;
    const Hypothesis hypothesis = {*pose,
                                   mirrored,
                                   {{{t.stars[0], pattern.stars[0]},
                                     {t.stars[1], pattern.stars[1]},
                                     {t.stars[2], pattern.stars[2]}}}};
    Verification verification = verify(hypothesis, frame, sky.index->stars, sky.places);
    const double logChance = std::log(tries) - verification.logOdds;
    if (!(logChance < std::log(options.acceptedChance)))
        return false;
    found = SearchResult{sky.hemisphere, hypothesis, std::move(verification), logChance};
    return true;
}

bool Search::tryTriangle(const std::array<std::size_t, 3> &stars)
{
    std::array<CentredPixel, 3> pixels;
    double farthest = 0.0;
    for (std::size_t i = 0; i < 3; ++i) {
        pixels[i] = frame.at(stars[i], false);
        farthest = std::max(farthest, std::hypot(pixels[i].x, pixels[i].y));
    }
    const double a = distance(pixels[0], pixels[1]);
    const double b = distance(pixels[1], pixels[2]);
    const double c = distance(pixels[2], pixels[0]);
    const double shortest = std::min({a, b, c});
    const double longest = std::max({a, b, c});
    if (!(shortest > minSide))
        return false;
    const double least = options.minScale * astrometry::arcsecond;
    const double greatest = std::min(
        {options.maxScale * astrometry::arcsecond, maxPattern / longest, widestTangent / farthest});
    const double centroids = frame.centroidError() / longest;
    const double tolerance = lensTolerance + shapeChange + 1.3 * centroids;
    const double sideTolerance = lensTolerance + 1.3 * frame.centroidError() / shortest;
    for (const ScaleRange &range : scaleRanges(farthest, least, greatest)) {
        const auto triangle = triangleAt(stars, pixels, range);
        if (!triangle)
            continue;
        const auto shortEnd = static_cast<float>(triangle->longest * range.least / triangle->scale);
        const auto longEnd =
            static_cast<float>(triangle->longest * range.greatest / triangle->scale);
        for (const Sky &sky : skies)
            sky.index->patterns.visitLike(triangle->shape, tolerance, [&](const Pattern &pattern) {
                if (!found && pattern.longest >= shortEnd && pattern.longest <= longEnd)
                    tryPattern(*triangle, sky, pattern, sideTolerance);
            });
        if (found)
            return true;
    }
    return false;
}

bool Search::isNew(const std::array<std::size_t, 3> &stars)
{
    return tried
        .insert((std::uint64_t{stars[0]} << 42) | (std::uint64_t{stars[1]} << 21) | stars[2])
        .second;
}

bool Search::tryTriangles(const std::vector<std::size_t> &stars)
{
    for (std::size_t c = 2; c < stars.size(); ++c)
        for (std::size_t b = 1; b < c; ++b)
            for (std::size_t a = 0; a < b; ++a) {
                const std::array<std::size_t, 3> triangle = {stars[a], stars[b], stars[c]};
                if (isNew(triangle) && tryTriangle(triangle))
                    return true;
            }
    return false;
}

// The brightest stars of a part of the frame; its middle and size in parts of the frame's.
std::vector<std::size_t> brightestOf(const FrameStars &frame, std::size_t most, CentredPixel middle,
                                     double halfWidth, double halfHeight)
{
    std::vector<std::size_t> stars;
    for (std::size_t i = 0; i < frame.size() && stars.size() < most; ++i) {
        const CentredPixel p = frame.at(i, false);
        if (std::abs(p.x - middle.x) <= halfWidth && std::abs(p.y - middle.y) <= halfHeight)
            stars.push_back(i);
    }
    return stars;
}
} // namespace

std::optional<SearchResult> search(const FrameStars &frame, int width, int height,
                                   const RecognitionOptions &options)
{
    Search attempt(frame, options);
    if (attempt.tryTriangles(brightestOf(frame, brightestInFrame, {0, 0}, width, height)))
        return std::move(attempt.found);
    for (const double fraction : {0.25, 1.0 / 6.0}) // half widths of the parts: halves, thirds
        for (double y = -0.5 + fraction; y < 0.5; y += fraction)
            for (double x = -0.5 + fraction; x < 0.5; x += fraction)
                if (attempt.tryTriangles(brightestOf(frame, brightestInPart,
                                                     {x * width, y * height}, fraction * width,
                                                     fraction * height)))
                    return std::move(attempt.found);
    return std::nullopt;
}
} // namespace recognition
