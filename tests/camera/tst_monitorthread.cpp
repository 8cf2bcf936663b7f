// SPDX-License-Identifier: MIT
// Does the capture loop enlarge the followed star in the display's style, and in the same memory
// for every frame?
#include "tests/camera/capturetest.h"
#include "tests/support/picturemakerprobe.h"

#include <utility>

class MonitorThreadTest : public CaptureTest
{
    Q_OBJECT

private slots:
    void enlargementInTheStyle_data();
    void enlargementInTheStyle();
    void matricesAreReused_data();
    void matricesAreReused();
};

void MonitorThreadTest::enlargementInTheStyle_data()
{
    QTest::addColumn<bool>("mono");
    QTest::addColumn<QRgb>("starA");
    QTest::newRow("colour") << false << qRgb(0, 0, 255);
    QTest::newRow("mono") << true << qRgb(248, 248, 255);
}

/// Star A is so close to star B that its mark is in the enlargement, ten frame pixels to the right
/// of the middle.
void MonitorThreadTest::enlargementInTheStyle()
{
    QFETCH(bool, mono);
    QFETCH(QRgb, starA);
    showFrame(starFrame({})); // black: the search positions stay
    session->monitorPositions.starASearch = QPointF(650, 480);
    session->monitorPositions.starBSearch = QPointF(640, 480);
    session->overlayFlags.monitorTracking = true;
    session->overlayFlags.monoStyle = mono;
    thread->startCapture();
    QVERIFY(waitForFrames(1));
    const QImage seen = session->magnifierQueue.waiting().value(0);
    QCOMPARE(seen.size(), QSize(200, 200));
    QCOMPARE(seen.pixel(150, 100), starA); // the dot
    for (const QPoint tick :
         {QPoint(142, 100), QPoint(158, 100), QPoint(150, 92), QPoint(150, 108)})
        QCOMPARE(seen.pixel(tick), starA);
    QCOMPARE(seen.pixel(100, 100), qRgb(0, 255, 0)); // star B is green in both
}

void MonitorThreadTest::matricesAreReused_data()
{
    QTest::addColumn<int>("channels");
    QTest::newRow("grey") << 1;
    QTest::newRow("colour") << 3;
}

/// Memory that is allocated once is used for every frame. The headers kept here prevent the first
/// memory from being reused, so that a new allocation has another address.
void MonitorThreadTest::matricesAreReused()
{
    QFETCH(int, channels);
    const FrameMatrices &matrices = PictureMakerProbe(*maker).matrices();
    const FrameMatrices first = matrices;
    const std::pair<const cv::Mat &, const cv::Mat &> pairs[] = {
        {first.colourFrame, matrices.colourFrame},
        {first.enlargedGrey, matrices.enlargedGrey},
        {first.enlargedColour, matrices.enlargedColour},
        {first.magnifierCrop, matrices.magnifierCrop}};
    session->overlayFlags.monitorTracking = true;
    // The enlarged part is at a different place in each frame, once over the edge.
    for (const QPointF star : {QPointF(640, 480), QPointF(100, 900), QPointF(1279, 0)}) {
        showFrame(starFrame({star}, channels));
        session->monitorPositions.starASearch = star;
        session->monitorPositions.starBSearch = star;
        thread->startCapture();
        QVERIFY(waitForFrames(2));
        stopAndWait();
        QVERIFY(!session->magnifierQueue.isEmpty());
        forgetWaitingPictures();
        for (const auto &[before, now] : pairs) {
            QVERIFY(before.data != nullptr);
            QVERIFY(now.data == before.data);
            QVERIFY(now.size() == before.size() && now.type() == before.type());
        }
    }
}

QTEST_GUILESS_MAIN(MonitorThreadTest)
#include "tst_monitorthread.moc"
