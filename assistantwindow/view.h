// SPDX-License-Identifier: MIT
// Which part of the frame is shown, and where does a pixel of it come to lie?
#pragma once

#include "recognition/mapping.h"

#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QStringList>
#include <optional>
#include <vector>

namespace assistantwindow
{
/// Frame pixels to widget pixels. A frame's (0, 0) is the centre of a pixel, so its picture begins
/// half a pixel before it.
struct View {
    double scale = 1.0; ///< widget pixels a frame pixel
    QPointF origin;     ///< where the frame's (0, 0) lies in the widget

    QPointF place(double x, double y) const { return origin + QPointF(x, y) * scale; }
    QPointF place(const recognition::PixelPlace &p) const { return place(p.x, p.y); }
};

/// The whole frame, as large as fits, in the middle.
View wholeView(QSize frame, QSize widget);

/// `centre` (frame pixels) in the middle of the widget, `radius` frame pixels to its nearer border.
View closeView(QPointF centre, double radius, QSize widget);

/// How close the view is: 0 the whole frame, one more below 30′, 10′, 3′, 1′ and 15″ each. It opens
/// only at errors well above, so noise does not make it flicker.
int zoomLevel(int now, const std::optional<double> &totalArcseconds);

/// What is visible around the pole, arcseconds from the middle to the nearer border; 0 for the
/// whole frame.
double zoomRadius(int level);

/// An ellipse for a covariance: half axes of `sigmas` standard deviations, frame pixels, and the
/// direction of the longer one, degrees, 0 right, positive clockwise on the screen.
struct Ellipse {
    double longer = 0.0, shorter = 0.0, degrees = 0.0;
};
Ellipse ellipseOf(const recognition::Covariance &covariance, double sigmas);

/// A label that is drawn: which of the given ones, and where.
struct PlacedLabel {
    std::size_t label;
    QRectF box;
};
/// Labels, most important first, each with the boxes where it may be, best first: those that can be
/// drawn inside `bounds` without overlapping each other or `taken`, at most `most` of them.
std::vector<PlacedLabel> placedLabels(const std::vector<std::vector<QRectF>> &labels,
                                      const std::vector<QRectF> &taken, const QRectF &bounds,
                                      std::size_t most);

/// Where a ray from the middle of `bounds` towards `target` leaves it; nothing if the target is
/// inside.
struct EdgeArrow {
    QPointF tip;
    double degrees; ///< 0 up, positive clockwise
};
std::optional<EdgeArrow> arrowToOutside(const QPointF &target, const QRectF &bounds);
/// The same for a direction, as `assistant::Advice` gives it.
EdgeArrow arrowInDirection(double degrees, const QRectF &bounds);
} // namespace assistantwindow
