// SPDX-License-Identifier: MIT
// Blind search by triangles.
#include "recognition/search.h"

#include "recognition/patterns.h"

#include <algorithm>
#include <cmath>

namespace recognition
{
namespace
{
using astrometry::Vector3;

constexpr std::size_t brightestInFrame = 16;
constexpr std::size_t brightestInPart = 8;
constexpr double leastSide = 8.0;          // pixels
constexpr double lensTolerance = 0.004;    // relative, of a side, by distortion
constexpr double greatestTolerance = 0.03; // of a ratio

struct Sky {
    Hemisphere hemisphere;
    const HemisphereIndex *index;
    std::vector<Vector3> places;
};

struct Triangle {
    std::array<std::size_t, 3> stars; // of the frame, opposite the longest side first
    std::array<CentredPixel, 3> pixels;
    Shape shape;
    double longest; // pixels
    bool positive;  // not mirrored
};

double distance(CentredPixel a, CentredPixel b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

std::optional<Triangle> triangleOf(const FrameStars &frame, std::array<std::size_t, 3> stars)
{
    struct Side {
        double length;
        std::size_t opposite;
    };
    std::array<Side, 3> sides;
    for (std::size_t i = 0; i < 3; ++i)
        sides[i] = {
            distance(frame.at(stars[(i + 1) % 3], false), frame.at(stars[(i + 2) % 3], false)),
            stars[i]};
    std::sort(sides.begin(), sides.end(),
              [](const Side &a, const Side &b) { return a.length > b.length; });
    Triangle t;
    t.longest = sides[0].length;
    t.shape = {sides[1].length / t.longest, sides[2].length / t.longest};
    if (!(sides[2].length > leastSide) || !isUsable(t.shape))
        return std::nullopt;
    for (std::size_t i = 0; i < 3; ++i) {
        t.stars[i] = sides[i].opposite;
        t.pixels[i] = frame.at(t.stars[i], false);
    }
    const auto &[p, q, r] = t.pixels;
    t.positive = (q.x - p.x) * (r.y - p.y) - (r.x - p.x) * (q.y - p.y) > 0.0;
    return t;
}

class Search
{
public:
    Search(const FrameStars &frameStars, const RecognitionOptions &recognitionOptions);

    /// True when found. Every triangle of a list of stars, the first ones first.
    bool tryTriangles(const std::vector<std::size_t> &stars);
    std::optional<SearchResult> found;

private:
    bool tryTriangle(const Triangle &triangle);
    bool tryPattern(const Triangle &triangle, const Sky &sky, const Pattern &pattern);
    double toleranceOf(const Triangle &triangle) const;

    const FrameStars &frame;
    const RecognitionOptions &options;
    std::vector<Sky> skies;
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

// A pinhole camera shows triangles off its centre drawn out, the more the wider its field.
double Search::toleranceOf(const Triangle &t) const
{
    double farthest = 0.0;
    for (const CentredPixel &p : t.pixels)
        farthest = std::max(farthest, std::hypot(p.x, p.y));
    const double widest = 2.0 * catalogueRadius / t.longest;
    const double scale = std::min(options.greatestScale * astrometry::arcsecond, widest);
    const double drawnOut = 0.5 * farthest * scale * farthest * scale;
    const double centroids = 2.0 * frame.centroidError() / t.longest;
    return std::min(lensTolerance + centroids + drawnOut, greatestTolerance);
}

bool Search::tryPattern(const Triangle &t, const Sky &sky, const Pattern &pattern)
{
    const double scale = pattern.longest / t.longest / astrometry::arcsecond;
    // The pinhole's stretching off the centre is corrected later.
    if (scale < 0.9 * options.leastScale || scale > 1.1 * options.greatestScale)
        return false;
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
    const double shortest = t.longest * t.shape.shortestRatio;
    const double tolerance = lensTolerance + 3.0 * frame.centroidError() / shortest;
    const auto pose = poseOf(pixels, places, pattern.longest, tolerance);
    if (!pose)
        return false;
    const double exactScale = 1.0 / (pose->focalLength * astrometry::arcsecond);
    if (exactScale < options.leastScale || exactScale > options.greatestScale)
        return false;
    const Hypothesis hypothesis = {*pose,
                                   mirrored,
                                   {{{t.stars[0], pattern.stars[0]},
                                     {t.stars[1], pattern.stars[1]},
                                     {t.stars[2], pattern.stars[2]}}}};
    if (!seemsRight(hypothesis, frame, sky.index->stars, sky.places))
        return false;
    Verification verification = verify(hypothesis, frame, sky.index->stars, sky.places);
    const double logChance = std::log(tries) - verification.logOdds;
    if (!(logChance < std::log(options.acceptedChance)))
        return false;
    found = SearchResult{sky.hemisphere, hypothesis, std::move(verification), logChance};
    return true;
}

bool Search::tryTriangle(const Triangle &triangle)
{
    const double tolerance = toleranceOf(triangle);
    for (const Sky &sky : skies)
        sky.index->patterns.visitLike(triangle.shape, tolerance, [&](const Pattern &pattern) {
            if (!found)
                tryPattern(triangle, sky, pattern);
        });
    return found.has_value();
}

bool Search::tryTriangles(const std::vector<std::size_t> &stars)
{
    for (std::size_t c = 2; c < stars.size(); ++c)
        for (std::size_t b = 1; b < c; ++b)
            for (std::size_t a = 0; a < b; ++a) {
                const auto triangle = triangleOf(frame, {stars[a], stars[b], stars[c]});
                if (triangle && tryTriangle(*triangle))
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
