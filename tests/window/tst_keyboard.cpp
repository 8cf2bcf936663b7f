// SPDX-License-Identifier: MIT
// Is everything in the window reached by the Tab key, and is nothing begun by a key hit by chance?
#include "tests/support/mainwindowprobe.h"
#include "tests/window/camerawindow.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QWindow>
#include <QtTest>

class KeyboardTest : public QObject
{
    Q_OBJECT

private slots:
    void spaceBarAtTheStart();
    void spaceBarAfterReconnecting();
    void returnPressesOnce_data();
    void returnPressesOnce();
    void returnInAField();
    void tabGoesRound_data();
    void tabGoesRound();
};

namespace
{
void press(const CameraWindow &w, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(w.window->windowHandle(), key, modifiers);
}

/// What the key goes through, from where the focus is until it is there again.
QStringList wayRound(const CameraWindow &w, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    constexpr int most = 40;
    QStringList names;
    QWidget *const start = w.window->focusWidget();
    do {
        names << w.window->focusWidget()->objectName();
        press(w, key, modifiers);
    } while (w.window->focusWidget() != start && names.size() < most);
    return names;
}
} // namespace

void KeyboardTest::spaceBarAtTheStart()
{
    const CameraWindow w;
    w.connectCamera();
    w.window->activateWindow();
    QTRY_VERIFY(QApplication::focusWidget());
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("scrollArea_showImg"));
    press(w, Qt::Key_Space);
    QCOMPARE(w.window->step(), 1);
    press(w, Qt::Key_Tab); // the page's button is the next
    press(w, Qt::Key_Space);
    QCOMPARE(w.window->step(), 2);
}

void KeyboardTest::spaceBarAfterReconnecting()
{
    const CameraWindow w;
    w.connectCamera();
    w.window->activateWindow();
    QTRY_VERIFY(QApplication::focusWidget());
    w.child<QPushButton>("pushButton_setting_done").setFocus();
    press(w, Qt::Key_Space);
    QCOMPARE(w.window->step(), 2);
    w.trigger("actionConnect");
    w.connectCamera();
    press(w, Qt::Key_Space);
    QCOMPARE(w.window->step(), 1);
}

void KeyboardTest::returnPressesOnce_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
    QTest::newRow("space bar") << Qt::Key_Space;
}

/// However long it is held, and when it comes up again.
void KeyboardTest::returnPressesOnce()
{
    QFETCH(Qt::Key, key);
    const CameraWindow w;
    w.connectCamera();
    w.window->activateWindow();
    QTRY_VERIFY(QApplication::focusWidget());
    auto &button = w.child<QPushButton>("pushButton_setting_done");
    button.setFocus();
    const QSignalSpy clicks(&button, &QPushButton::clicked);
    const auto send = [&](QEvent::Type type, bool repeats) {
        QKeyEvent event(type, key, Qt::NoModifier, QString(), repeats);
        QCoreApplication::sendEvent(&button, &event);
    };
    send(QEvent::KeyPress, false);
    QVERIFY(button.isDown());
    QCOMPARE(clicks.count(), 0);
    for (int i = 0; i < 3; ++i) {
        send(QEvent::KeyRelease, true);
        send(QEvent::KeyPress, true);
    }
    send(QEvent::KeyRelease, false);
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(w.window->step(), 2);
    // The window system's way, with whatever has the focus.
    w.child<QPushButton>("pushButton_confirm_add").setFocus();
    press(w, key);
    QCOMPARE(MainWindowProbe(*w.window).rotateValue(), 1);
}

void KeyboardTest::returnInAField()
{
    const CameraWindow w;
    w.connectCamera();
    w.window->activateWindow();
    QTRY_VERIFY(QApplication::focusWidget());
    auto &field = w.child<QLineEdit>("lineEditGain");
    const QSignalSpy taken(&field, &QLineEdit::returnPressed);
    field.setFocus();
    field.setText("7");
    press(w, Qt::Key_Return);
    QCOMPARE(taken.count(), 1);
    QCOMPARE(w.child<QSlider>("sliderGain").value(), 7);
    QCOMPARE(w.window->step(), 1);
}

void KeyboardTest::tabGoesRound_data()
{
    QTest::addColumn<int>("step");
    for (int step = 1; step <= 13; ++step)
        QTest::addRow("step %d", step) << step;
}

void KeyboardTest::tabGoesRound()
{
    QFETCH(int, step);
    const CameraWindow w;
    w.connectCamera();
    w.window->activateWindow();
    MainWindowProbe(*w.window).switchStep(step);
    QTRY_VERIFY(QApplication::focusWidget());
    QStringList forward = wayRound(w, Qt::Key_Tab, Qt::NoModifier);
    QStringList back = wayRound(w, Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QSet<QString>(forward.begin(), forward.end()).size(), forward.size());
    std::reverse(back.begin() + 1, back.end());
    QCOMPARE(back, forward);
    // Every button that can be pressed is on the way; of the two hemispheres the chosen one.
    for (const QAbstractButton *const button : w.window->findChildren<QAbstractButton *>())
        if (button->window() == w.window.get() && button->isVisible() && button->isEnabled() &&
            (!button->autoExclusive() || button->isChecked()))
            QVERIFY2(forward.contains(button->objectName()), qPrintable(button->objectName()));
}

QTEST_MAIN(KeyboardTest)
#include "tst_keyboard.moc"
