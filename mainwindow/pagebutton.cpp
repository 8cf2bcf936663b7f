// SPDX-License-Identifier: MIT
// Distinguishes the second press of a double click from a separate press.
#include "mainwindow/pagebutton.h"

#include <QGuiApplication>
#include <QStyleHints>
#include <cstdlib>

bool beganWith(const ButtonPress &press, const QMouseEvent &doubleClick)
{
    const QStyleHints &hints = *QGuiApplication::styleHints();
    const QPoint way = doubleClick.globalPos() - press.place;
    const int reach = hints.mouseDoubleClickDistance();
    return press.happened && std::abs(way.x()) <= reach && std::abs(way.y()) <= reach &&
           doubleClick.timestamp() - press.time <= ulong(hints.mouseDoubleClickInterval());
}

PageButtonWidget::PageButtonWidget(ButtonPress &lastPress, QWidget *parent)
    : QPushButton(parent), last(lastPress)
{
}

void PageButtonWidget::mousePressEvent(QMouseEvent *event)
{
    last = {event->globalPos(), event->timestamp(), true};
    QPushButton::mousePressEvent(event);
}

void PageButtonWidget::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
}
