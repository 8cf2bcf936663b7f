// SPDX-License-Identifier: MIT
// Which marks are drawn over a frame, where, and in which colours?
#pragma once

#include "core/sharedstate.h"

#include <QColor>
#include <QImage>
#include <QPointF>

/// Everything that is drawn over one frame; positions in frame pixels, x right, y down.
struct OverlayMarks {
    bool showAxisMark = false;
    bool showStarCircle = false;
    bool showRotatingArc = false;
    bool showMonitorCross = false; ///< reference stars A and B
    bool showPoleRect = false;
    bool monoStyle = false;
    QPointF axisCenter;
    int axisRadius = 0;
    QPointF arcCenter;
    double arcAngle = 0; ///< degrees, anticlockwise
    QPointF starA, starB;
    QPointF pole;
};

/// The colours of the marks in one display style.
struct OverlayColours {
    QColor axisMark;
    QColor starCircle;
    QColor rotatingArc;
    QColor referenceStar;
    QColor pole;
};

const OverlayColours &overlayColours(bool monoStyle);

/// A snapshot of the shared state. The pole is omitted if none could be computed.
OverlayMarks currentMarks(const OverlayFlags &flags, const AlignmentPoints &points,
                          const MonitorPositions &found);

/// Draws the marks over `picture`, in a fixed order: axis, star circle, arc, stars A and B, pole.
void paintOverlay(QImage &picture, const OverlayMarks &marks);
