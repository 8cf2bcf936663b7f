// SPDX-License-Identifier: MIT
// Where is the template on the screen, and which frame positions follow from its angle?
#include "geometry/templateoverlay.h"

#include "core/saturate.h"
#include "geometry/axiscentre.h"
#include "geometry/starcatalogue.h"

#include <QTransform>

namespace
{
/// Longest side of a scaled template, pixels: five times the masks' own size.
constexpr int maxSide = 4096;

/// The requested size; the scaled picture may be smaller, since it keeps its aspect ratio. Empty if
/// there is nothing to show.
QSize scaledSize(const QImage &mask, float zoomFactor)
{
    const QSize size(saturatingInt(static_cast<float>(mask.width()) * zoomFactor),
                     saturatingInt(static_cast<float>(mask.height()) * zoomFactor));
    if (size.isEmpty() || size.width() > maxSide || size.height() > maxSide)
        return QSize();
    return size;
}

/// Positions are clamped to this, so that neither the far edges nor sums with them overflow int.
constexpr int farthest = 1 << 24;

QRect placed(double left, double top, QSize size)
{
    return QRect(QPoint(qBound(-farthest, saturatingInt(left), farthest),
                        qBound(-farthest, saturatingInt(top), farthest)),
                 size);
}

/// A template point's position in the frame: rotated about star B, which is on the pole star.
QPointF inFrame(const StarCatalogue &catalogue, double x, double y, int rotateValue,
                QPointF polarisPos)
{
    double turnedX = 0.0;
    double turnedY = 0.0;
    RotatePointByDegrees(rotateValue, x, y, catalogue.starBX, catalogue.starBY, turnedX, turnedY);
    return {turnedX + (polarisPos.x() - catalogue.starBX),
            turnedY + (polarisPos.y() - catalogue.starBY)};
}
} // namespace

PlacedTemplate turnTemplate(const QImage &mask, int angle, float zoomFactor, QPoint clickViewPos)
{
    const QSize size = scaledSize(mask, zoomFactor);
    if (size.isEmpty())
        return {};
    const QImage turned = mask.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                              .transformed(QTransform().rotate(angle), Qt::SmoothTransformation);
    const QRect rect = turned.rect();
    const int middleX = (rect.left() + rect.right()) / 2;
    const int middleY = (rect.top() + rect.bottom()) / 2;
    // In double: the difference may overflow int.
    return {turned, placed(static_cast<double>(clickViewPos.x()) - middleX,
                           static_cast<double>(clickViewPos.y()) - middleY, turned.size())};
}

PlacedTemplate flatTemplate(const QImage &mask, float zoomFactor, QPointF templateCenter)
{
    const QSize size = scaledSize(mask, zoomFactor);
    if (size.isEmpty())
        return {};
    const double zoom = static_cast<double>(zoomFactor);
    const int halfWidth = size.width() / 2;
    const int halfHeight = size.height() / 2;
    return {mask.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation),
            placed(zoom * templateCenter.x() - halfWidth, zoom * templateCenter.y() - halfHeight,
                   size)};
}

QPoint viewPosition(float zoomFactor, QPointF framePosition)
{
    const double zoom = static_cast<double>(zoomFactor);
    return {saturatingInt(zoom * framePosition.x()), saturatingInt(zoom * framePosition.y())};
}

QPointF expectedPole(const StarCatalogue &catalogue, int rotateValue, QPointF polarisPos)
{
    return inFrame(catalogue, catalogue.templatePoleX, catalogue.templatePoleY, rotateValue,
                   polarisPos);
}

QPointF polarisTarget(QPointF polarisPos, QPointF pole, QPointF axisCenter)
{
    return {polarisPos.x() - (pole.x() - axisCenter.x()),
            polarisPos.y() - (pole.y() - axisCenter.y())};
}

QPointF predictedStarA(const StarCatalogue &catalogue, int rotateValue, QPointF polarisPos)
{
    return inFrame(catalogue, catalogue.starAX, catalogue.starAY, rotateValue, polarisPos);
}
