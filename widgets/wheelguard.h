// SPDX-License-Identifier: MIT
// Whose is the wheel, over a field that knows what to do with it?
#pragma once

#include <QEvent>
#include <QWidget>

/// An event filter that leaves the wheel over a field to what scrolls behind it, but for the field
/// that has the focus: who scrolls does not mean to change what passes under the pointer.
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
