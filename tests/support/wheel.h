// SPDX-License-Identifier: MIT
// How does a test roll the wheel over a widget like the window system?
#pragma once

#include <QApplication>
#include <QWheelEvent>
#include <QtTest>

/// Positive notches roll away from the user. What the widget ignores goes to the widget behind it.
inline void rollWheel(QWidget &widget, int notches)
{
    const QPointF place = widget.rect().center();
    QWheelEvent event(place, widget.mapToGlobal(place.toPoint()), {}, {0, notches * 120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // otherwise Qt does not pass it on
    qApp->notify(&widget, &event);
}
