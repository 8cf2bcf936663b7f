// SPDX-License-Identifier: MIT
// Draws the whole frame in a corner, and a scale bar.
#include "assistantwindow/overview.h"

#include "assistantwindow/view.h"

#include <QPainter>
#include <algorithm>

namespace assistantwindow
{
namespace
{
constexpr double share = 0.3; // of the picture's width and height
constexpr double edgeMargin = 8.0;
constexpr std::size_t maxStarRings = 20;
constexpr double lengths[] = {300.0, 120.0, 60.0, 30.0, 20.0, 10.0, 5.0, 2.0, 1.0}; // arcseconds
} // namespace

QRectF overviewBox(const QSizeF &frame, const QRectF &bounds, const QPointF &axis)
{
    const QSizeF size = frame.scaled(bounds.size() * share, Qt::KeepAspectRatio);
    const QPointF centre = bounds.center();
    const bool isAbove = axis.y()<centre.y(), isRight = axis.x()> centre.x();
    // Near the middle the axis is under neither corner.
    const bool isFar = axis.x() - centre.x() > bounds.width() * 0.1;
    const double left = isAbove && isRight && isFar ? bounds.left() + edgeMargin
                                                    : bounds.right() - edgeMargin - size.width();
    return {QPointF(left, bounds.top() + edgeMargin), size};
}

void paintOverview(QPainter &painter, const QImage &picture, const assistant::Status &status,
                   const QRectF &box, const Theme &theme)
{
    if (picture.isNull() || !status.sky || !status.pole)
        return;
    painter.save();
    painter.drawImage(box, picture);
    const double scale = box.width() / picture.width();
    const View view{scale, box.topLeft() + QPointF(0.5, 0.5) * scale};
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme.border, 1.0));
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.drawRect(box.toRect());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(box);
    painter.setPen(QPen(theme.star, 1.0));
    std::size_t ringed = 0; // the brightest come first
    for (const recognition::MatchedStar &match : status.sky->matched)
        if (match.detected < status.stars.size() && ringed++ < maxStarRings)
            painter.drawEllipse(
                view.place(status.stars[match.detected].x, status.stars[match.detected].y), 2.5,
                2.5);
    painter.setPen(QPen(theme.pole, 1.6));
    const QPointF pole = view.place(*status.pole);
    for (const QPointF &along : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)})
        painter.drawLine(pole + along * 3.0, pole + along * 8.0);
    painter.restore();
}

ScaleBar scaleBar(double pixelScale, double most)
{
    for (const double arcseconds : lengths)
        if (pixelScale > 0.0 && arcseconds / pixelScale <= most)
            return {arcseconds, arcseconds / pixelScale,
                    arcseconds < 60.0 ? QStringLiteral("%1″").arg(arcseconds)
                                      : QStringLiteral("%1′").arg(arcseconds / 60.0)};
    return {};
}

void paintScaleBar(QPainter &painter, const ScaleBar &bar, const QPointF &bottomLeft,
                   const Theme &theme)
{
    if (bar.text.isEmpty())
        return;
    painter.save();
    painter.setPen(QPen(theme.text, 2.0));
    const QPointF right = bottomLeft + QPointF(bar.pixels, 0.0);
    painter.drawLine(bottomLeft, right);
    for (const QPointF &end : {bottomLeft, right})
        painter.drawLine(end - QPointF(0, 5), end + QPointF(0, 1));
    QFont small = painter.font();
    small.setPixelSize(13);
    painter.setFont(small);
    painter.drawText(QRectF(bottomLeft - QPointF(20, 24), QSizeF(bar.pixels + 40.0, 18)),
                     Qt::AlignCenter, bar.text);
    painter.restore();
}
} // namespace assistantwindow
