// SPDX-License-Identifier: MIT
// A finger on a touch screen, and keys alone, without a word to any widget but the one they reach.
#pragma once

#include <QApplication>
#include <QTest>
#include <QTouchDevice>
#include <QWidget>
#include <QWindow>

/// Touch events go to the window, as the screen's driver sends them.
class Finger
{
public:
    explicit Finger(QWidget &theWindow) : window(theWindow), device(QTest::createTouchDevice()) {}

    void press(const QPoint &place)
    {
        at = place;
        QTest::touchEvent(window.windowHandle(), device).press(0, at, window.windowHandle());
        QCoreApplication::processEvents();
    }
    void move(const QPoint &place)
    {
        at = place;
        QTest::touchEvent(window.windowHandle(), device).move(0, at, window.windowHandle());
        QCoreApplication::processEvents();
    }
    void lift()
    {
        QTest::touchEvent(window.windowHandle(), device).release(0, at, window.windowHandle());
        QCoreApplication::processEvents();
    }
    void tap(const QPoint &place)
    {
        press(place);
        lift();
    }
    /// In the middle of a widget that must be seen there; false if another one is over it.
    bool tap(const char *name, const QPoint &offset = {})
    {
        auto *const widget = window.findChild<QWidget *>(QLatin1String(name));
        if (!widget || !widget->isVisible() || !widget->isEnabled())
            return false;
        const QPoint place = widget->mapTo(&window, widget->rect().center() + offset);
        const QWidget *const hit = window.childAt(place);
        if (hit != widget && !widget->isAncestorOf(hit))
            return false;
        tap(place);
        return true;
    }

private:
    QWidget &window;
    QTouchDevice *device; // of the toolkit
    QPoint at;
};

/// Presses Tab until the widget with the name has the focus; false if it never gets it.
inline bool tabTo(const char *name)
{
    constexpr int most = 60;
    for (int i = 0; i < most; ++i) {
        if (!QApplication::focusWidget())
            return false;
        if (QApplication::focusWidget()->objectName() == QLatin1String(name))
            return true;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    return false;
}

/// The same, and Space.
inline bool pressByKeys(const char *name)
{
    if (!tabTo(name))
        return false;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    return true;
}
