// SPDX-License-Identifier: MIT
// How do the waiting pictures and the frame rate get onto the screen?
#include "tests/window/camerawindow.h"
#include "widgets/magnifierwidget.h"

#include <QAction>
#include <QElapsedTimer>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QSemaphore>
#include <QtTest>
#include <atomic>
#include <cstdlib>
#include <dlfcn.h>

namespace
{
std::atomic<int> waitsOfTheWindow{0}; // of its thread, for a semaphore

QImage plainPicture(int width, int height, const QColor &colour)
{
    QImage picture(width, height, QImage::Format_RGB888);
    picture.fill(colour);
    return picture;
}

QByteArray zoomSetting(const QByteArray &factor)
{
    return "[ZOOM]\nfactor=" + factor + '\n';
}

/// Whether a point of the frame is in the middle of the view, within a few pixels.
bool isInTheMiddle(const CameraWindow &w, double zoom, QPointF frame)
{
    const auto &area = w.child<QScrollArea>("scrollArea_showImg");
    const QPointF middle(area.horizontalScrollBar()->value() + area.viewport()->width() / 2.0,
                         area.verticalScrollBar()->value() + area.viewport()->height() / 2.0);
    return (middle / zoom - frame).manhattanLength() <= 6.0;
}
} // namespace

/// In place of the toolkit's own, also for the toolkit's other libraries.
void QSemaphore::acquire(int n)
{
    if (qApp && QThread::currentThread() == qApp->thread())
        ++waitsOfTheWindow;
    using Acquire = void (*)(QSemaphore *, int);
    static const auto real =
        reinterpret_cast<Acquire>(::dlsym(RTLD_NEXT, "_ZN10QSemaphore7acquireEi"));
    real(this, n);
}

class FrameDisplayTest : public QObject
{
    Q_OBJECT

private slots:
    void zoom_data();
    void zoom();
    void waitingPictureKeepsItsSize();
    void scalingIsSmooth();
    void windowNeedsNoSemaphore();
    void picturesNeedNoSemaphore_data();
    void picturesNeedNoSemaphore();
    void templateAndEndNeedNoSemaphore();
    void framesFromTheCamera_data();
    void framesFromTheCamera();
    void firstPictureIsCentred_data();
    void firstPictureIsCentred();
    void zoomBeforeTheFirstPicture();
    void oldestFirstAndOneATick();
    void nothingWithoutPictures();
    void stalledGui();
    void magnifierFollowsThePicture();
    void rateText_data();
    void rateText();
    void rateStaysWhenFramesStop();
    void monitorView();
    void readOutsWaitForAPicture();
    void monitorModeOff();
};

void FrameDisplayTest::zoom_data()
{
    QTest::addColumn<QByteArray>("factor");
    QTest::addColumn<QSize>("frame");
    QTest::addColumn<QSize>("shown");
    const QSize full(1280, 960);
    QTest::newRow("100") << QByteArray("1") << full << full;
    QTest::newRow("75") << QByteArray("0.75") << full << QSize(960, 720);
    QTest::newRow("50") << QByteArray("0.5") << full << QSize(640, 480);
    QTest::newRow("150") << QByteArray("1.5") << full << QSize(1920, 1440);
    QTest::newRow("sides are cut") << QByteArray("0.333") << full << QSize(425, 319);
    QTest::newRow("small frame") << QByteArray("0.5") << QSize(333, 111) << QSize(165, 55);
}

void FrameDisplayTest::zoom()
{
    QFETCH(QByteArray, factor);
    QFETCH(QSize, frame);
    QFETCH(QSize, shown);
    const CameraWindow w(zoomSetting(factor));
    w.session().frameQueue.append(plainPicture(frame.width(), frame.height(), QColor(90, 60, 30)));
    w.call("showImages");
    const QImage picture = w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).toImage();
    QCOMPARE(picture.size(), shown);
    QCOMPARE(picture.pixelColor(shown.width() / 2, shown.height() / 2), QColor(90, 60, 30));
}

