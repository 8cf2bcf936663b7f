// SPDX-License-Identifier: MIT
// What do Return and Enter do on a button that has the focus?
#pragma once

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>

/// An event filter that makes Return and Enter press a window's buttons like the space bar: once
/// per keystroke, when the key is released. Dialogs have a default button instead.
class ReturnPresses : public QObject
{
public:
    /// @param window must already have all its buttons; those in its dialogs are ignored
    explicit ReturnPresses(QWidget &window) : QObject(&window)
    {
        for (QAbstractButton *const button : window.findChildren<QAbstractButton *>())
            if (button->window() == &window)
                button->installEventFilter(this);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isStroke =
            event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
        if (!isStroke)
            return QObject::eventFilter(watched, event);
        const auto &key = *static_cast<QKeyEvent *>(event);
        if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter)
            return QObject::eventFilter(watched, event);
        QKeyEvent space(key.type(), Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "),
                        key.isAutoRepeat());
        QCoreApplication::sendEvent(watched, &space);
        return true;
    }
};
