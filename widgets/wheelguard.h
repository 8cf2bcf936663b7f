// SPDX-License-Identifier: MIT
// What does the mouse wheel do over an input field?
#pragma once

#include <QEvent>
#include <QWidget>

/// An event filter that passes wheel events over a field on to the scroll area behind it, unless
/// the field has the focus. Scrolling must not change a field that passes under the pointer.
class WheelGuard : public QObject
{
public:
    using QObject::QObject;
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
            return QObject::eventFilter(watched, event);
        event->ignore();
        return true;
    }
};
