// SPDX-License-Identifier: MIT
// Does filtering only the window give the same result, to the last bit, as filtering the frame?
#include "geometry/stardetection.h"

#include "tests/geometry/geometrytest.h"

#include <cstring>
#include <opencv2/imgproc.hpp>

using namespace geometrytest;

class MedianWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void sameAsWholeFrame_data();
    void sameAsWholeFrame();
};

namespace
{
/// The definition: the whole frame is filtered at every call.
namespace wholeframe
{
bool corner(const cv::Mat &frame, double x, double y, int side, cv::Rect &window)
{
    window =
        cv::Rect(static_cast<int>(x - side / 2.0), static_cast<int>(y - side / 2.0), side, side);
    return window.x >= 0 && window.y >= 0 && window.x + side <= frame.cols &&
           window.y + side <= frame.rows;
}

cv::Mat filtered(const cv::Mat &frame, const cv::Rect &window)
{
    cv::Mat whole;
    cv::medianBlur(frame, whole, 3);
    return whole(window).clone();
}

cv::Mat grey(const cv::Mat &picture)
{
    cv::Mat result = picture;
    if (picture.channels() != 1)
        cv::cvtColor(picture, result, cv::COLOR_RGB2GRAY);
    return result;
}

int centroid(const cv::Mat &frame, double x, double y, double &resultX, double &resultY)
{
    resultX = x;
    resultY = y;
    cv::Rect window;
    if (!corner(frame, x, y, 20, window))
        return -1;
    cv::Mat light = grey(filtered(frame, window));
    double peak = 0.0;
    cv::minMaxLoc(light, nullptr, &peak);
    cv::Scalar mean;
    cv::Scalar deviation;
    cv::meanStdDev(light, mean, deviation);
    if (peak / mean[0] < 2.5)
        return -1;
    cv::subtract(light, cv::Scalar(mean[0] + 0.3 * (peak - mean[0])), light);
    const cv::Moments moments = cv::moments(light, false);
    resultX = moments.m10 / moments.m00 + window.x;
    resultY = moments.m01 / moments.m00 + window.y;
    return 0;
}

int precise(const cv::Mat &frame, double x, double y, double &resultX, double &resultY)
{
    resultX = x;
    resultY = y;
    cv::Rect window;
    if (!corner(frame, x, y, 40, window))
        return -1;
    const cv::Mat light = filtered(frame, window);
    double peak = 0.0;
    cv::Point brightest;
    cv::minMaxLoc(grey(light), nullptr, &peak, nullptr, &brightest);
    if (static_cast<float>(cv::mean(light)[0]) == 0.0f || peak == 0.0)
        return -1;
    const cv::Point candidate = brightest + window.tl();
    if (centroid(frame, candidate.x, candidate.y, resultX, resultY) != 0 ||
        !std::isfinite(resultX)) {
        resultX = candidate.x;
        resultY = candidate.y;
    }
    return 0;
}
} // namespace wholeframe

bool sameBits(double a, double b)
{
    return (std::isnan(a) && std::isnan(b)) || std::memcmp(&a, &b, sizeof a) == 0;
}

enum Content { Noise, SparseNoise, Stars, SingleCounts };

cv::Mat randomFrame(Random &random, Content content, int type)
{
    const int columns = random.whole(38, 90);
    const int rows = random.whole(38, 90);
    // Part of a larger matrix of noise, so that an access beyond the frame would show.
    cv::Mat larger(rows + 7, columns + 5, type);
    for (int row = 0; row < larger.rows; ++row)
        for (int i = 0; i < larger.cols * larger.channels(); ++i)
            larger.ptr(row)[i] = static_cast<uchar>(random.whole(0, 255));
    cv::Mat frame = larger(cv::Rect(3, 4, columns, rows));
    for (int row = 0; row < rows && content != Noise; ++row)
        for (int i = 0; i < columns * frame.channels(); ++i)
            frame.ptr(row)[i] = static_cast<uchar>(
                content == SparseNoise    ? (random.whole(0, 9) == 0 ? random.whole(1, 255) : 0)
                : content == SingleCounts ? random.whole(0, 1)
                                          : random.whole(3, 12));
    if (content == Stars)
        for (int star = random.whole(1, 6); star > 0; --star)
            cv::circle(frame, {random.whole(-2, columns + 1), random.whole(-2, rows + 1)},
                       random.whole(1, 3), cv::Scalar::all(random.whole(20, 255)), cv::FILLED);
    return frame;
}
} // namespace

void MedianWindowTest::sameAsWholeFrame_data()
{
    QTest::addColumn<int>("content");
    QTest::addColumn<int>("type");
    QTest::newRow("noise, grey") << int(Noise) << CV_8UC1;
    QTest::newRow("noise, RGB") << int(Noise) << CV_8UC3;
    QTest::newRow("sparse noise, grey") << int(SparseNoise) << CV_8UC1;
    QTest::newRow("sparse noise, RGB") << int(SparseNoise) << CV_8UC3;
    QTest::newRow("stars, grey") << int(Stars) << CV_8UC1;
    QTest::newRow("stars, RGB") << int(Stars) << CV_8UC3;
    QTest::newRow("single counts, grey") << int(SingleCounts) << CV_8UC1;
}

void MedianWindowTest::sameAsWholeFrame()
{
    QFETCH(int, content);
    QFETCH(int, type);
    Random random(static_cast<unsigned>(content * 100 + type));
    LogRecorder recorder;
    int found = 0;
    for (int i = 0; i < 1000; ++i) {
        const cv::Mat frame = randomFrame(random, static_cast<Content>(content), type);
        // Half of the positions put the window against an edge or a corner.
        double x = random.real(0.0, frame.cols);
        double y = random.real(0.0, frame.rows);
        const int half = random.whole(1, 2) * 10;
        if (random.whole(0, 1))
            x = random.whole(0, 1) ? half : frame.cols - half;
        if (random.whole(0, 1))
            y = random.whole(0, 1) ? half : frame.rows - half;

        double expected[2];
        double actual[2];
        int status = wholeframe::centroid(frame, x, y, expected[0], expected[1]);
        QCOMPARE(GetGravityCenter(&frame, x, y, actual[0], actual[1]), status);
        QVERIFY(sameBits(actual[0], expected[0]) && sameBits(actual[1], expected[1]));
        found += status == 0;
        status = wholeframe::precise(frame, x, y, expected[0], expected[1]);
        QCOMPARE(GetPreciseStarPos(&frame, x, y, actual[0], actual[1]), status);
        QVERIFY(sameBits(actual[0], expected[0]) && sameBits(actual[1], expected[1]));
        found += status == 0;
        recorder.clear();
    }
    QVERIFY2(found > 100, qPrintable(QString::number(found)));
}

QTEST_GUILESS_MAIN(MedianWindowTest)
#include "tst_medianwindow.moc"
