// SPDX-License-Identifier: MIT
// Collects the triangles of the brightest stars and sorts them by shape.
#include "recognition/patterns.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace recognition
{
namespace
{
using astrometry::Vector3;

// Radii of the circles whose brightest stars make triangles, degrees: fields of 1.8 to 22 degrees.
constexpr double radii[] = {0.9, 1.3, 1.8, 2.5, 3.5, 5.0, 7.0, 10.0};
constexpr std::size_t starsInCircle = 8;
constexpr double farthestCentre = 11.0; // degrees from the pole, less for the largest circles
constexpr double year2025 = 1735689600.0;

using Triple = std::uint64_t; // three star numbers in rising order, 16 bits each

Triple triple(std::size_t a, std::size_t b, std::size_t c)
{
    return (Triple{a} << 32) | (Triple{b} << 16) | Triple{c};
}

void addCircle(const std::vector<Vector3> &places, const Vector3 &centre, double radius,
               std::vector<Triple> &triples)
{
    const double minCosine = std::cos(radius);
    std::array<std::size_t, starsInCircle> found;
    std::size_t n = 0;
    for (std::size_t i = 0; i < places.size() && n < starsInCircle; ++i)
        if (dot(places[i], centre) >= minCosine)
            found[n++] = i;
    for (std::size_t a = 0; a < n; ++a)
        for (std::size_t b = a + 1; b < n; ++b)
            for (std::size_t c = b + 1; c < n; ++c)
                triples.push_back(triple(found[a], found[b], found[c]));
}

void removeDuplicates(std::vector<Triple> &triples)
{
    std::sort(triples.begin(), triples.end());
    triples.erase(std::unique(triples.begin(), triples.end()), triples.end());
}

// Circles on a square grid of half their radius, about the pole at z = +1 or -1.
std::vector<Triple> triplesOf(const std::vector<Vector3> &places)
{
    const double sign = places.front().z > 0.0 ? 1.0 : -1.0;
    std::vector<Triple> triples;
    for (const double degrees : radii) {
        const double radius = degrees * astrometry::degree;
        const double farthest = farthestCentre * astrometry::degree;
        const double spacing = 0.5 * radius;
        const int steps = static_cast<int>(farthest / spacing);
        for (int iy = -steps; iy <= steps; ++iy)
            for (int ix = -steps; ix <= steps; ++ix) {
                const double x = ix * spacing;
                const double y = iy * spacing;
                const double squared = x * x + y * y;
                if (squared <= farthest * farthest)
                    addCircle(places, {x, y, sign * std::sqrt(1.0 - squared)}, radius, triples);
            }
    }
    removeDuplicates(triples);
    return triples;
}

struct Side {
    double chord;
    std::uint16_t opposite;
};

Pattern patternOf(const std::vector<Vector3> &places, Triple t)
{
    const std::uint16_t star[3] = {static_cast<std::uint16_t>(t >> 32),
                                   static_cast<std::uint16_t>(t >> 16),
                                   static_cast<std::uint16_t>(t)};
    std::array<Side, 3> sides;
    for (std::size_t i = 0; i < 3; ++i) {
        const Vector3 &a = places[star[(i + 1) % 3]];
        const Vector3 &b = places[star[(i + 2) % 3]];
        sides[i] = {length(Vector3{a.x - b.x, a.y - b.y, a.z - b.z}), star[i]};
    }
    std::sort(sides.begin(), sides.end(),
              [](const Side &a, const Side &b) { return a.chord > b.chord; });
    const Vector3 &p = places[sides[0].opposite];
    const Vector3 &q = places[sides[1].opposite];
    const Vector3 &r = places[sides[2].opposite];
    return {{sides[0].opposite, sides[1].opposite, sides[2].opposite},
            dot(p, cross(q, r)) > 0.0,
            static_cast<float>(sides[0].chord),
            static_cast<float>(sides[1].chord / sides[0].chord),
            static_cast<float>(sides[2].chord / sides[0].chord)};
}
} // namespace

PatternIndex::PatternIndex(const PoleStars &stars)
{
    const std::vector<Vector3> places = stars.placesAt(year2025);
    std::vector<Pattern> unsorted;
    for (const Triple t : triplesOf(places)) {
        const Pattern pattern = patternOf(places, t);
        if (isUsable({pattern.middleRatio, pattern.shortestRatio}))
            unsorted.push_back(pattern);
    }
    sortIntoCells(std::move(unsorted));
}

void PatternIndex::sortIntoCells(std::vector<Pattern> &&unsorted)
{
    const auto cell = [](const Pattern &p) {
        const int number = rowOf(p.middleRatio) * columns + columnOf(p.shortestRatio);
        return static_cast<std::size_t>(number);
    };
    cellStart.assign(static_cast<std::size_t>(rows * columns) + 1, 0);
    for (const Pattern &p : unsorted)
        ++cellStart[cell(p) + 1];
    for (std::size_t i = 1; i < cellStart.size(); ++i)
        cellStart[i] += cellStart[i - 1];
    std::vector<std::uint32_t> next = cellStart;
    patterns.resize(unsorted.size());
    for (const Pattern &p : unsorted)
        patterns[next[cell(p)]++] = p;
}

const HemisphereIndex &hemisphereIndex(Hemisphere hemisphere)
{
    // Never destroyed: a thread that recognises may outlive main().
    if (hemisphere == Hemisphere::North) {
        static const auto *const north = new HemisphereIndex(Hemisphere::North);
        return *north;
    }
    static const auto *const south = new HemisphereIndex(Hemisphere::South);
    return *south;
}
} // namespace recognition
