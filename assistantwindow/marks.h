// SPDX-License-Identifier: MIT
// The marks over the picture: stars, grid, pole, axis, rings, arrows.
#pragma once

#include "assistant/status.h"
#include "assistantwindow/boltlegs.h"
#include "assistantwindow/theme.h"
#include "assistantwindow/view.h"

class QPainter;

namespace assistantwindow
{
/// @param legs the bolts' ways, where they are known
/// @param bounds of the widget; nothing is drawn outside
void paintMarks(QPainter &painter, const assistant::Status &status,
                const std::optional<BoltLegs> &legs, const View &view, const QRectF &bounds,
                const Theme &theme);

/// A quiet drawing where there is no picture.
void paintNoPicture(QPainter &painter, const QRectF &bounds, const Theme &theme);

/// An arrow whose tip is at `tip`; degrees, 0 up, positive clockwise.
void paintArrow(QPainter &painter, const QPointF &tip, double degrees, double length,
                const QColor &colour);
} // namespace assistantwindow