/// Whatever the camera reports about the frames after it.
void FrameDisplayTest::waitingPictureKeepsItsSize()
{
    const CameraWindow w(zoomSetting("0.5"));
    w.session().frameQueue.append(plainPicture(640, 480, Qt::blue));
    w.session().camera.frameWidth = 65536;
    w.session().camera.frameHeight = 0;
    w.call("showImages");
    QCOMPARE(w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).size(), QSize(320, 240));
}

/// At half size a pixel is the mean of four: no single-pixel star is lost.
void FrameDisplayTest::scalingIsSmooth()
{
    const CameraWindow w(zoomSetting("0.5"));
    QImage picture = plainPicture(64, 48, Qt::black);
    for (int y = 0; y < 48; ++y)
        for (int x = y % 2; x < 64; x += 2)
            picture.setPixelColor(x, y, Qt::white);
    w.session().frameQueue.append(picture);
    w.call("showImages");
    const QImage shown = w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).toImage();
    QCOMPARE(shown.size(), QSize(32, 24));
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 32; ++x)
            QVERIFY(std::abs(shown.pixelColor(x, y).red() - 127) <= 2);
}

/// Neither the window and its dialogs nor their icons.
void FrameDisplayTest::windowNeedsNoSemaphore()
{
    waitsOfTheWindow = 0;
    const CameraWindow w;
    for (const int side : {16, 32, 48, 64, 128}) // as a window manager gets it
        QVERIFY(!w.window->windowIcon().pixmap(side, side).toImage().isNull());
    QCOMPARE(waitsOfTheWindow.load(), 0);
}

void FrameDisplayTest::picturesNeedNoSemaphore_data()
{
    QTest::addColumn<QByteArray>("factor");
    for (const char *factor : {"1", "0.75", "0.5", "1.5"})
        QTest::newRow(factor) << QByteArray(factor);
}

void FrameDisplayTest::picturesNeedNoSemaphore()
{
    QFETCH(QByteArray, factor);
    const QImage picture = plainPicture(1280, 960, Qt::darkBlue);
    const CameraWindow w(zoomSetting(factor));
    w.session().overlayFlags.monitorTracking = true;
    waitsOfTheWindow = 0;
    w.session().frameQueue.append(picture);
    w.session().magnifierQueue.append(picture);
    w.call("showImages");
    QVERIFY(!w.child<QLabel>("label_showImg").window()->grab().isNull());
    QCOMPARE(waitsOfTheWindow.load(), 0);
    const double zoom = factor.toDouble();
    QCOMPARE(w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).toImage(),
             QPixmap::fromImage(picture.scaled(int(1280 * zoom), int(960 * zoom),
                                               Qt::KeepAspectRatio, Qt::SmoothTransformation))
                 .toImage());
    if (QThread::idealThreadCount() > 1) { // this is how the toolkit waits
        const QSize half = picture.size() / 2;
        QCOMPARE(picture.scaled(half, {}, Qt::SmoothTransformation).size(), half);
        QVERIFY(waitsOfTheWindow > 0);
    }
}

