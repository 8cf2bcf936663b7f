// SPDX-License-Identifier: MIT
// Is the part of a picture that is used, and its scale, what the frame needs, and do stars lie
// where they should?
#include <QtTest>
#include <cmath>
#include <opencv2/imgproc.hpp>

#include "pictures/fitting.h"

using pictures::Fit;
using pictures::planFit;

namespace
{
const cv::Size frame(1280, 960);
}

class FittingTest : public QObject
{
    Q_OBJECT

private slots:
    void plans_data();
    void plans();
    void distancesScale_data();
    void distancesScale();
    void averagesKeepFractions();
    void surroundedByItsSky();
    void croppedAroundItsCentre();
    void anySizeBecomesAFrame();
};

void FittingTest::plans_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<double>("scale");
    QTest::addColumn<double>("factor");
    QTest::addColumn<int>("usedWidth");
    QTest::addColumn<int>("usedHeight");
    const auto row = [](const char *name, int width, int height, double scale, double factor,
                        int usedWidth, int usedHeight) {
        QTest::newRow(name) << width << height << scale << factor << usedWidth << usedHeight;
    };
    row("as it is", 1280, 960, 0.0, 1.0, 1280, 960);
    row("small", 640, 480, 0.0, 1.0, 640, 480);
    row("a little larger", 1920, 1080, 0.0, 1.0, 1280, 960);
    row("binned twice", 2600, 1900, 0.0, 0.5, 2560, 1900);
    row("binned thrice", 4144, 2822, 0.0, 1.0 / 3.0, 3840, 2822);
    row("the program's scale", 1280, 960, 30.45, 1.0, 1280, 960);
    row("finer", 4144, 2822, 6.09, 0.2, 4144, 2822);
    row("finer and large", 9000, 7000, 6.09, 0.2, 6400, 4800);
    row("coarser", 640, 480, 60.9, 2.0, 640, 480);
    row("coarser and large", 1280, 960, 60.9, 2.0, 640, 480);
    row("a little below four times", 1280, 960, 3.99 * 30.45, 3.99, 320, 240);
    row("four times", 1280, 960, 121.8, 4.0, 320, 240);
    row("never more than four times", 1280, 960, 121.9, 4.0, 320, 240);
    row("far coarser", 1280, 960, 300.0, 4.0, 320, 240);
    row("the coarsest", 640, 480, 1000.0, 4.0, 320, 240);
    row("the finest", 4144, 2822, 0.1, 0.1 / 30.45, 4144, 2822);
}

void FittingTest::plans()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(double, scale);
    QFETCH(double, factor);
    QFETCH(int, usedWidth);
    QFETCH(int, usedHeight);
    const Fit fit = planFit(cv::Size(width, height), frame, scale);
    QVERIFY(std::abs(fit.factor - factor) < 1e-12);
    QCOMPARE(fit.region.width, usedWidth);
    QCOMPARE(fit.region.height, usedHeight);
    QCOMPARE(fit.region.x, (width - usedWidth) / 2);
    QCOMPARE(fit.region.y, (height - usedHeight) / 2);
}

void FittingTest::distancesScale_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<double>("scale");
    QTest::newRow("averaged by 5.075") << 4144 << 2822 << 6.0;
    QTest::newRow("averaged by 1.2") << 1600 << 1200 << 25.3;
    QTest::newRow("enlarged 1.97 times") << 640 << 480 << 60.0;
    QTest::newRow("enlarged 3.3 times") << 640 << 480 << 100.0;
}

// Two stars; their centroids in the frame must be where the factor, about the centre, puts them.
void FittingTest::distancesScale()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(double, scale);
    const Fit fit = planFit(cv::Size(width, height), frame, scale);
    const cv::Point2d middle((width - 1) / 2.0, (height - 1) / 2.0);
    const double arm = std::min(0.4 * height, 300.0 / fit.factor); // 300 pixels of the frame
    std::vector<cv::Point2d> offsets;
    for (const cv::Point2d star :
         {middle + cv::Point2d(arm, 0.3 * arm), middle - cv::Point2d(arm, 0.2 * arm)}) {
        cv::Mat picture(height, width, CV_16UC1);
        const double sigma = std::max(1.0, 1.0 / fit.factor);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const double r2 = std::pow(x - star.x, 2) + std::pow(y - star.y, 2);
                picture.at<ushort>(y, x) = ushort(50000.0 * std::exp(-r2 / (2 * sigma * sigma)));
            }
        cv::Mat small, out;
        pictures::resampled(picture, fit).convertTo(small, CV_8U, 1.0 / 256.0);
        out = pictures::centred(small, frame);
        const cv::Moments moments = cv::moments(out);
        const cv::Point2d found(moments.m10 / moments.m00, moments.m01 / moments.m00);
        const cv::Point2d wanted =
            cv::Point2d(639.5, 479.5) + (star - middle) * (scale / pictures::programScale);
        offsets.push_back(found - wanted);
    }
    // The middle of the picture may be off the frame's by up to 0.75 pixels, each way; distances
    // may not.
    QVERIFY(std::abs(offsets[0].x) < 0.75 && std::abs(offsets[0].y) < 0.75);
    QVERIFY2(cv::norm(offsets[0] - offsets[1]) < 0.1,
             qPrintable(QString::number(cv::norm(offsets[0] - offsets[1]))));
}

void FittingTest::averagesKeepFractions()
{
    cv::Mat picture(1920, 2560, CV_8UC1, cv::Scalar(10));
    for (int y = 0; y < picture.rows; y += 2)
        picture.row(y).setTo(11);
    const cv::Mat out = pictures::resampled(picture, planFit(picture.size(), frame, 0.0));
    QCOMPARE(out.type(), CV_16UC1);
    QCOMPARE(int(out.at<ushort>(100, 100)), int(10.5 * 256));
}

void FittingTest::surroundedByItsSky()
{
    cv::Mat picture(480, 640, CV_8UC1, cv::Scalar(20));
    picture.at<uchar>(240, 320) = 255;
    const cv::Mat out = pictures::centred(picture, frame);
    QCOMPARE(out.size(), frame);
    QCOMPARE(int(out.at<uchar>(0, 0)), 20);
    QCOMPARE(int(out.at<uchar>(480, 640)), 255);
}

void FittingTest::croppedAroundItsCentre()
{
    cv::Mat picture(1100, 1300, CV_8UC1, cv::Scalar(20));
    picture.at<uchar>(70, 10) = 255;
    QCOMPARE(int(pictures::centred(picture, frame).at<uchar>(0, 0)), 255);
}

void FittingTest::anySizeBecomesAFrame()
{
    for (const cv::Size size : {cv::Size(1, 1), cv::Size(1, 5000), cv::Size(5000, 1),
                                cv::Size(3, 7000), cv::Size(1281, 961), cv::Size(8000, 6000)})
        for (const double scale : {0.0, 0.1, 6.0, 30.45, 60.0, 1000.0}) {
            const cv::Mat picture(size, CV_16UC1, cv::Scalar(500));
            cv::Mat out;
            pictures::resampled(picture, planFit(size, frame, scale)).convertTo(out, CV_8U);
            QCOMPARE(pictures::centred(out, frame).size(), frame);
        }
}

QTEST_GUILESS_MAIN(FittingTest)
#include "tst_fitting.moc"
