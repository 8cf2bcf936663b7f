// SPDX-License-Identifier: MIT
// Tracks the pointer around the dial and stops the value at the ends.
#include "widgets/endeddial.h"

#include <QMouseEvent>

namespace
{
/// A copy of the event with the pointer at `place`.
QMouseEvent at(QPoint place, const QMouseEvent &event)
{
    return {event.type(),   QPointF(place),  event.windowPos(), event.screenPos(),
            event.button(), event.buttons(), event.modifiers(), event.source()};
}
} // namespace

void EndedDial::mousePressEvent(QMouseEvent *event)
{
    if (event->buttons() == Qt::LeftButton) { // no other button starts a drag
        last = event->pos();
        turns = 0;
    }
    QDial::mousePressEvent(event);
}

void EndedDial::mouseMoveEvent(QMouseEvent *event)
{
    follow(event->pos());
    QMouseEvent held = at(heldPlace(event->pos()), *event);
    QDial::mouseMoveEvent(&held);
    event->setAccepted(held.isAccepted());
}

void EndedDial::mouseReleaseEvent(QMouseEvent *event)
{
    follow(event->pos());
    QMouseEvent held = at(heldPlace(event->pos()), *event);
    QDial::mouseReleaseEvent(&held);
    event->setAccepted(held.isAccepted());
}

/// Counts how often the pointer crosses the line from the centre straight down, where the ends
/// meet.
void EndedDial::follow(QPoint pointer)
{
    const QPointF middle(width() / 2.0, height() / 2.0);
    const QPointF from = last - middle, to = pointer - middle;
    last = pointer;
    const bool wasRight = from.x() >= 0, isRight = to.x() >= 0;
    if (wasRight == isRight)
        return;
    const double crossing = from.y() + (to.y() - from.y()) * from.x() / (from.x() - to.x());
    if (crossing > 0)
        turns += wasRight ? 1 : -1;
}

/// The pointer's position, or a position at the end that it has passed.
QPoint EndedDial::heldPlace(QPoint pointer) const
{
    if (turns == 0)
        return pointer;
    const int middle = width() / 2;
    return {turns > 0 ? middle + 1 : middle - 1, height()};
}
