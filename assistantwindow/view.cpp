// SPDX-License-Identifier: MIT
// The geometry of the picture and of what is drawn over it.
#include "assistantwindow/view.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace assistantwindow
{
namespace
{
constexpr double degree = 3.14159265358979323846 / 180.0;

struct Level {
    double enterBelow, leaveAbove; ///< total error, arcseconds
    double radius;                 ///< arcseconds
};
/// In each, the error is long enough to be drawn as an arrow, and the ring that is next to be
/// reached is in the picture.
constexpr Level levels[] = {{0.0, 0.0, 0.0},       {1800.0, 2400.0, 3000.0}, {600.0, 800.0, 1000.0},
                            {180.0, 240.0, 300.0}, {60.0, 80.0, 100.0},      {15.0, 24.0, 35.0}};
constexpr int closest = int(std::size(levels)) - 1;
} // namespace

View wholeView(QSize frame, QSize widget)
{
    if (frame.isEmpty() || widget.isEmpty())
        return {};
    const double scale =
        std::min(double(widget.width()) / frame.width(), double(widget.height()) / frame.height());
    const QPointF corner((widget.width() - scale * frame.width()) / 2.0,
                         (widget.height() - scale * frame.height()) / 2.0);
    return {scale, corner + QPointF(0.5, 0.5) * scale};
}

View closeView(QPointF centre, double radius, QSize widget)
{
    const double scale = std::min(widget.width(), widget.height()) / 2.0 / std::max(radius, 1e-3);
    return {scale, QPointF(widget.width() / 2.0, widget.height() / 2.0) - centre * scale};
}

int zoomLevel(int now, const std::optional<double> &totalArcseconds)
{
    if (!totalArcseconds || !std::isfinite(*totalArcseconds))
        return 0;
    int level = std::clamp(now, 0, closest);
    while (level < closest && *totalArcseconds < levels[level + 1].enterBelow)
        ++level;
    while (level > 0 && *totalArcseconds > levels[level].leaveAbove)
        --level;
    return level;
}

double zoomRadius(int level)
{
    return levels[std::clamp(level, 0, closest)].radius;
}

Ellipse ellipseOf(const recognition::Covariance &covariance, double sigmas)
{
    const double mean = (covariance.xx + covariance.yy) / 2.0;
    const double half = (covariance.xx - covariance.yy) / 2.0;
    const double spread = std::hypot(half, covariance.xy);
    return {sigmas * std::sqrt(std::max(0.0, mean + spread)),
            sigmas * std::sqrt(std::max(0.0, mean - spread)),
            std::atan2(covariance.xy, half) / 2.0 / degree};
}

std::vector<PlacedLabel> placedLabels(const std::vector<std::vector<QRectF>> &labels,
                                      const std::vector<QRectF> &taken, const QRectF &bounds,
                                      std::size_t most)
{
    std::vector<QRectF> occupied = taken;
    std::vector<PlacedLabel> placed;
    for (std::size_t i = 0; i < labels.size() && placed.size() < most; ++i) {
        const auto fits = [&](const QRectF &box) {
            return bounds.contains(box) &&
                   std::none_of(occupied.begin(), occupied.end(),
                                [&box](const QRectF &o) { return o.intersects(box); });
        };
        const auto found = std::find_if(labels[i].begin(), labels[i].end(), fits);
        if (found == labels[i].end())
            continue;
        occupied.push_back(*found);
        placed.push_back({i, *found});
    }
    return placed;
}

EdgeArrow arrowInDirection(double degrees, const QRectF &bounds)
{
    const QPointF along(std::sin(degrees * degree), -std::cos(degrees * degree));
    const double far = 1e9;
    const double across =
        std::abs(along.x()) > 1e-9 ? bounds.width() / 2.0 / std::abs(along.x()) : far;
    const double down =
        std::abs(along.y()) > 1e-9 ? bounds.height() / 2.0 / std::abs(along.y()) : far;
    return {bounds.center() + along * std::min(across, down), degrees};
}

std::optional<EdgeArrow> arrowToOutside(const QPointF &target, const QRectF &bounds)
{
    if (bounds.contains(target))
        return {};
    const QPointF away = target - bounds.center();
    return arrowInDirection(std::atan2(away.x(), -away.y()) / degree, bounds);
}
} // namespace assistantwindow