void FrameDisplayTest::templateAndEndNeedNoSemaphore()
{
    const CameraWindow w;
    showFrame(starFrame({{800, 600}}));
    w.connectCamera();
    QVERIFY(w.waitForNewFrame());
    w.enterStep(10);
    waitsOfTheWindow = 0;
    for (const char *zoom : {"action75", "action50", "action100"})
        w.child<QAction>(zoom).trigger();
    QVERIFY(!w.child<QLabel>("label_templateImg").pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(waitsOfTheWindow.load(), 0);
    w.trigger("actionConnect");
    QTRY_VERIFY(w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(waitsOfTheWindow.load(), 0);
}

void FrameDisplayTest::framesFromTheCamera_data()
{
    QTest::addColumn<QByteArray>("factor");
    QTest::addColumn<QPoint>("star"); ///< view pixel of the frame pixel 800, 600
    QTest::newRow("100") << QByteArray("1") << QPoint(800, 600);
    QTest::newRow("75") << QByteArray("0.75") << QPoint(600, 450);
    QTest::newRow("50") << QByteArray("0.5") << QPoint(400, 300);
}

void FrameDisplayTest::framesFromTheCamera()
{
    QFETCH(QByteArray, factor);
    QFETCH(QPoint, star);
    const CameraWindow w(zoomSetting(factor));
    showFrame(starFrame({{800, 600}}));
    w.connectCamera();
    QVERIFY(w.waitForNewFrame());
    auto &label = w.child<QLabel>("label_showImg");
    const QImage picture = label.pixmap(Qt::ReturnByValue).toImage();
    QVERIFY(picture.pixelColor(star).red() > 100);
    QVERIFY(picture.pixelColor(star - QPoint(20, 0)).red() < 5);
    QTRY_COMPARE(label.size(), picture.size());
}

void FrameDisplayTest::firstPictureIsCentred_data()
{
    QTest::addColumn<QByteArray>("factor");
    QTest::newRow("100") << QByteArray("1");
    QTest::newRow("75") << QByteArray("0.75");
    QTest::newRow("50") << QByteArray("0.5");
}

/// After every connection, and only once: the user's scroll position is kept.
void FrameDisplayTest::firstPictureIsCentred()
{
    QFETCH(QByteArray, factor);
    const CameraWindow w(zoomSetting(factor));
    showFrame(starFrame({{800, 600}}));
    sdk().setFramesLeft(-1);
    w.window->resize(700, 400);
    const auto &area = w.child<QScrollArea>("scrollArea_showImg");
    for (int connection = 0; connection < 2; ++connection) {
        w.connectCamera();
        QTRY_VERIFY(area.verticalScrollBar()->maximum() > 100);
        QTest::qWait(50); // later layouting must not undo it
        QVERIFY2(isInTheMiddle(w, factor.toDouble(), {640, 480}), "not at first");
        area.horizontalScrollBar()->setValue(20);
        area.verticalScrollBar()->setValue(30);
        const int fetched = sdk().fetchCount();
        QTRY_VERIFY(sdk().fetchCount() > fetched + 3);
        QTest::qWait(50);
        QCOMPARE(area.horizontalScrollBar()->value(), 20);
        QCOMPARE(area.verticalScrollBar()->value(), 30);
        w.trigger("actionConnect");
        QTRY_COMPARE(area.verticalScrollBar()->maximum(), 0);
    }
}

void FrameDisplayTest::zoomBeforeTheFirstPicture()
{
    const CameraWindow w(zoomSetting("1"));
    showFrame(starFrame({{800, 600}}));
    w.window->resize(700, 400);
    sdk().setFramesLeft(0);
    w.connectCamera();
    QVERIFY(w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).isNull());
    w.trigger("action75");
    sdk().setFramesLeft(-1);
    QTRY_VERIFY(w.child<QScrollArea>("scrollArea_showImg").verticalScrollBar()->maximum() > 100);
    QTest::qWait(50);
    QVERIFY(isInTheMiddle(w, 0.75, {640, 480}));
}

void FrameDisplayTest::oldestFirstAndOneATick()
{
    const CameraWindow w;
    w.session().frameQueue.append(plainPicture(64, 48, Qt::red));
    w.session().frameQueue.append(plainPicture(64, 48, Qt::blue));
    auto &label = w.child<QLabel>("label_showImg");
    w.call("showImages");
    QCOMPARE(w.session().frameQueue.size(), 1);
    QCOMPARE(label.pixmap(Qt::ReturnByValue).toImage().pixelColor(9, 9), QColor(255, 0, 0));
    w.call("showImages");
    QCOMPARE(w.session().frameQueue.size(), 0);
    QCOMPARE(label.pixmap(Qt::ReturnByValue).toImage().pixelColor(9, 9), QColor(0, 0, 255));
    w.call("showImages");
    QCOMPARE(label.pixmap(Qt::ReturnByValue).toImage().pixelColor(9, 9), QColor(0, 0, 255));
}

void FrameDisplayTest::nothingWithoutPictures()
{
    const CameraWindow w;
    QTest::qWait(60);
    QVERIFY(w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(w.child<QLabel>("fpsLabel").text(), QStringLiteral("FPS : 0.0"));
    QCOMPARE(w.child<QLabel>("fpsLabel").size(), QSize(85, 18));
}

void FrameDisplayTest::stalledGui()
{
    const CameraWindow w;
    showFrame(starFrame({{640, 480}}));
    w.connectCamera();
    w.session().overlayFlags.monitorTracking = true;
    w.session().monitorPositions.starASearch = QPointF(640, 480);
    w.session().monitorPositions.starBSearch = QPointF(640, 480);
    sdk().setFramesLeft(-1);
    const int before = sdk().fetchCount();
    QElapsedTimer timer;
    timer.start();
    // No events are handled here.
    while (sdk().fetchCount() < before + 10 && timer.elapsed() < patience)
        QThread::msleep(5);
    QVERIFY(sdk().fetchCount() >= before + 10);
    QCOMPARE(w.session().frameQueue.size(), 2);
    QCOMPARE(w.session().magnifierQueue.size(), 2);
    sdk().setFramesLeft(0);
    QTRY_VERIFY(w.session().frameQueue.isEmpty() && w.session().magnifierQueue.isEmpty());
}

void FrameDisplayTest::magnifierFollowsThePicture()
{
    const CameraWindow w;
    auto *const magnifier = w.window->findChild<MagnifierWidget *>();
    for (const QColor &colour : {QColor(200, 10, 20), QColor(10, 200, 20)}) {
        w.session().frameQueue.append(plainPicture(640, 480, colour));
        w.call("showImages");
        QCoreApplication::processEvents(); // told to paint, it does so by itself
        const QImage region = magnifier->magnifiedRegion().toImage();
        QVERIFY(!region.isNull());
        QCOMPARE(region.pixelColor(0, 0), colour);
    }
}

void FrameDisplayTest::rateText_data()
{
    QTest::addColumn<int>("whole");
    QTest::addColumn<int>("tenths");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << 0 << 0 << "FPS : 0.0";
    QTest::newRow("9.7") << 9 << 7 << "FPS : 9.7";
    QTest::newRow("30.3") << 30 << 3 << "FPS : 30.3";
    QTest::newRow("saturated") << 2147483647 << -2147483647 - 1 << "FPS : 2147483647.-2147483648";
    QTest::newRow("negative") << -333 << -3 << "FPS : -333.-3";
    QTest::newRow("the clock was set back by 2 s") << 0 << -5 << "FPS : 0.-5";
}

void FrameDisplayTest::rateText()
{
    QFETCH(int, whole);
    QFETCH(int, tenths);
    QFETCH(QString, text);
    const CameraWindow w;
    w.session().frameRate.show({whole, tenths});
    auto &label = w.child<QLabel>("fpsLabel");
    w.call("updateFPS");
    QCOMPARE(label.text(), text);
    label.clear();
    QTRY_COMPARE(label.text(), text); // by the timer
}

void FrameDisplayTest::rateStaysWhenFramesStop()
{
    const CameraWindow w;
    showFrame(starFrame({}));
    sdk().setFrameInterval(40);
    w.connectCamera();
    sdk().setFramesLeft(8);
    auto &label = w.child<QLabel>("fpsLabel");
    QTRY_COMPARE(sdk().framesLeft(), 0);
    const int soFar = sdk().fetchCount();
    QTRY_VERIFY(sdk().fetchCount() > soFar); // the last frame has been measured
    const FrameRate last = w.session().frameRate.rate();
    QVERIFY(last.whole + last.tenths > 0);
    const QString text = QStringLiteral("FPS : %1.%2").arg(last.whole).arg(last.tenths);
    QTRY_COMPARE(label.text(), text);
    QTest::qWait(1100);
    QCOMPARE(label.text(), text);
}

void FrameDisplayTest::monitorView()
{
    const CameraWindow w;
    w.session().overlayFlags.monitorTracking = true;
    w.session().monitorPositions.starACurrent = QPointF(123.44, 56.78);
    w.session().monitorPositions.starBCurrent = QPointF(-0.04, 1000.05);
    w.session().magnifierQueue.append(plainPicture(200, 200, Qt::red));
    w.session().magnifierQueue.append(plainPicture(200, 200, Qt::blue));
    w.call("showImages");
    QCOMPARE(w.session().magnifierQueue.size(), 1);
    const QImage picture = w.child<QLabel>("label_biggerImg").pixmap(Qt::ReturnByValue).toImage();
    QCOMPARE(picture.size(), QSize(200, 200));
    QCOMPARE(picture.pixelColor(100, 100), QColor(255, 0, 0));
    QCOMPARE(w.child<QLabel>("label_refStarA_pos").text(), QStringLiteral("(123.4,56.8)"));
    QCOMPARE(w.child<QLabel>("label_refStarB_pos").text(), QStringLiteral("(-0.0,1000.0)"));
}

/// The read-outs belong to the picture beside them: without a new one they stay.
void FrameDisplayTest::readOutsWaitForAPicture()
{
    const CameraWindow w;
    auto &starA = w.child<QLabel>("label_refStarA_pos");
    auto &starB = w.child<QLabel>("label_refStarB_pos");
    auto &view = w.child<QLabel>("label_biggerImg");
    w.session().overlayFlags.monitorTracking = true;
    w.session().monitorPositions.starACurrent = QPointF(100, 200);
    w.session().monitorPositions.starBCurrent = QPointF(300, 400);
    w.session().magnifierQueue.append(plainPicture(200, 200, Qt::red));
    w.call("showImages");
    QCOMPARE(starA.text() + starB.text(), QStringLiteral("(100.0,200.0)(300.0,400.0)"));
    const qint64 shown = view.pixmap(Qt::ReturnByValue).cacheKey();
    for (int i = 1; i <= 3; ++i) {
        w.session().monitorPositions.starACurrent = QPointF(100 + i, 200);
        w.session().monitorPositions.starBCurrent = QPointF(300, 400 + i);
        // Pictures themselves keep coming.
        w.session().frameQueue.append(plainPicture(64, 48, Qt::blue));
        w.call("showImages");
        QCOMPARE(starA.text() + starB.text(), QStringLiteral("(100.0,200.0)(300.0,400.0)"));
        QCOMPARE(view.pixmap(Qt::ReturnByValue).cacheKey(), shown);
    }
    w.session().magnifierQueue.append(plainPicture(200, 200, Qt::blue));
    w.call("showImages");
    QCOMPARE(starA.text() + starB.text(), QStringLiteral("(103.0,200.0)(300.0,403.0)"));
    QVERIFY(view.pixmap(Qt::ReturnByValue).cacheKey() != shown);
}

void FrameDisplayTest::monitorModeOff()
{
    const CameraWindow w;
    const QString text = w.child<QLabel>("label_refStarA_pos").text();
    w.session().magnifierQueue.append(plainPicture(200, 200, Qt::red));
    showFrame(starFrame({{640, 480}}));
    w.connectCamera();
    QVERIFY(w.waitForNewFrame());
    w.call("showImages");
    QCOMPARE(w.session().magnifierQueue.size(), 1); // neither filled nor read
    QVERIFY(w.child<QLabel>("label_biggerImg").pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(w.child<QLabel>("label_refStarA_pos").text(), text);
}

QTEST_MAIN(FrameDisplayTest)
#include "tst_framedisplay.moc"
