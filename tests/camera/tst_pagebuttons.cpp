// SPDX-License-Identifier: MIT
// Does a hand that clicks twice press the next page's button as well?
#include "tests/camera/camerawindow.h"
#include "tests/support/mainwindowprobe.h"

#include <QPushButton>
#include <QWindow>
#include <QtTest>

class TestPageButtons : public QObject
{
    Q_OBJECT

private slots:
    void doubleClick_data();
    void doubleClick();
    void twoClicksInTurn();
};

namespace
{
/// Two presses in one place, as quick as a double click, through the window system.
void doubleClickAt(const CameraWindow &w, QPoint place)
{
    static int time = 0;
    QWindow *const handle = w.window->windowHandle();
    time += 10000; // no part of an earlier double click
    for (int press = 0; press < 2; ++press) {
        const auto send = [&](Qt::MouseButton button, Qt::MouseButtons held, QEvent::Type type) {
            qt_handleMouseEvent(handle, place, handle->mapToGlobal(place), held, button, type,
                                Qt::NoModifier, time);
            time += 20;
            QTest::qWait(20); // the next page is laid out
        };
        send(Qt::LeftButton, Qt::LeftButton, QEvent::MouseButtonPress);
        send(Qt::LeftButton, Qt::NoButton, QEvent::MouseButtonRelease);
    }
}

/// In the button's right end, where all pages have a button.
QPoint placeIn(const CameraWindow &w, const QWidget &button)
{
    return button.mapTo(w.window.get(), QPoint(button.width() - 15, button.height() / 2));
}
} // namespace

void TestPageButtons::doubleClick_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("next"); ///< the button of the next page
    QTest::addColumn<int>("entered");
    const auto row = [](int step, const char *button, const char *next, int entered) {
        QTest::addRow("step %d", step) << step << button << next << entered;
    };
    row(8, "pushButton_validateCenter_done", "pushButton_getEptPolaris_done", 9);
    row(9, "pushButton_getEptPolaris_done", "pushButton_movePolaris_done", 10);
    row(10, "pushButton_movePolaris_done", "pushButton_getCurPolaris_done", 11);
}

void TestPageButtons::doubleClick()
{
    QFETCH(int, step);
    QFETCH(QString, button);
    QFETCH(QString, next);
    QFETCH(int, entered);
    const CameraWindow w;
    w.connectCamera();
    MainWindowProbe(*w.window).switchStep(step);
    QTest::qWait(30);
    auto &pressed = w.child<QPushButton>(button.toLatin1());
    const QPoint place = placeIn(w, pressed);
    QCOMPARE(w.window->childAt(place), static_cast<QWidget *>(&pressed));
    doubleClickAt(w, place);
    // It was there for the second press.
    QCOMPARE(w.window->childAt(place)->objectName(), next);
    QCOMPARE(w.window->step(), entered);
}

/// Slower than a double click each press counts.
void TestPageButtons::twoClicksInTurn()
{
    const CameraWindow w;
    w.connectCamera();
    MainWindowProbe(*w.window).switchStep(9);
    QTest::qWait(30);
    const QPoint place = placeIn(w, w.child<QPushButton>("pushButton_getEptPolaris_done"));
    for (int press = 0; press < 2; ++press) {
        QTest::mouseClick(w.window->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::qWait(20);
    }
    QCOMPARE(w.window->step(), 11);
}

QTEST_MAIN(TestPageButtons)
#include "tst_pagebuttons.moc"
