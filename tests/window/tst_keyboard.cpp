// SPDX-License-Identifier: MIT
// Can the Tab key reach everything in the window, and does no accidental key press start anything?
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
    void arrowKeyAfterDone_data();
    void arrowKeyAfterDone();
    void focusAfterThePagesButtons_data();
    void focusAfterThePagesButtons();
    void focusAfterAClosedSection();
    void tabGoesRound_data();
    void tabGoesRound();
};

namespace
{
void press(const CameraWindow &w, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(w.window->windowHandle(), key, modifiers);
}

/// The widgets that the key visits, from the current focus until it is there again.
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
    press(w, Qt::Key_Tab); // the page's button is next
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

/// However long the key is held, and when it is released.
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
    // Through the window system, with whatever has the focus.
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

void KeyboardTest::arrowKeyAfterDone_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("byMouse");
    const QMap<QByteArray, int> keys{{"down", Qt::Key_Down},
                                     {"up", Qt::Key_Up},
                                     {"left", Qt::Key_Left},
                                     {"right", Qt::Key_Right},
                                     {"space", Qt::Key_Space}};
    for (auto key = keys.begin(); key != keys.end(); ++key)
        for (const bool byMouse : {true, false})
            QTest::addRow("%s, button by %s", key.key().constData(), byMouse ? "mouse" : "key")
                << key.value() << byMouse;
}

/// Monitoring continues, and the hemisphere stays.
void KeyboardTest::arrowKeyAfterDone()
{
    QFETCH(int, key);
    QFETCH(bool, byMouse);
    const CameraWindow w;
    w.connectCamera();
    w.window->activateWindow();
    QTRY_VERIFY(QApplication::focusWidget());
    w.enterStep(13);
    auto &done = w.child<QPushButton>("pushButton_finetunePole_done");
    if (byMouse) {
        QTest::mouseClick(&done, Qt::LeftButton);
    } else {
        done.setFocus();
        press(w, Qt::Key_Space);
    }
    QVERIFY(!w.child<QTabWidget>("tabWidget_tipMsg").isVisible());
    QCOMPARE(w.window->focusWidget()->objectName(), QString("scrollArea_showImg"));
    for (int presses = 0; presses < 3; ++presses)
        press(w, Qt::Key(key));
    QCOMPARE(w.window->step(), 13);
    QVERIFY(w.session().overlayFlags.monitorTracking);
    QCOMPARE(MainWindowProbe(*w.window).regionName(), QString("North"));
}

void KeyboardTest::focusAfterThePagesButtons_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("next");
    QTest::newRow("Setting Finished") << 1 << "pushButton_setting_done" << 2;
    QTest::newRow("Success") << 2 << "pushButton_confirm_done" << 3;
    QTest::newRow("rotation Finished") << 4 << "pushButton_rotateStar1_done" << 5;
    QTest::newRow("rotation Finished again") << 6 << "pushButton_rotateStar2_done" << 7;
    QTest::newRow("Reset") << 7 << "pushButton_getStar3_reset" << 3;
    QTest::newRow("Correct") << 8 << "pushButton_validateCenter_done" << 9;
    QTest::newRow("Success in 9") << 9 << "pushButton_getEptPolaris_done" << 10;
    QTest::newRow("adjustment Finished") << 10 << "pushButton_movePolaris_done" << 11;
    QTest::newRow("Success in 11") << 11 << "pushButton_getCurPolaris_done" << 12;
    QTest::newRow("Restart") << 13 << "pushButton_finetunePole_reset" << 1;
}

/// The key that pressed a page's button does not press one of the next page when hit again.
void KeyboardTest::focusAfterThePagesButtons()
{
    QFETCH(int, step);
    QFETCH(QString, button);
    QFETCH(int, next);
    const CameraWindow w;
    w.connectCamera();
    w.window->activateWindow();
    QTRY_VERIFY(QApplication::focusWidget());
    MainWindowProbe(*w.window).switchStep(step);
    w.child<QPushButton>(button.toLatin1().constData()).setFocus();
    press(w, Qt::Key_Space);
    QCOMPARE(w.window->step(), next);
    QCOMPARE(w.window->focusWidget()->objectName(), QString("scrollArea_showImg"));
    press(w, Qt::Key_Space);
    QCOMPARE(w.window->step(), next);
}

/// A closed section takes the focus away from its own fields; another section's focus stays.
void KeyboardTest::focusAfterAClosedSection()
{
    const CameraWindow w;
    w.connectCamera();
    w.window->activateWindow();
    QTRY_VERIFY(QApplication::focusWidget());
    w.child<QWidget>("lineEditGain").setFocus();
    w.enterStep(2);
    QCOMPARE(w.window->focusWidget()->objectName(), QString("scrollArea_showImg"));
    w.child<QWidget>("radioButton_north").setFocus();
    w.enterStep(3);
    QCOMPARE(w.window->focusWidget()->objectName(), QString("radioButton_north"));
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
    // Every enabled button is on the way; of the two hemispheres, the chosen one.
    for (const QAbstractButton *const button : w.window->findChildren<QAbstractButton *>())
        if (button->window() == w.window.get() && button->isVisible() && button->isEnabled() &&
            (!button->autoExclusive() || button->isChecked()))
            QVERIFY2(forward.contains(button->objectName()), qPrintable(button->objectName()));
}

QTEST_MAIN(KeyboardTest)
#include "tst_keyboard.moc"
