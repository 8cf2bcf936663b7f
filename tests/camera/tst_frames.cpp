// SPDX-License-Identifier: MIT
// How does a matrix become a picture, and how full can a queue get?
#include "camera/frames.h"
#include "camera/latestframe.h"
#include "camera/picturequeue.h"
#include "tests/support/logrecorder.h"

#include <QtTest>
#include <algorithm>

Q_DECLARE_METATYPE(cv::Mat)

class FramesTest : public QObject
{
    Q_OBJECT

private slots:
    void refused_data();
    void refused();
    void nullMatrix();
    void oneChannelSharesThePixels();
    void threeChannelsAreTurnedAndOwned();
    void areaOfALargerMatrix();
    void matrices();
    void queueIsBounded();
    void nothingIsQueuedAfterTheStop();
    void rawFrameIsCopied();
};

void FramesTest::refused_data()
{
    QTest::addColumn<cv::Mat>("matrix");
    QTest::addColumn<QString>("message");
    const QString unsupported = QStringLiteral("MatToQImage: image format is not supported : ");
    QTest::newRow("empty") << cv::Mat() << "MatToQImage: Input Mat is null or empty.";
    QTest::newRow("no rows") << cv::Mat(0, 5, CV_8UC3)
                             << "MatToQImage: Input Mat is null or empty.";
    QTest::newRow("signed 8 bits") << cv::Mat(2, 2, CV_8SC1) << unsupported + "depth=1";
    QTest::newRow("16 bits") << cv::Mat(2, 2, CV_16UC1) << unsupported + "depth=2";
    QTest::newRow("float, 3 channels") << cv::Mat(2, 2, CV_32FC3) << unsupported + "depth=5";
    QTest::newRow("depth before channels") << cv::Mat(2, 2, CV_64FC4) << unsupported + "depth=6";
    QTest::newRow("2 channels") << cv::Mat(2, 2, CV_8UC2)
                                << unsupported + "depth=8U and channels=2";
    QTest::newRow("4 channels") << cv::Mat(2, 2, CV_8UC4)
                                << unsupported + "depth=8U and channels=4";
}

void FramesTest::refused()
{
    QFETCH(cv::Mat, matrix);
    QFETCH(QString, message);
    const LogRecorder log;
    QVERIFY(!MatToQImage(&matrix));
    QCOMPARE(log.lines(), QList<LogLine>({{QtCriticalMsg, message}}));
}

void FramesTest::nullMatrix()
{
    const LogRecorder log;
    QVERIFY(!MatToQImage(nullptr));
    QCOMPARE(log.lines(),
             QList<LogLine>({{QtCriticalMsg, "MatToQImage: Input Mat is null or empty."}}));
}

void FramesTest::oneChannelSharesThePixels()
{
    cv::Mat matrix(3, 8, CV_8UC1, cv::Scalar(7));
    const auto picture = MatToQImage(&matrix);
    QVERIFY(picture);
    QCOMPARE(picture->format(), QImage::Format_Indexed8);
    QCOMPARE(picture->size(), QSize(8, 3));
    QCOMPARE(picture->bytesPerLine(), 8);
    QCOMPARE(picture->colorCount(), 0);
    QVERIFY(picture->constBits() == matrix.data);
}

void FramesTest::threeChannelsAreTurnedAndOwned()
{
    cv::Mat matrix(2, 3, CV_8UC3, cv::Scalar(10, 20, 30));
    matrix.at<cv::Vec3b>(1, 2) = {1, 2, 3};
    const auto picture = MatToQImage(&matrix);
    QVERIFY(picture);
    matrix.setTo(cv::Scalar::all(255));
    QCOMPARE(picture->format(), QImage::Format_RGB888);
    QCOMPARE(picture->size(), QSize(3, 2));
    QCOMPARE(picture->pixel(0, 0), qRgb(30, 20, 10));
    QCOMPARE(picture->pixel(2, 1), qRgb(3, 2, 1));
    QCOMPARE(picture->pixel(1, 1), qRgb(30, 20, 10));
}

void FramesTest::areaOfALargerMatrix()
{
    cv::Mat colour(4, 16, CV_8UC3, cv::Scalar::all(0));
    colour.at<cv::Vec3b>(3, 9) = {1, 2, 3};
    const cv::Mat colourArea = colour(cv::Rect(5, 2, 6, 2));
    QCOMPARE(MatToQImage(&colourArea)->pixel(4, 1), qRgb(3, 2, 1));

    cv::Mat grey(4, 16, CV_8UC1, cv::Scalar(0));
    grey.at<uchar>(3, 9) = 77;
    const cv::Mat greyArea = grey(cv::Rect(4, 2, 8, 2));
    const auto picture = MatToQImage(&greyArea);
    QCOMPARE(picture->bytesPerLine(), 16);
    QCOMPARE(int(picture->constScanLine(1)[5]), 77);
}

void FramesTest::matrices()
{
    const FrameMatrices matrices;
    const cv::Mat raw = LatestFrame().copy();
    const struct {
        const cv::Mat &matrix;
        cv::Size size;
        int type;
    } table[] = {{raw, {1280, 960}, CV_8UC1},
                 {matrices.colourFrame, {1280, 960}, CV_8UC3},
                 {matrices.enlargedGrey, {6400, 4800}, CV_8UC1},
                 {matrices.enlargedColour, {6400, 4800}, CV_8UC3},
                 {matrices.magnifierCrop, {200, 200}, CV_8UC3}};
    for (const auto &row : table) {
        QVERIFY(row.matrix.size() == row.size);
        QCOMPARE(row.matrix.type(), row.type);
    }
    QCOMPARE(cv::countNonZero(raw), 0); // nothing is visible before the first frame
}

void FramesTest::queueIsBounded()
{
    PictureQueue queue;
    QImage pictures[3];
    for (int i = 0; i < 3; ++i)
        pictures[i] = QImage(i + 1, 1, QImage::Format_RGB888);
    QVERIFY(queue.append(pictures[0]));
    QVERIFY(queue.append(pictures[1]));
    QVERIFY(!queue.append(pictures[2]));
    QCOMPARE(queue.size(), 2);
    QCOMPARE(queue.waiting()[0].width(), 1);
    QCOMPARE(queue.waiting()[1].width(), 2);
    QCOMPARE(queue.takeOldest().width(), 1);
    QVERIFY(queue.append(pictures[2]));
    QCOMPARE(queue.waiting()[1].width(), 3);
}

void FramesTest::nothingIsQueuedAfterTheStop()
{
    PictureQueue queue;
    const Relaxed<bool> stopped(true);
    QVERIFY(!queue.append(QImage(1, 1, QImage::Format_RGB888), stopped));
    QVERIFY(queue.isEmpty());
}

void FramesTest::rawFrameIsCopied()
{
    LatestFrame latest;
    std::fill_n(latest.fetchBuffer(), 4, std::uint8_t(5));
    cv::Mat raw = latest.acceptFetched({2, 2, 8, 1});
    const cv::Mat copy = latest.copy();
    raw.setTo(cv::Scalar(9));
    QCOMPARE(int(copy.at<uchar>(1, 1)), 5);
    QCOMPARE(int(latest.copy().at<uchar>(1, 1)), 9);
    latest.acceptFetched({0, 0, 8, 1});
    QVERIFY(latest.copy().empty());
}

QTEST_GUILESS_MAIN(FramesTest)
#include "tst_frames.moc"
