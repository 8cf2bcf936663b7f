// SPDX-License-Identifier: MIT
// What keeps an enlarged picture readable: the whole frame in a corner, and a scale bar.
#pragma once

#include "assistant/status.h"
#include "assistantwindow/theme.h"

#include <QImage>
#include <QRectF>
#include <QString>

class QPainter;

namespace assistantwindow
{
/// Where the whole frame is drawn: an upper corner of `bounds`, on the right unless `axis` (widget
/// pixels) is that way.
QRectF overviewBox(const QSizeF &frame, const QRectF &bounds, const QPointF &axis);

/// The whole frame with rings round its recognised stars and a cross at the pole.
void paintOverview(QPainter &painter, const QImage &picture, const assistant::Status &status,
                   const QRectF &box, const Theme &theme);

/// A length of the sky as a bar, at most `most` widget pixels wide.
struct ScaleBar {
    double arcseconds = 0.0, pixels = 0.0;
    QString text;
};
/// @param pixelScale arcseconds a widget pixel
ScaleBar scaleBar(double pixelScale, double most);
void paintScaleBar(QPainter &painter, const ScaleBar &bar, const QPointF &bottomLeft,
                   const Theme &theme);
} // namespace assistantwindow
