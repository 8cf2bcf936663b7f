// SPDX-License-Identifier: MIT
// How do pixels and sky directions correspond, and how exactly is that known?
//
// The sky is projected gnomonically about a point near the frame's centre; the plane's complex
// coordinate is a polynomial in the pixel's complex coordinate z and its conjugate. A lens without
// distortion needs 1 and z only.
#pragma once

#include "astrometry/vector3.h"

#include <array>
#include <complex>
#include <cstddef>
#include <optional>

namespace recognition
{
/// Pixels of the frame: x right, y down, (0, 0) the centre of the top-left pixel.
struct PixelPlace {
    double x, y;
};

/// A symmetric 2 x 2 matrix, squares of the unit of the place that it belongs to.
struct Covariance {
    double xx = 0.0;
    double xy = 0.0;
    double yy = 0.0;
};

/// Which terms the polynomial has, in rising order of freedom.
enum class MappingModel {
    Similarity,   ///< 1, z: scale, rotation and shift
    Radial,       ///< and z |z|^2, drawn out and not twisted: distortion of the third order
    Affine,       ///< 1, z, conj z
    AffineRadial, ///< 1, z, conj z, z |z|^2
    Quadratic,    ///< all terms up to the second order
    Cubic         ///< all terms up to the third order
};

class SkyMapping
{
public:
    using Complex = std::complex<double>;
    static constexpr std::size_t maxTerms = 10;

    /// The direction that a pixel shows: a unit vector of the celestial intermediate frame of
    /// date. Pixels far outside the frame extrapolate the polynomial.
    astrometry::Vector3 skyOf(PixelPlace pixel) const;

    /// The pixel of a direction; nothing for directions 80 degrees or more from the frame's centre
    /// or where the polynomial cannot be inverted.
    std::optional<PixelPlace> pixelOf(const astrometry::Vector3 &sky) const;

    /// Arcseconds a pixel at a pixel: the root of the mapping's Jacobian.
    double scaleAt(PixelPlace pixel) const;

    /// How exactly the direction of a pixel is known, as a place in the picture; pixels squared.
    /// From the residuals, with the fit's leverage, what other models make of the same stars, and a
    /// floor for the catalogue's own errors.
    Covariance covarianceAt(PixelPlace pixel) const;

    /// The part of covarianceAt that is this frame's own: without the floor, which frames of one
    /// camera and hour have in common.
    Covariance ownCovarianceAt(PixelPlace pixel) const;

    bool isMirrored() const { return mirrored; }
    MappingModel model() const { return fit.terms; }

    // The fit's own access: plane coordinates in radians, pixel coordinates in units of `unit`.
    /// Axes of the gnomonic plane, orthogonal unit vectors of the celestial intermediate frame of
    /// date: forward to the point where the plane touches the sphere; right and down roughly along
    /// the picture's x and y. In a mirrored frame right is along -x, so that the three are always
    /// right-handed.
    struct Frame {
        astrometry::Vector3 right, down, forward;
    };
    /// One model's polynomial and how well it is known.
    struct Solution {
        MappingModel terms = MappingModel::Similarity;
        std::array<Complex, maxTerms> coefficients = {};
        /// Inverse of the normal matrix, row by row; times `noise` the coefficients' covariance if
        /// they were all free.
        std::array<Complex, maxTerms *maxTerms> inverse = {};
        Covariance noise; ///< radians squared, of a star of unit weight, in the plane
    };
    /// Another model for the same stars.
    struct Rival : Solution {
        double probability = 0.0; ///< that it is this one's model
    };
    static constexpr std::size_t maxRivals = 5;
    struct Fit : Solution {
        double floor2 = 0.0; ///< radians squared, added on each axis
        std::array<Rival, maxRivals> rivals = {};
    };
    SkyMapping() = default;
    /// @param unit pixels
    SkyMapping(const Frame &frame, PixelPlace centre, double unit, bool mirrored, const Fit &fit);

    /// By the polynomial: the direction's place in the plane, along right (real part) and down
    /// (imaginary part), in units of the sphere's radius: radians near the point of contact.
    Complex planeOf(PixelPlace pixel) const;
    /// By projection; nothing for directions 80 degrees or more from `forward`.
    std::optional<Complex> planeOf(const astrometry::Vector3 &sky) const;
    /// The polynomial's variable: from the centre, in multiples of `unit`, x negated in a mirrored
    /// frame.
    Complex unitsOf(PixelPlace pixel) const;
    const Frame &plane() const { return axes; }

private:
    struct Jacobian {
        double xx, xy, yx, yy; // of (xi, eta) by (x, y), radians a pixel
        double determinant() const { return xx * yy - xy * yx; }
    };
    Jacobian jacobianAt(PixelPlace pixel) const;
    Covariance covarianceAt(PixelPlace pixel, double commonVariance) const;
    Covariance covarianceAt(Complex units, const Solution &solution) const;

    Frame axes = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    PixelPlace centre = {0.0, 0.0};
    double unit = 1.0;
    bool mirrored = false;
    Fit fit;
};

/// How many terms a model has.
std::size_t termCount(MappingModel model);

/// The term, of the models that have only one of the third order, whose coefficient has the phase
/// of the second term's: a lens draws the picture out, it does not twist it.
std::optional<std::size_t> distortionTerm(MappingModel model);

/// How many real numbers a model has: two a term, one for a lens's distortion.
std::size_t freeNumbers(MappingModel model);

/// The terms' values at z.
/// @param out at least termCount(model) numbers
void evaluateTerms(MappingModel model, std::complex<double> z, std::complex<double> *out);
} // namespace recognition
