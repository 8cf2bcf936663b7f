// SPDX-License-Identifier: MIT
// Does a double click on a page's button do more than a single press?
#include "tests/support/logrecorder.h"
#include "tests/support/mainwindowprobe.h"
#include "tests/window/camerawindow.h"

#include <QPushButton>
#include <QWindow>
#include <QtTest>

class PageButtonsTest : public QObject
{
    Q_OBJECT

private slots:
    void onTheNextPagesButton_data();
    void onTheNextPagesButton();
    void onThePicture_data();
    void onThePicture();
    void twoClicksInTurn();
};

namespace
{
/// Two presses at one place, as fast as a double click, through the window system.
void doubleClickAt(const CameraWindow &w, QPoint place)
{
    static int time = 0;
    QWindow *const handle = w.window->windowHandle();
    time += 10000; // not part of an earlier double click
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

/// The button's place in the window while its page is shown.
QRect placeOf(const CameraWindow &w, int step, const char *button)
{
    MainWindowProbe(*w.window).switchStep(step);
    QTest::qWait(30); // the page is laid out
    const auto &widget = w.child<QPushButton>(button);
    return {widget.mapTo(w.window.get(), QPoint()), widget.size()};
}

/// A connected window that shows a sky without stars, where a pick takes the brightest pixel.
class GreyWindow : public CameraWindow
{
public:
    GreyWindow()
    {
        showFrame(cv::Mat(960, 1280, CV_8UC1, cv::Scalar(40)));
        connectCamera();
        if (!waitForNewFrame())
            qFatal("no frame is shown");
    }
};
} // namespace

void PageButtonsTest::onTheNextPagesButton_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QByteArray>("next"); ///< the button of the next page
    const auto row = [](int step, const char *button, const char *next) {
        QTest::addRow("step %d", step) << step << QByteArray(button) << QByteArray(next);
    };
    row(8, "pushButton_validateCenter_done", "pushButton_getEptPolaris_done");
    row(9, "pushButton_getEptPolaris_done", "pushButton_movePolaris_done");
    row(10, "pushButton_movePolaris_done", "pushButton_getCurPolaris_done");
}

void PageButtonsTest::onTheNextPagesButton()
{
    QFETCH(int, step);
    QFETCH(QByteArray, button);
    QFETCH(QByteArray, next);
    const GreyWindow w;
    const QRect later = placeOf(w, step + 1, next);
    const QRect both = placeOf(w, step, button) & later;
    QVERIFY2(both.isValid(), "the two buttons have no place in common");
    doubleClickAt(w, both.center());
    // It was there at the second press.
    QCOMPARE(w.window->childAt(both.center())->objectName().toUtf8(), next);
    QCOMPARE(w.window->step(), step + 1);
}

void PageButtonsTest::onThePicture_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<int>("entered");
    QTest::newRow("Success, then the first pick")
        << 2 << QByteArray("pushButton_confirm_done") << 3;
    QTest::newRow("Reset, then the first pick")
        << 4 << QByteArray("pushButton_rotateStar1_reset") << 3;
    QTest::newRow("Done") << 13 << QByteArray("pushButton_finetunePole_done") << 13;
}

/// The next page is lower: the second press hits the picture below.
void PageButtonsTest::onThePicture()
{
    QFETCH(int, step);
    QFETCH(QByteArray, button);
    QFETCH(int, entered);
    const GreyWindow w;
    w.session().alignmentPoints.savedAxisCenter = QPointF();
    const QRect place = placeOf(w, step, button);
    const QPoint low(place.center().x(), place.bottom() - 2);
    const LogRecorder log;
    const BoxWatcher boxes;
    doubleClickAt(w, low);
    QCOMPARE(w.window->childAt(low)->objectName(), QString("label_showImg"));
    QCOMPARE(w.window->step(), entered);
    QCOMPARE(log.texts(QtDebugMsg).filter("star pos"), QStringList());
    QCOMPARE(boxes.boxes(), QList<Box>());
    // The next double click at the same place is a pick.
    QTest::qWait(20);
    doubleClickAt(w, low);
    if (entered == 3)
        QCOMPARE(w.window->step(), 4);
}

/// Slower than a double click, each press counts.
void PageButtonsTest::twoClicksInTurn()
{
    const GreyWindow w;
    const QRect later = placeOf(w, 10, "pushButton_movePolaris_done");
    const QRect both = placeOf(w, 9, "pushButton_getEptPolaris_done") & later;
    for (int press = 0; press < 2; ++press) {
        QTest::mouseClick(w.window->windowHandle(), Qt::LeftButton, Qt::NoModifier, both.center());
        QTest::qWait(20);
    }
    QCOMPARE(w.window->step(), 11);
}

QTEST_MAIN(PageButtonsTest)
#include "tst_pagebuttons.moc"
