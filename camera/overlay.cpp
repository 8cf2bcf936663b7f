// SPDX-License-Identifier: MIT
// Draws the alignment marks over a frame.
#include "camera/overlay.h"

#include "core/sharedstate.h"

#include <QPainter>
#include <QPen>

namespace
{
/// Four ticks left, right, above and below `centre`, from `inner` to `outer` pixels away.
void drawTicks(QPainter &painter, QPointF centre, double inner, double outer)
{
    for (const QPointF &direction : {QPointF(-1, 0), QPointF(1, 0), QPointF(0, -1), QPointF(0, 1)})
        painter.drawLine(centre + outer * direction, centre + inner * direction);
}

/// An upright cross whose lines extend `reach` pixels to each side of `centre`.
void drawCross(QPainter &painter, QPointF centre, double reach)
{
    painter.drawLine(centre - QPointF(reach, 0), centre + QPointF(reach, 0));
    painter.drawLine(centre - QPointF(0, reach), centre + QPointF(0, reach));
}

QRectF squareAround(QPointF centre, double half)
{
    return {centre.x() - half, centre.y() - half, 2 * half, 2 * half};
}

void drawAxisMark(QPainter &painter, QPointF centre)
{
    painter.drawEllipse(squareAround(centre, 1));
    painter.drawEllipse(squareAround(centre, 4));
    drawTicks(painter, centre, 3, 7);
}

/// A cross in a ring that is broken into four arcs of 54 degrees, turned by `angle` degrees.
void drawRotatingArc(QPainter &painter, QPointF centre, double angle)
{
    constexpr int sixteenths = 16; // QPainter counts angles in sixteenths of a degree
    drawCross(painter, centre, 3);
    for (int start = 18; start < 360; start += 90)
        painter.drawArc(squareAround(centre, 10), qRound((angle + start) * sixteenths),
                        54 * sixteenths);
}

void drawReferenceStar(QPainter &painter, QPointF star)
{
    drawCross(painter, star, 5);
    painter.drawRect(squareAround(star, 20));
}

/// A dot in a cross, framed by four corners of two 3-pixel strokes each.
void drawPole(QPainter &painter, QPointF pole)
{
    painter.drawEllipse(squareAround(pole, 1));
    drawCross(painter, pole, 8);
    for (const double sx : {-1.0, 1.0}) {
        for (const double sy : {-1.0, 1.0}) {
            const QPointF corner = pole + QPointF(6 * sx, 6 * sy);
            painter.drawLine(corner, corner - QPointF(3 * sx, 0));
            painter.drawLine(corner, corner - QPointF(0, 3 * sy));
        }
    }
}

void setColour(QPainter &painter, const QColor &colour)
{
    painter.setPen(QPen(colour, 0, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
}
} // namespace

const OverlayColours &overlayColours(bool monoStyle)
{
    static const OverlayColours colour{Qt::red, QColor(224, 134, 26), Qt::white, Qt::white,
                                       Qt::green};
    static const OverlayColours mono{Qt::white, QColor(248, 248, 255), Qt::white, Qt::white,
                                     Qt::white};
    return monoStyle ? mono : colour;
}

OverlayMarks currentMarks(const OverlayFlags &flags, const AlignmentPoints &points,
                          const MonitorPositions &found)
{
    OverlayMarks marks;
    marks.showAxisMark = flags.showAxisMark;
    marks.showStarCircle = flags.showStarCircle;
    marks.showRotatingArc = flags.showRotatingArc;
    marks.showMonitorCross = flags.showMonitorCross;
    marks.showPoleRect = flags.showPoleRect && found.poleValid;
    marks.monoStyle = flags.monoStyle;
    marks.axisCenter = points.savedAxisCenter;
    marks.axisRadius = points.savedAxisRadius;
    marks.arcCenter = points.polarisTarget;
    marks.arcAngle = flags.arcAngle;
    marks.starA = found.starACurrent;
    marks.starB = found.starBCurrent;
    marks.pole = found.poleCurrent;
    return marks;
}

void paintOverlay(QImage &picture, const OverlayMarks &marks)
{
    if (!(marks.showAxisMark || marks.showStarCircle || marks.showRotatingArc ||
          marks.showMonitorCross || marks.showPoleRect))
        return;
    const OverlayColours &colours = overlayColours(marks.monoStyle);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing, true);
    if (marks.showAxisMark) {
        setColour(painter, colours.axisMark);
        drawAxisMark(painter, marks.axisCenter);
    }
    if (marks.showStarCircle) {
        setColour(painter, colours.starCircle);
        painter.drawEllipse(squareAround(marks.axisCenter, marks.axisRadius));
    }
    if (marks.showRotatingArc) {
        setColour(painter, colours.rotatingArc);
        drawRotatingArc(painter, marks.arcCenter, marks.arcAngle);
    }
    if (marks.showMonitorCross) {
        setColour(painter, colours.referenceStar);
        drawReferenceStar(painter, marks.starA);
        drawReferenceStar(painter, marks.starB);
    }
    if (marks.showPoleRect) {
        setColour(painter, colours.pole);
        drawPole(painter, marks.pole);
    }
}
