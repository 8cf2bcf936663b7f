// SPDX-License-Identifier: MIT
// Evaluates the mapping between pixels and sky, its inverse and its covariance.
#include "recognition/mapping.h"

#include <cmath>

#include "recognition/pose.h"

namespace recognition
{
namespace
{
using astrometry::Vector3;
using Complex = SkyMapping::Complex;

constexpr double jacobianStep = 1e-3; // pixels, of the Jacobian's differences
constexpr int maxNewtonSteps = 25;
constexpr double newtonTolerance = 1e-7; // pixels
constexpr double inverseReach = 50.0;    // units from the frame's centre, of the inverse

Complex polynomialAt(MappingModel terms,
                     const std::array<Complex, SkyMapping::maxTerms> &coefficients, Complex z)
{
    Complex values[SkyMapping::maxTerms];
    evaluateTerms(terms, z, values);
    Complex sum = 0.0;
    for (std::size_t i = 0; i < termCount(terms); ++i)
        sum += coefficients[i] * values[i];
    return sum;
}
} // namespace

std::size_t termCount(MappingModel model)
{
    constexpr std::size_t counts[] = {2, 3, 3, 4, 6, 10};
    return counts[static_cast<std::size_t>(model)];
}

std::optional<std::size_t> distortionTerm(MappingModel model)
{
    switch (model) {
    case MappingModel::Radial:
        return 2;
    case MappingModel::AffineRadial:
        return 3;
    default:
        return std::nullopt;
    }
}

std::size_t freeNumbers(MappingModel model)
{
    return 2 * termCount(model) - (distortionTerm(model) ? 1 : 0);
}

void evaluateTerms(MappingModel model, Complex z, Complex *out)
{
    const Complex c = std::conj(z);
    const double square = std::norm(z);
    out[0] = 1.0;
    out[1] = z;
    switch (model) {
    case MappingModel::Similarity:
        break;
    case MappingModel::Radial:
        out[2] = z * square;
        break;
    case MappingModel::Cubic:
        out[6] = z * z * z;
        out[7] = z * square;
        out[8] = c * square;
        out[9] = c * c * c;
        [[fallthrough]];
    case MappingModel::Quadratic:
        out[3] = z * z;
        out[4] = square;
        out[5] = c * c;
        out[2] = c;
        break;
    case MappingModel::AffineRadial:
        out[3] = z * square;
        [[fallthrough]];
    case MappingModel::Affine:
        out[2] = c;
        break;
    }
}

SkyMapping::SkyMapping(const Frame &frame, PixelPlace centrePixel, double unitPixels, bool mirror,
                       const Fit &polynomial)
    : axes(frame), centre(centrePixel), unit(unitPixels), mirrored(mirror), fit(polynomial)
{
}

Complex SkyMapping::unitsOf(PixelPlace pixel) const
{
    const double x = (pixel.x - centre.x) / unit;
    return {mirrored ? -x : x, (pixel.y - centre.y) / unit};
}

Complex SkyMapping::planeOf(PixelPlace pixel) const
{
    return polynomialAt(fit.terms, fit.coefficients, unitsOf(pixel));
}

std::optional<Complex> SkyMapping::planeOf(const Vector3 &sky) const
{
    const double forward = dot(sky, axes.forward);
    if (!(forward > minForward))
        return std::nullopt;
    return Complex(dot(sky, axes.right) / forward, dot(sky, axes.down) / forward);
}

Vector3 SkyMapping::skyOf(PixelPlace pixel) const
{
    const Complex p = planeOf(pixel);
    const Vector3 &r = axes.right;
    const Vector3 &d = axes.down;
    const Vector3 &f = axes.forward;
    const Vector3 v = {f.x + p.real() * r.x + p.imag() * d.x, f.y + p.real() * r.y + p.imag() * d.y,
                       f.z + p.real() * r.z + p.imag() * d.z};
    return scaled(v, 1.0 / length(v));
}

SkyMapping::Jacobian SkyMapping::jacobianAt(PixelPlace p) const
{
    const Complex alongX = (planeOf(PixelPlace{p.x + jacobianStep, p.y}) -
                            planeOf(PixelPlace{p.x - jacobianStep, p.y})) /
                           (2.0 * jacobianStep);
    const Complex alongY = (planeOf(PixelPlace{p.x, p.y + jacobianStep}) -
                            planeOf(PixelPlace{p.x, p.y - jacobianStep})) /
                           (2.0 * jacobianStep);
    return {alongX.real(), alongY.real(), alongX.imag(), alongY.imag()};
}

std::optional<PixelPlace> SkyMapping::pixelOf(const Vector3 &sky) const
{
    const std::optional<Complex> wanted = planeOf(sky);
    if (!wanted)
        return std::nullopt;
    PixelPlace pixel = centre;
    for (int i = 0; i < maxNewtonSteps; ++i) {
        const Complex error = *wanted - planeOf(pixel);
        const Jacobian j = jacobianAt(pixel);
        const double determinant = j.determinant();
        if (determinant == 0.0 || !std::isfinite(determinant))
            return std::nullopt;
        const double dx = (j.yy * error.real() - j.xy * error.imag()) / determinant;
        const double dy = (j.xx * error.imag() - j.yx * error.real()) / determinant;
        pixel.x += dx;
        pixel.y += dy;
        if (!(std::hypot(pixel.x - centre.x, pixel.y - centre.y) < inverseReach * unit))
            return std::nullopt;
        if (std::hypot(dx, dy) < newtonTolerance)
            return pixel;
    }
    return std::nullopt;
}

double SkyMapping::scaleAt(PixelPlace pixel) const
{
    // Away from the tangent point the gnomonic plane is wider than the sky: cubed cosine in area.
    const double squaredTangent = std::norm(planeOf(pixel));
    const double shrink = std::pow(1.0 + squaredTangent, -0.75);
    return std::sqrt(std::abs(jacobianAt(pixel).determinant())) * shrink / astrometry::arcsecond;
}

Covariance SkyMapping::covarianceAt(PixelPlace pixel) const
{
    return covarianceAt(pixel, fit.floor2);
}

Covariance SkyMapping::ownCovarianceAt(PixelPlace pixel) const
{
    return covarianceAt(pixel, 0.0);
}

// In the plane, radians squared, by the noise alone.
Covariance SkyMapping::covarianceAt(Complex units, const Solution &solution) const
{
    Complex values[maxTerms];
    evaluateTerms(solution.terms, units, values);
    const std::size_t n = termCount(solution.terms);
    std::array<Complex, maxTerms> columns = {}; // the values' row times the inverse
    double leverage = 0.0;
    for (std::size_t k = 0; k < n; ++k) {
        for (std::size_t i = 0; i < n; ++i)
            columns[k] += values[i] * solution.inverse[i * maxTerms + k];
        leverage += std::real(columns[k] * std::conj(values[k]));
    }
    const Covariance &noise = solution.noise;
    Covariance c = {leverage * noise.xx, leverage * noise.xy, leverage * noise.yy};
    if (const auto term = distortionTerm(solution.terms)) {
        // What a free twist would add; by the noise's lesser axis, so that the rest stays positive.
        const double lesser =
            0.5 * (noise.xx + noise.yy) - std::hypot(0.5 * (noise.xx - noise.yy), noise.xy);
        const Complex twist = Complex(0.0, 1.0) * solution.coefficients[1] * columns[*term] /
                              std::abs(solution.coefficients[1]);
        const double share = lesser / std::real(solution.inverse[*term * maxTerms + *term]);
        c.xx -= share * twist.real() * twist.real();
        c.xy -= share * twist.real() * twist.imag();
        c.yy -= share * twist.imag() * twist.imag();
    }
    return c;
}

// The models' own, by their probabilities, and their distances from the one that was chosen.
Covariance SkyMapping::covarianceAt(PixelPlace pixel, double commonVariance) const
{
    const Complex units = unitsOf(pixel);
    const Complex here = planeOf(pixel);
    Covariance plane = {commonVariance, 0.0, commonVariance};
    const auto add = [&plane](double probability, const Covariance &c, Complex distance) {
        plane.xx += probability * (c.xx + distance.real() * distance.real());
        plane.xy += probability * (c.xy + distance.real() * distance.imag());
        plane.yy += probability * (c.yy + distance.imag() * distance.imag());
    };
    double chosen = 1.0;
    for (const Rival &rival : fit.rivals) {
        if (rival.probability == 0.0)
            continue;
        chosen -= rival.probability;
        add(rival.probability, covarianceAt(units, rival),
            polynomialAt(rival.terms, rival.coefficients, units) - here);
    }
    add(chosen, covarianceAt(units, fit), 0.0);
    const Jacobian j = jacobianAt(pixel);
    const double d = j.determinant();
    const double xx = j.yy / d;
    const double xy = -j.xy / d;
    const double yx = -j.yx / d;
    const double yy = j.xx / d;
    return {xx * xx * plane.xx + 2.0 * xx * xy * plane.xy + xy * xy * plane.yy,
            xx * yx * plane.xx + (xx * yy + xy * yx) * plane.xy + xy * yy * plane.yy,
            yx * yx * plane.xx + 2.0 * yx * yy * plane.xy + yy * yy * plane.yy};
}
} // namespace recognition
