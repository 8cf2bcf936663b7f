// SPDX-License-Identifier: MIT
// How bright is the sky without stars, and how large is its noise, anywhere in a picture?
#pragma once

#include <opencv2/core.hpp>
#include <optional>

namespace recognition
{
/// Level and noise on a coarse grid, linear between its nodes and beyond the outer ones.
class SkyBackground
{
public:
    /// @param image pixels at or below `blankValue` are left out
    /// @param minNoise what the noise is at least, values
    /// @return nothing if there is no memory or hardly a pixel that counts
    static std::optional<SkyBackground> measure(const cv::Mat1f &image, float minNoise);

    float levelAt(double x, double y) const { return valueAt(level, x, y); }
    float noiseAt(double x, double y) const { return 1.0f / valueAt(inverseNoise, x, y); }
    float medianLevel() const;
    float medianNoise() const;
    /// The noise over what neighbours say of it: about 1 in a picture of the sky, more where the
    /// noise is that of a picture of something.
    double roughness() const { return double(medianNoise()) / neighbourNoise; }

    /// Makes values into multiples of the noise above the background; blank pixels become 0.
    void normalise(cv::Mat1f &image) const;

private:
    float valueAt(const cv::Mat1f &nodes, double x, double y) const;
    void normaliseRow(float *row, int y, int width) const;

    // With a ring of extrapolated nodes about those that were measured.
    cv::Mat1f level, inverseNoise;
    double neighbourNoise = 1.0;
    double tileWidth = 1, tileHeight = 1; // pixels
};

inline constexpr float blankValue = -1e30f;
} // namespace recognition
