// SPDX-License-Identifier: MIT
// Ranges of scale, and triangles seen through a pinhole camera.
#include "recognition/frametriangle.h"

#include <algorithm>
#include <cmath>

namespace recognition
{
namespace
{
// The square of the chord between the directions of two pixels.
double chordSquared(CentredPixel a, CentredPixel b, double squaredFocalLength)
{
    const double aa = a.x * a.x + a.y * a.y + squaredFocalLength;
    const double bb = b.x * b.x + b.y * b.y + squaredFocalLength;
    const double ab = a.x * b.x + a.y * b.y + squaredFocalLength;
    // 2 - 2 cos without its loss of digits: sin^2 = (aa bb - ab^2) / (aa bb).
    const double sineSquared = (aa * bb - ab * ab) / (aa * bb);
    const double cosine = ab / std::sqrt(aa * bb);
    return 2.0 * sineSquared / (1.0 + cosine);
}
} // namespace

std::vector<ScaleRange> scaleRanges(double farthest, double minScale, double maxScale)
{
    std::vector<ScaleRange> ranges;
    // Drawn out by 1 + (farthest scale)^2 / 2 at most.
    const auto drawnOut = [farthest](double scale) {
        return 0.5 * farthest * farthest * scale * scale;
    };
    double least = minScale;
    while (least < maxScale) {
        double greatest = farthest > 0.0
                              ? std::sqrt(2.0 * (drawnOut(least) + 2.0 * shapeChange)) / farthest
                              : maxScale;
        greatest = std::min(greatest, maxScale);
        ranges.push_back({least, greatest});
        least = greatest;
    }
    if (ranges.empty())
        ranges.push_back({minScale, maxScale});
    return ranges;
}

std::optional<FrameTriangle> triangleAt(const std::array<std::size_t, 3> &stars,
                                        const std::array<CentredPixel, 3> &pixels,
                                        const ScaleRange &range)
{
    struct Side {
        double squared;
        std::size_t opposite;
    };
    // The middle of what the shape does between the ends, which goes with the square.
    const double scale =
        std::sqrt(0.5 * (range.least * range.least + range.greatest * range.greatest));
    const double squaredFocalLength = 1.0 / (scale * scale);
    std::array<Side, 3> sides;
    for (std::size_t i = 0; i < 3; ++i)
        sides[i] = {chordSquared(pixels[(i + 1) % 3], pixels[(i + 2) % 3], squaredFocalLength), i};
    std::sort(sides.begin(), sides.end(),
              [](const Side &a, const Side &b) { return a.squared > b.squared; });
    FrameTriangle t;
    t.scale = scale;
    t.longest = std::sqrt(sides[0].squared);
    t.shape = {std::sqrt(sides[1].squared) / t.longest, std::sqrt(sides[2].squared) / t.longest};
    if (!isUsable(t.shape))
        return std::nullopt;
    for (std::size_t i = 0; i < 3; ++i) {
        t.stars[i] = stars[sides[i].opposite];
        t.pixels[i] = pixels[sides[i].opposite];
    }
    const auto &[p, q, r] = t.pixels;
    t.positive = (q.x - p.x) * (r.y - p.y) - (r.x - p.x) * (q.y - p.y) > 0.0;
    return t;
}
} // namespace recognition
