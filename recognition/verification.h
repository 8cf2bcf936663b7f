// SPDX-License-Identifier: MIT
// How much likelier are a frame's stars under a pose than by chance?
//
// The stars are added one after the other, brightest first. Each one's place is predicted by the
// pose and by those before it; the odds are the product of the predicted densities over the density
// of stars at random places. By chance their expectation is 1, so odds of K or more occur with
// a probability of 1 / K at most (Markov's inequality), whatever the frame.
#pragma once

#include "recognition/polestars.h"
#include "recognition/pose.h"

#include <array>
#include <cstddef>
#include <utility>
#include <vector>

namespace recognition
{
/// The stars of one frame, brightest first, for verification.
class FrameStars
{
public:
    /// @param width, height of the frame, pixels  @param centroidError pixels, one axis
    FrameStars(std::vector<CentredPixel> stars, int width, int height, double centroidError);

    std::size_t size() const { return stars.size(); }
    /// @param mirrored gives the place in a frame that is assumed to be mirrored
    CentredPixel at(std::size_t i, bool mirrored) const
    {
        return {mirrored ? -stars[i].x : stars[i].x, stars[i].y};
    }
    /// Stars a pixel of area around star i: half spread evenly, half as they were found, so
    /// that crowds make no odds.
    double randomDensity(std::size_t i) const { return densities[i]; }

    double area() const { return framePixels; }    ///< pixels
    double radius() const { return halfDiagonal; } ///< pixels
    double centroidError() const { return sigma; } ///< pixels

private:
    void estimateDensities(int width, int height);

    std::vector<CentredPixel> stars;
    std::vector<double> densities;
    double framePixels, halfDiagonal, sigma;
};

/// A frame's star and the catalogue star (of PoleStars) that it is.
using Pair = std::pair<std::size_t, std::size_t>;

struct Verification {
    double logOdds = 0.0;    ///< natural logarithm; the triangle's own stars do not count
    std::vector<Pair> pairs; ///< the triangle's stars included
};

/// A pose and the triangle that it comes from.
struct Hypothesis {
    Pose pose;
    bool mirrored;
    std::array<Pair, 3> triangle;
};

/// A pose that the first stars contradict is given up early, with low odds.
/// @param places of all stars, in the order of PoleStars
Verification verify(const Hypothesis &hypothesis, const FrameStars &frame, const PoleStars &stars,
                    const std::vector<astrometry::Vector3> &places);
} // namespace recognition
