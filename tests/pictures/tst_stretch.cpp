// SPDX-License-Identifier: MIT
// Do the faint stars of a deep picture survive in 8 bits, and do the bright ones keep their order?
#include <QtTest>
#include <cmath>
#include <random>

#include "pictures/stretch.h"

namespace
{
constexpr double sky = 1200.0, sigma = 25.0;

cv::Mat noisySky()
{
    cv::Mat picture(600, 800, CV_16UC1);
    std::mt19937 random(7);
    std::normal_distribution<double> noise(sky, sigma);
    for (int y = 0; y < picture.rows; ++y)
        for (int x = 0; x < picture.cols; ++x)
            picture.at<ushort>(y, x) = ushort(std::lround(noise(random)));
    return picture;
}
} // namespace

class StretchTest : public QObject
{
    Q_OBJECT

private slots:
    void levels();
    void noiseIsKept();
    void faintAndBrightStars();
    void neverFalls();
    void flatPictures_data();
    void flatPictures();
    void noiselessPicture();
    void medians();
};

void StretchTest::levels()
{
    cv::Mat picture = noisySky();
    picture.at<ushort>(5, 5) = 60000;
    const pictures::Levels levels = pictures::levelsOf(picture);
    QVERIFY(std::abs(levels.sky - sky) < 0.3);
    QVERIFY(std::abs(levels.sigma - sigma) < 0.3);
    QCOMPARE(levels.most, 60000.0);
}

void StretchTest::noiseIsKept()
{
    cv::Mat picture = noisySky();
    picture.at<ushort>(5, 5) = 60000;
    cv::Scalar mean, deviation;
    cv::meanStdDev(pictures::stretched(picture), mean, deviation);
    QVERIFY2(std::abs(mean[0] - pictures::skyLevel) < 1.0, qPrintable(QString::number(mean[0])));
    QVERIFY2(std::abs(deviation[0] - pictures::sigmaLevels) < 0.6,
             qPrintable(QString::number(deviation[0])));
}

void StretchTest::faintAndBrightStars()
{
    const pictures::Levels levels = {sky, sigma, 65535.0};
    const auto value = [&levels](double above) {
        return int(pictures::stretchedValue(sky + above, levels));
    };
    QVERIFY(value(5.0 * sigma) - value(0.0) >= 10); // a star that can just be found
    QVERIFY(value(20000.0) < value(40000.0));
    QVERIFY(value(40000.0) < value(64000.0));
    QCOMPARE(value(65535.0 - sky), 255);
    QVERIFY(value(-3.0 * sigma) > 0); // the noise is not cut off
}

void StretchTest::neverFalls()
{
    for (const double most : {1300.0, 5000.0, 65535.0})
        for (const double noise : {0.0, 0.3, 25.0, 500.0}) {
            int last = 0;
            for (int value = 0; value <= int(most); value += 3) {
                const int found = pictures::stretchedValue(value, {sky, noise, most});
                QVERIFY(found >= last);
                last = found;
            }
        }
}

void StretchTest::flatPictures_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("black") << 0 << 0;
    QTest::newRow("grey") << 0x8000 << 0x80;
    QTest::newRow("white") << 0xffff << 0xff;
}

void StretchTest::flatPictures()
{
    QFETCH(int, value);
    QFETCH(int, expected);
    const cv::Mat out = pictures::stretched(cv::Mat(50, 50, CV_16UC1, cv::Scalar(value)));
    QCOMPARE(int(out.at<uchar>(20, 20)), expected);
}

void StretchTest::noiselessPicture()
{
    cv::Mat picture(100, 100, CV_16UC1, cv::Scalar(100));
    picture.at<ushort>(50, 50) = 300;
    picture.at<ushort>(60, 60) = 9000;
    const cv::Mat out = pictures::stretched(picture);
    QCOMPARE(int(out.at<uchar>(60, 60)), 255);
    QVERIFY(out.at<uchar>(50, 50) > out.at<uchar>(0, 0) + 20);
}

void StretchTest::medians()
{
    cv::Mat picture(3, 3, CV_8UC1, cv::Scalar(7));
    picture.at<uchar>(0, 0) = 200;
    QCOMPARE(pictures::medianOf(picture), 7.0);
}

QTEST_GUILESS_MAIN(StretchTest)
#include "tst_stretch.moc"
