// SPDX-License-Identifier: MIT
// How do tests find and operate the widgets of the virtual mount's window?
#pragma once

#include "tests/support/patience.h"
#include "tests/virtualmount/mounttest.h"
#include "virtualmount/mountwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QtTest>
#include <algorithm>
#include <cmath>

inline bool near(double a, double b, double tolerance)
{
    return std::abs(a - b) <= tolerance;
}

/// The child of that class and name; ends the test run if there is none.
template <typename T> T &named(const QObject &parent, const QString &name)
{
    T *const found = parent.findChild<T *>(name);
    if (!found)
        qFatal("no widget %s", qPrintable(name));
    return *found;
}

inline QString textOf(const QObject &window, const QString &label)
{
    return named<QLabel>(window, label).text();
}

inline void clickOn(const QObject &window, const QString &button)
{
    auto &widget = named<QAbstractButton>(window, button);
    const QPoint place(12, widget.height() / 2); // a check box accepts clicks only on its left
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, place);
}

/// Sends a key to the widget that has the keyboard focus.
inline void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

/// Alt and the underlined letter of a button, which then stays down for a tenth of a second.
inline void pressMnemonic(Qt::Key key)
{
    press(key, Qt::AltModifier);
    QTest::qWait(250);
    const auto isDown = [](const QWidget *widget) {
        const auto *const button = qobject_cast<const QAbstractButton *>(widget);
        return button && button->isDown();
    };
    const bool areUp = comesTrue([&isDown] {
        const QWidgetList widgets = QApplication::allWidgets();
        return std::none_of(widgets.begin(), widgets.end(), isDown);
    });
    if (!areUp)
        qFatal("a button stays down");
}

/// A window on screen that has the keyboard focus.
class ShownWindow
{
public:
    explicit ShownWindow(const QString &skyFile) : window(skyFile)
    {
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window, patience))
            qFatal("the window does not become active");
    }
    virtualmount::MountWindow window;
};
