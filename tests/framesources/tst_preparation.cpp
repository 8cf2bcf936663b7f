// SPDX-License-Identifier: MIT
// Is a camera's frame, of any kind, made into the frame that the program expects?
#include <QFile>
#include <QtTest>
#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>

#include "framesources/preparation.h"
#include "pictures/fitting.h"

using framesources::Lens;
using framesources::NativeFrame;
using framesources::prepared;

namespace
{
NativeFrame frameOf(const cv::Mat &pixels)
{
    NativeFrame frame;
    frame.pixels = pixels;
    return frame;
}
} // namespace

class PreparationTest : public QObject
{
    Q_OBJECT

private slots:
    void everyKind_data();
    void everyKind();
    void photographsStay_data();
    void photographsStay();
    void mirroredIsTurnedBack();
    void neverMoreThanFourTimes();
    void softened();
    void softenedStarsKeepTheirPlaces();
    void softeningIsNeeded_data();
    void softeningIsNeeded();
};

void PreparationTest::everyKind_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    for (const int type : {CV_8UC1, CV_16UC1, CV_8UC3, CV_16UC3})
        for (const auto &size : {qMakePair(1280, 960), qMakePair(640, 480), qMakePair(4144, 2822)})
            QTest::newRow(
                qPrintable(QString("%1, %2 x %3").arg(type).arg(size.first).arg(size.second)))
                << type << size.first << size.second;
}

void PreparationTest::everyKind()
{
    QFETCH(int, type);
    QFETCH(int, width);
    QFETCH(int, height);
    cv::Mat pixels(height, width, type, cv::Scalar::all(20));
    pixels(cv::Rect(width / 2 - 8, height / 2 - 8, 16, 16)).setTo(cv::Scalar::all(200));
    for (const double scale : {0.0, 6.0, 60.0}) {
        const cv::Mat out = prepared(frameOf(pixels), Lens{scale, false, false});
        QCOMPARE(out.type(), CV_8UC1);
        QCOMPARE(out.size(), cv::Size(1280, 960));
        QVERIFY(out.at<uchar>(480, 640) > out.at<uchar>(300, 400) + 50);
    }
}

void PreparationTest::photographsStay_data()
{
    QTest::addColumn<QString>("hemisphere");
    QTest::newRow("north") << QStringLiteral("north");
    QTest::newRow("south") << QStringLiteral("south");
}

void PreparationTest::photographsStay()
{
    QFETCH(QString, hemisphere);
    const QString path =
        QStringLiteral(PROJECT_SOURCE_DIR "/../shared/photos/%1_pole.png").arg(hemisphere);
    if (!QFile::exists(path))
        QSKIP("the photographs are not there");
    const cv::Mat photograph = cv::imread(path.toStdString(), cv::IMREAD_GRAYSCALE);
    QCOMPARE(cv::norm(prepared(frameOf(photograph), Lens()), photograph, cv::NORM_INF), 0.0);
}

void PreparationTest::mirroredIsTurnedBack()
{
    cv::Mat pixels(960, 1280, CV_8UC1, cv::Scalar(0));
    pixels.at<uchar>(100, 200) = 255;
    const cv::Mat out = prepared(frameOf(pixels), Lens{0.0, true, false});
    QCOMPARE(int(out.at<uchar>(100, 1279 - 200)), 255);
    QCOMPARE(int(pixels.at<uchar>(100, 200)), 255); // the camera's own frame stays
}

/// Two dots 20 pixels apart, of a camera as coarse as the settings permit.
void PreparationTest::neverMoreThanFourTimes()
{
    cv::Mat pixels(48, 64, CV_8UC1, cv::Scalar(0));
    pixels(cv::Rect(22, 24, 1, 1)).setTo(200);
    pixels(cv::Rect(42, 24, 1, 1)).setTo(200);
    for (const auto &[scale, distance] :
         std::vector<std::pair<double, double>>{{60.9, 40.0}, {121.8, 80.0}, {1000.0, 80.0}}) {
        const cv::Mat out = prepared(frameOf(pixels), Lens{scale, false, false});
        const auto middle = [&out](int begin, int end) {
            const cv::Moments moments = cv::moments(out.colRange(begin, end));
            return begin + moments.m10 / moments.m00;
        };
        QVERIFY2(std::abs(middle(640, 1280) - middle(0, 640) - distance) < 0.2,
                 qPrintable(QString::number(middle(640, 1280) - middle(0, 640))));
        QCOMPARE(out.size(), cv::Size(1280, 960));
    }
}

/// Two stars of one pixel each, between the pixels of the program.
void PreparationTest::softenedStarsKeepTheirPlaces()
{
    cv::Mat pixels(4000, 5000, CV_16UC1, cv::Scalar(0));
    pixels.at<ushort>(2000, 1501) = 60000;
    pixels.at<ushort>(2000, 3503) = 60000;
    const auto distanceIn = [](const cv::Mat &frame) {
        const auto middle = [&frame](int begin, int end) {
            const cv::Moments moments = cv::moments(frame.colRange(begin, end));
            return begin + moments.m10 / moments.m00;
        };
        return middle(500, 1000) - middle(0, 500);
    };
    const pictures::Fit fit =
        pictures::planFit(pixels.size(), {1280, 960}, pictures::programScale / 5.0);
    const double distance = distanceIn(pictures::resampled(pixels, fit, true));
    QVERIFY2(std::abs(distance - 400.4) < 0.02, qPrintable(QString::number(distance)));
    QVERIFY(std::abs(distanceIn(pictures::resampled(pixels, fit)) - 400.4) > 0.3); // as it is else
}

void PreparationTest::softeningIsNeeded_data()
{
    QTest::addColumn<double>("fwhm");
    QTest::addColumn<double>("scale");
    QTest::addColumn<bool>("needed");
    QTest::newRow("the program's scale") << 2.0 << 30.45 << false;
    QTest::newRow("the program's scale, stars of one pixel") << 1.0 << 30.45 << true;
    QTest::newRow("averaged by two") << 4.0 << 15.2 << false;
    QTest::newRow("averaged by five") << 2.5 << 6.0 << true;
    QTest::newRow("a fine scale that stays") << 2.5 << 0.0 << false;
    QTest::newRow("enlarged") << 1.6 << 60.0 << false;
}

void PreparationTest::softeningIsNeeded()
{
    QFETCH(double, fwhm);
    QFETCH(double, scale);
    QTEST(framesources::needsSoftening(fwhm, {1280, 960}, scale), "needed");
}

void PreparationTest::softened()
{
    cv::Mat pixels(960, 1280, CV_8UC1, cv::Scalar(0));
    pixels.at<uchar>(100, 200) = 160;
    const cv::Mat out = prepared(frameOf(pixels), Lens{0.0, false, true});
    QCOMPARE(int(out.at<uchar>(100, 200)), 40);
    QCOMPARE(int(out.at<uchar>(100, 201)), 20);
    QCOMPARE(int(out.at<uchar>(99, 199)), 10);
}

QTEST_GUILESS_MAIN(PreparationTest)
#include "tst_preparation.moc"
