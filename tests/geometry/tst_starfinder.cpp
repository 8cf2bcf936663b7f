// SPDX-License-Identifier: MIT
// Are the stars of a frame found, and is nothing else taken for a star?
#include "geometry/starfinder.h"

#include <QTest>
#include <cmath>
#include <limits>
#include <opencv2/core.hpp>

namespace
{
/// A round star of a peak and a width in pixels, one standard deviation.
void addStar(cv::Mat &frame, QPointF place, int peak, double width)
{
    const int channels = frame.channels();
    for (int y = 0; y < frame.rows; ++y)
        for (int x = 0; x < frame.cols; ++x) {
            const double away = std::hypot(x - place.x(), y - place.y());
            const double light = peak * std::exp(-away * away / (2 * width * width));
            for (int c = 0; c < channels; ++c) {
                uchar &value = frame.ptr<uchar>(y)[x * channels + c];
                value = uchar(std::min(255.0, value + light));
            }
        }
}

/// A sky that is brighter to the right, with noise of one deviation.
cv::Mat skyFrame(int left, int right, double noise, int type = CV_8UC1)
{
    cv::Mat frame(240, 320, type);
    cv::RNG random(7);
    for (int y = 0; y < frame.rows; ++y)
        for (int x = 0; x < frame.cols; ++x) {
            const double value =
                left + double(right - left) * x / frame.cols + random.gaussian(noise);
            for (int c = 0; c < frame.channels(); ++c)
                frame.ptr<uchar>(y)[x * frame.channels() + c] = cv::saturate_cast<uchar>(value);
        }
    return frame;
}
} // namespace

class StarFinderTest : public QObject
{
    Q_OBJECT

private slots:
    void findsStars_data();
    void findsStars();
    void emptySky_data();
    void emptySky();
    void leavesOthersOut();
    void refusesFrames_data();
    void refusesFrames();
    void brightestInArea();
};

void StarFinderTest::findsStars_data()
{
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::addColumn<double>("noise");
    QTest::addColumn<int>("type");
    QTest::newRow("black, no noise") << 0 << 0 << 0.0 << int(CV_8UC1);
    QTest::newRow("noise") << 20 << 20 << 3.0 << int(CV_8UC1);
    QTest::newRow("glow to the right") << 10 << 40 << 3.0 << int(CV_8UC1);
    QTest::newRow("three channels") << 20 << 20 << 3.0 << int(CV_8UC3);
}

void StarFinderTest::findsStars()
{
    QFETCH(int, left);
    QFETCH(int, right);
    QFETCH(double, noise);
    QFETCH(int, type);
    cv::Mat frame = skyFrame(left, right, noise, type);
    const QVector<QPointF> places{{40.3, 50.6}, {200, 30}, {300, 200}, {100, 180}};
    for (const QPointF &place : places)
        addStar(frame, place, 120, 1.4);
    const cv::Mat before = frame.clone();
    const auto stars = findStars(frame);
    QCOMPARE(cv::norm(frame, before, cv::NORM_INF), 0.0);
    QCOMPARE(int(stars.size()), places.size());
    for (const QPointF &place : places) {
        QVERIFY(isStarNear(stars, place, 1.0));
        QVERIFY(!isStarNear(stars, place + QPointF(3, 0), 1.0));
    }
}

void StarFinderTest::emptySky_data()
{
    findsStars_data();
}

void StarFinderTest::emptySky()
{
    QFETCH(int, left);
    QFETCH(int, right);
    QFETCH(double, noise);
    QFETCH(int, type);
    QCOMPARE(int(findStars(skyFrame(left, right, noise, type)).size()), 0);
}

/// A hot pixel, and a bright cloud.
void StarFinderTest::leavesOthersOut()
{
    cv::Mat frame = skyFrame(20, 20, 2.0);
    frame.at<uchar>(60, 60) = 255;
    addStar(frame, {200, 120}, 60, 60);
    QCOMPARE(int(findStars(frame).size()), 0);
}

void StarFinderTest::refusesFrames_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("type");
    QTest::newRow("none") << 0 << 0 << int(CV_8UC1);
    QTest::newRow("too low") << 63 << 300 << int(CV_8UC1);
    QTest::newRow("too narrow") << 300 << 63 << int(CV_8UC1);
    QTest::newRow("16 bits") << 300 << 300 << int(CV_16UC1);
    QTest::newRow("four channels") << 300 << 300 << int(CV_8UC4);
}

void StarFinderTest::refusesFrames()
{
    QFETCH(int, rows);
    QFETCH(int, columns);
    QFETCH(int, type);
    cv::Mat frame = rows ? cv::Mat(rows, columns, type, cv::Scalar::all(0)) : cv::Mat();
    if (rows)
        frame(cv::Rect(20, 20, 5, 5)).setTo(cv::Scalar::all(255));
    QCOMPARE(int(findStars(frame).size()), 0);
    if (rows >= 300 && columns >= 300) { // the same light is a star in a large enough frame
        cv::Mat usable(rows, columns, CV_8UC1, cv::Scalar(0));
        usable(cv::Rect(20, 20, 5, 5)).setTo(255);
        QCOMPARE(int(findStars(usable).size()), 1);
    }
}

void StarFinderTest::brightestInArea()
{
    const std::vector<FieldStar> stars{{{10, 10}, 50}, {{12, 14}, 90}, {{40, 10}, 200}};
    QCOMPARE(brightestIn(stars, QRectF(0, 0, 30, 30)).value(), QPointF(12, 14));
    QVERIFY(!brightestIn(stars, QRectF(100, 100, 30, 30)));
    const double none = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(!brightestIn(stars, QRectF(none, none, 30, 30)));
    QVERIFY(!isStarNear(stars, {none, none}, 5.0));
}

QTEST_GUILESS_MAIN(StarFinderTest)
#include "tst_starfinder.moc"
