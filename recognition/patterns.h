// SPDX-License-Identifier: MIT
// Which triangles of catalogue stars have the shape of a triangle in the frame?
//
// A triangle's shape is the pair of its middle and shortest side over its longest. The index holds,
// for circles of several sizes all over the pole's sky, the triangles of each circle's brightest
// stars: what the brightest stars of a frame are likely to be.
#pragma once

#include "recognition/polestars.h"

#include <array>
#include <cstdint>
#include <vector>

namespace recognition
{
/// Sides as chords of the unit sphere. The stars are in the order of the sides
/// opposite them, longest first.
struct Pattern {
    std::array<std::uint16_t, 3> stars; ///< of PoleStars
    bool positive;                      ///< the triple product of the three directions
    float longest;
    float middleRatio, shortestRatio;
};

struct Shape {
    double middleRatio, shortestRatio;
};

/// Shapes nearer than this to isosceles are left out: the order of their stars is not sure.
inline constexpr double minAsymmetry = 0.015;
inline constexpr double minShortestRatio = 0.12;
bool isUsable(const Shape &shape);

class PatternIndex
{
public:
    explicit PatternIndex(const PoleStars &stars);

    std::size_t size() const { return patterns.size(); }

    /// Calls visit(pattern) for every pattern whose two ratios differ from `shape` by no more than
    /// `tolerance`.
    template <typename Visitor>
    void visitLike(const Shape &shape, double tolerance, Visitor visit) const;

private:
    static constexpr int rows = 128;    // of the middle ratio, 0.5 to 1
    static constexpr int columns = 256; // of the shortest ratio, 0 to 1
    static int rowOf(double middleRatio);
    static int columnOf(double shortestRatio);
    void sortIntoCells(std::vector<Pattern> &&unsorted);

    std::vector<Pattern> patterns;
    std::vector<std::uint32_t> cellStart;
};

/// The stars of one hemisphere and their patterns.
struct HemisphereIndex {
    explicit HemisphereIndex(Hemisphere hemisphere) : stars(hemisphere), patterns(stars) {}
    PoleStars stars;
    PatternIndex patterns;
};

/// Built at the first call for a hemisphere; constant from then on. Thread-safe.
const HemisphereIndex &hemisphereIndex(Hemisphere hemisphere);

inline bool isUsable(const Shape &shape)
{
    return shape.shortestRatio > minShortestRatio && 1.0 - shape.middleRatio > minAsymmetry &&
           shape.middleRatio - shape.shortestRatio > minAsymmetry;
}

inline int PatternIndex::rowOf(double ratio)
{
    const int row = static_cast<int>((ratio - 0.5) * (2 * rows));
    return row < 0 ? 0 : row >= rows ? rows - 1 : row;
}

inline int PatternIndex::columnOf(double ratio)
{
    const int column = static_cast<int>(ratio * columns);
    return column < 0 ? 0 : column >= columns ? columns - 1 : column;
}

template <typename Visitor>
void PatternIndex::visitLike(const Shape &shape, double tolerance, Visitor visit) const
{
    const int left = columnOf(shape.shortestRatio - tolerance);
    const int right = columnOf(shape.shortestRatio + tolerance);
    const int lastRow = rowOf(shape.middleRatio + tolerance);
    const auto middle = static_cast<float>(shape.middleRatio);
    const auto shortest = static_cast<float>(shape.shortestRatio);
    const auto most = static_cast<float>(tolerance);
    for (int row = rowOf(shape.middleRatio - tolerance); row <= lastRow; ++row) {
        const std::size_t start = static_cast<std::size_t>(row) * std::size_t(columns);
        const std::uint32_t last = cellStart[start + std::size_t(right) + 1];
        for (auto i = cellStart[start + std::size_t(left)]; i < last; ++i) {
            const Pattern &p = patterns[i];
            if (std::abs(p.middleRatio - middle) <= most &&
                std::abs(p.shortestRatio - shortest) <= most)
                visit(p);
        }
    }
}
} // namespace recognition
