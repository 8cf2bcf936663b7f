// SPDX-License-Identifier: MIT
// How does a test roll the wheel over a widget as the window system does?
#pragma once

#include <QApplication>
#include <QWheelEvent>
#include <QtTest>

/// Positive notches roll away from the hand. What the widget leaves goes on to what is behind it.
inline void rollWheel(QWidget &widget, int notches)
{
    const QPointF place = widget.rect().center();
    QWheelEvent event(place, widget.mapToGlobal(place.toPoint()), {}, {0, notches * 120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // one of a program's own is not passed on
    qApp->notify(&widget, &event);
}
