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
using Linear = EarthView::Linear;

constexpr double minOwnError = 1e-3 * astrometry::arcsecond; // so that weights are finite

// Unknowns: pixel offset (x, y) and direction (x, y).
constexpr std::size_t unknowns = 4;

struct Normals {
    std::array<std::array<double, unknowns>, unknowns> matrix = {};
    std::array<double, unknowns> right = {};
};

// How the direction that a pixel shows, x and y, depends on the unknowns.
using Design = std::array<std::array<double, unknowns>, 2>;

Design designOf(const Linear &l)
{
    return {{{-l.xByX, -l.xByY, 1.0, 0.0}, {-l.yByX, -l.yByY, 0.0, 1.0}}};
}

Covariance inverseOf(const Covariance &c)
{
    const double determinant = c.xx * c.yy - c.xy * c.xy;
    return {c.yy / determinant, -c.xy / determinant, c.xx / determinant};
}

// Of the directions' components, radians squared, by that of the pixel.
Covariance onTheSky(const Linear &l, const Covariance &c)
{
    const auto product = [&c](double aByX, double aByY, double bByX, double bByY) {
        return aByX * bByX * c.xx + (aByX * bByY + aByY * bByX) * c.xy + aByY * bByY * c.yy;
    };
    return {product(l.xByX, l.xByY, l.xByX, l.xByY), product(l.xByX, l.xByY, l.yByX, l.yByY),
            product(l.yByX, l.yByY, l.yByX, l.yByY)};
}

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
        const Linear &l = view.linear();
        // An error that all frames have in common moves the direction, not the pixel.
        const Covariance weight = inverseOf(view.ownCovariance());
        const Design row = designOf(l);
        for (std::size_t i = 0; i < unknowns; ++i) {
            const double byX = weight.xx * row[0][i] + weight.xy * row[1][i];
            const double byY = weight.xy * row[0][i] + weight.yy * row[1][i];
            normals.right[i] += byX * l.x + byY * l.y;
            for (std::size_t k = 0; k < unknowns; ++k)
                normals.matrix[i][k] += byX * row[0][k] + byY * row[1][k];
        }
    }
    return normals;
}

// Moves point and views to where the views are solved for; the normals' matrix becomes the
// unknowns' covariance. False if they do not fix a point.
bool solve(std::vector<EarthView> &views, FixedPoint &point, Normals &normals)
{
    constexpr int steps = 6;
    constexpr double settled = 1e-4;     // pixels
    constexpr double farthest = 20000.0; // pixels
    for (int step = 0; step < steps; ++step) {
        normals = normalsOf(views);
        if (!invert(normals.matrix))
            return false;
        std::array<double, unknowns> solution = {};
        for (std::size_t i = 0; i < unknowns; ++i)
            for (std::size_t k = 0; k < unknowns; ++k)
                solution[i] += normals.matrix[i][k] * normals.right[k];
        point.pixel = {point.pixel.x + solution[0], point.pixel.y + solution[1]};
        point.x = solution[2];
        point.y = solution[3];
        if (!(std::hypot(point.pixel.x, point.pixel.y) < farthest))
            return false;
        for (EarthView &view : views)
            view = view.movedTo(point.pixel);
        if (std::hypot(solution[0], solution[1]) < settled)
            break;
    }
    return true;
}

// The solution follows each view's error by its weight. Pixels squared, both orders added.
Covariance sharedWith(const EarthView &view, const Normals &inverted)
{
    const Linear &l = view.linear();
    const double determinant = l.xByX * l.yByY - l.xByY * l.yByX;
    const std::array<std::array<double, 2>, 2> pixelByDirection = {
        {{l.yByY / determinant, -l.xByY / determinant},
         {-l.yByX / determinant, l.xByX / determinant}}};
    const Design row = designOf(l);
    std::array<std::array<double, 2>, 2> common = {}; // solved pixel by the view's own
    for (std::size_t a = 0; a < 2; ++a)
        for (std::size_t b = 0; b < 2; ++b)
            for (std::size_t axis = 0; axis < 2; ++axis)
                for (std::size_t k = 0; k < unknowns; ++k)
                    common[a][b] +=
                        inverted.matrix[a][k] * row[axis][k] * pixelByDirection[b][axis];
    return {2.0 * common[0][0], common[0][1] + common[1][0], 2.0 * common[1][1]};
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
    const Covariance whole = frame.mapping.covarianceAt(pixel);
    error = scale * std::sqrt(0.5 * (whole.xx + whole.yy));
    own = onTheSky(values, frame.mapping.ownCovarianceAt(pixel));
    own.xx += minOwnError * minOwnError;
    own.yy += minOwnError * minOwnError;
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
    std::vector<EarthView> used;
    for (const std::size_t i : chosen)
        used.push_back(views[i]);
    FixedPoint point = {used.front().about(), {}, 0.0, 0.0, 0.0, {}};
    Normals normals;
    if (!solve(used, point, normals))
        return std::nullopt;
    double squares = 0.0;
    double chiSquared = 0.0;
    for (const EarthView &view : used) {
        const double distance = view.distance(point);
        const double x = view.linear().x - point.x, y = view.linear().y - point.y;
        const Covariance weight = inverseOf(view.ownCovariance());
        squares += distance * distance;
        chiSquared += weight.xx * x * x + 2.0 * weight.xy * x * y + weight.yy * y * y;
        point.shared.push_back(sharedWith(view, normals));
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
