// SPDX-License-Identifier: MIT
// Frames as maps from pixels to directions fixed to the Earth.
#include "recognition/earthview.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace recognition
{
namespace
{
using astrometry::Vector3;

constexpr double leastOwnError = 1e-3 * astrometry::arcsecond; // so that weights are finite

// Unknowns: pixel offset (x, y) and direction (x, y).
constexpr std::size_t unknowns = 4;

struct Normals {
    std::array<std::array<double, unknowns>, unknowns> matrix = {};
    std::array<double, unknowns> right = {};

    void add(const std::array<double, unknowns> &row, double value, double weight)
    {
        for (std::size_t i = 0; i < unknowns; ++i) {
            right[i] += weight * row[i] * value;
            for (std::size_t k = 0; k < unknowns; ++k)
                matrix[i][k] += weight * row[i] * row[k];
        }
    }
};

// Turns the matrix into its inverse by Gauss and Jordan with scaled unknowns; false if singular.
bool invert(std::array<std::array<double, unknowns>, unknowns> &m)
{
    std::array<double, unknowns> scale;
    for (std::size_t i = 0; i < unknowns; ++i) {
        if (!(m[i][i] > 0.0))
            return false;
        scale[i] = 1.0 / std::sqrt(m[i][i]);
    }
    for (std::size_t i = 0; i < unknowns; ++i)
        for (std::size_t k = 0; k < unknowns; ++k)
            m[i][k] *= scale[i] * scale[k];
    for (std::size_t p = 0; p < unknowns; ++p) {
        const double pivot = m[p][p];
        if (!(pivot > 1e-9)) // the matrix is positive definite with a diagonal of ones
            return false;
        m[p][p] = 1.0;
        for (double &value : m[p])
            value /= pivot;
        for (std::size_t i = 0; i < unknowns; ++i) {
            if (i == p)
                continue;
            const double factor = m[i][p];
            m[i][p] = 0.0;
            for (std::size_t k = 0; k < unknowns; ++k)
                m[i][k] -= factor * m[p][k];
        }
    }
    for (std::size_t i = 0; i < unknowns; ++i)
        for (std::size_t k = 0; k < unknowns; ++k)
            m[i][k] *= scale[i] * scale[k];
    return true;
}

Normals normalsOf(const std::vector<EarthView> &views)
{
    Normals normals;
    for (const EarthView &view : views) {
        const EarthView::Linear &l = view.linear();
        // An error that all frames have in common moves the direction, not the pixel.
        const double weight = 1.0 / (view.ownSigma() * view.ownSigma());
        normals.add({-l.xByX, -l.xByY, 1.0, 0.0}, l.x, weight);
        normals.add({-l.yByX, -l.yByY, 0.0, 1.0}, l.y, weight);
    }
    return normals;
}
} // namespace

EarthView::EarthView(const Recognition &frame, PixelPlace pixel)
    : recognition(&frame), rotation(astrometry::earthRotationAngle(frame.utcSeconds)), origin(pixel)
{
    constexpr double step = 0.5; // pixels
    const Point here = at(pixel);
    const Point right = at({pixel.x + step, pixel.y});
    const Point left = at({pixel.x - step, pixel.y});
    const Point below = at({pixel.x, pixel.y + step});
    const Point above = at({pixel.x, pixel.y - step});
    values = {here.x,
              here.y,
              (right.x - left.x) / (2.0 * step),
              (below.x - above.x) / (2.0 * step),
              (right.y - left.y) / (2.0 * step),
              (below.y - above.y) / (2.0 * step)};
    const double scale = frame.mapping.scaleAt(pixel) * astrometry::arcsecond;
    const auto sigmaOf = [scale](const Covariance &c) {
        return scale * std::sqrt(0.5 * (c.xx + c.yy));
    };
    error = sigmaOf(frame.mapping.covarianceAt(pixel));
    ownError = std::max(sigmaOf(frame.mapping.ownCovarianceAt(pixel)), leastOwnError);
}

EarthView::Point EarthView::at(PixelPlace pixel) const
{
    const Vector3 sky = recognition->mapping.skyOf(pixel);
    const double c = std::cos(rotation);
    const double s = std::sin(rotation);
    return {c * sky.x + s * sky.y, c * sky.y - s * sky.x};
}

double EarthView::turnAgainst(const EarthView &other) const
{
    // Where the picture's x direction points on the Earth, seen from the north: eastwards positive.
    const double now = std::atan2(values.yByX, values.xByX);
    const double then = std::atan2(other.values.yByX, other.values.xByX);
    return -std::remainder(now - then, 2.0 * astrometry::pi) / astrometry::degree;
}

double EarthView::distance(const FixedPoint &point) const
{
    const Point here = at(point.pixel);
    return std::hypot(here.x - point.x, here.y - point.y);
}

std::optional<FixedPoint> fixedPointOf(const std::vector<EarthView> &views,
                                       const std::vector<std::size_t> &chosen)
{
    constexpr int steps = 6;
    constexpr double settled = 1e-4;     // pixels
    constexpr double farthest = 20000.0; // pixels
    std::vector<EarthView> used;
    for (const std::size_t i : chosen)
        used.push_back(views[i]);
    FixedPoint point = {used.front().about(), {}, 0.0, 0.0, 0.0};
    Normals normals;
    for (int step = 0; step < steps; ++step) {
        normals = normalsOf(used);
        if (!invert(normals.matrix))
            return std::nullopt;
        std::array<double, unknowns> solution = {};
        for (std::size_t i = 0; i < unknowns; ++i)
            for (std::size_t k = 0; k < unknowns; ++k)
                solution[i] += normals.matrix[i][k] * normals.right[k];
        point.pixel = {point.pixel.x + solution[0], point.pixel.y + solution[1]};
        point.x = solution[2];
        point.y = solution[3];
        if (!(std::hypot(point.pixel.x, point.pixel.y) < farthest))
            return std::nullopt;
        for (EarthView &view : used)
            view = view.movedTo(point.pixel);
        if (std::hypot(solution[0], solution[1]) < settled)
            break;
    }
    double squares = 0.0;
    double chiSquared = 0.0;
    for (const EarthView &view : used) {
        const double distance = view.distance(point);
        squares += distance * distance;
        chiSquared += distance * distance / (view.ownSigma() * view.ownSigma());
    }
    const double n = static_cast<double>(used.size());
    point.rms = std::sqrt(squares / n);
    const double freedom = 2.0 * n - static_cast<double>(unknowns);
    const double widening = freedom > 0.0 ? std::max(chiSquared / freedom, 1.0) : 1.0;
    point.covariance = {widening * normals.matrix[0][0], widening * normals.matrix[0][1],
                        widening * normals.matrix[1][1]};
    return point;
}
} // namespace recognition
