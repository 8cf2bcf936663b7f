// SPDX-License-Identifier: MIT
// Which catalogue stars can a frame show, and what are their apparent places in its plane?
#pragma once

#include "astrometry/vector3.h"
#include "recognition/mapping.h"
#include "recognition/recognise.h"

#include <complex>
#include <vector>

namespace recognition
{
struct FieldStar {
    std::size_t catalogue;   ///< index into astrometry::catalogue()
    astrometry::Vector3 sky; ///< apparent place, CIRS; lifted by refraction if there is an observer
    std::complex<double> plane; ///< gnomonic, radians
    double magnitude;
    bool lone; ///< no neighbour whose light moves its centroid
};

/// Apparent places of catalogue stars, in the order of the indices.
std::vector<astrometry::Vector3> placesAsSeen(const std::vector<std::size_t> &catalogueIndices,
                                              const RecognitionOptions &options);

/// A direction as the air lifts it, if there is an observer; CIRS to CIRS.
astrometry::Vector3 asSeen(const astrometry::Vector3 &cirs, const RecognitionOptions &options);

class FieldStars
{
public:
    /// @param blendRadius radians: nearer stars make one image
    FieldStars(const std::vector<std::size_t> &catalogueIndices,
               const std::vector<astrometry::Vector3> &places, const SkyMapping::Frame &plane,
               double blendRadius);

    std::size_t size() const { return stars.size(); }
    const FieldStar &operator[](std::size_t i) const { return stars[i]; }

    /// The nearest star within `radius` (radians) of a place in the plane, or size().
    std::size_t nearest(std::complex<double> plane, double radius) const;

private:
    void markBlends(double blendRadius);

    std::vector<FieldStar> stars; // by rising real part of `plane`
};
} // namespace recognition
