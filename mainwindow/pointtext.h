// SPDX-License-Identifier: MIT
// How is a position formatted on the screen?
#pragma once

#include <QPointF>
#include <QString>

/// "x,y" with one decimal each.
inline QString coordinateText(QPointF point)
{
    return QString::number(point.x(), 'f', 1) + ',' + QString::number(point.y(), 'f', 1);
}

/// "(x,y)" with one decimal each.
inline QString pointText(QPointF point)
{
    return '(' + coordinateText(point) + ')';
}
