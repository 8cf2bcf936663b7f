// SPDX-License-Identifier: MIT
// Does the geometry keep its guarantees for numbers and matrices that make no sense?
#include "geometry/axiscentre.h"
#include "geometry/polecomputation.h"
#include "geometry/refraction.h"
#include "geometry/starcatalogue.h"
#include "geometry/stardetection.h"
#include "geometry/templateoverlay.h"
#include "geometry/templatepole.h"

#include "tests/geometry/geometrytest.h"

#include <limits>
#include <thread>

using namespace geometrytest;

class GeometryFuzzTest : public QObject
{
    Q_OBJECT

private slots:
    void numbers();
    void templates();
    void matrices();
    void oneFrameOnFourThreads();
};

namespace
{
/// Half of the time one of the awkward numbers, otherwise an ordinary position or angle.
double anyNumber(Random &random)
{
    using limits = std::numeric_limits<double>;
    static const double awkward[] = {limits::quiet_NaN(),
                                     limits::infinity(),
                                     -limits::infinity(),
                                     0.0,
                                     -0.0,
                                     limits::denorm_min(),
                                     limits::min(),
                                     limits::max(),
                                     limits::lowest(),
                                     1e308,
                                     1e155,
                                     -1e155,
                                     2147483647.0,
                                     2147483648.0,
                                     -2147483648.0,
                                     -2147483649.0,
                                     4294967296.0,
                                     1e18,
                                     -1e18,
                                     1e-300,
                                     10.0,
                                     20.0,
                                     90.0,
                                     180.0,
                                     -4.4,
                                     -273.0};
    constexpr int count = sizeof awkward / sizeof awkward[0];
    return random.whole(0, 1) ? awkward[random.whole(0, count - 1)] : random.real(-400.0, 1400.0);
}

bool sameNumber(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

/// Any depth, channel count and shape, sometimes part of a larger matrix.
cv::Mat anyMatrix(Random &random)
{
    static const int depths[] = {CV_8U, CV_8S, CV_16U, CV_16S, CV_32S, CV_32F, CV_64F};
    const int type = random.whole(0, 1)
                         ? CV_8UC(random.whole(0, 1) ? 1 : 3)
                         : CV_MAKETYPE(depths[random.whole(0, 6)], random.whole(1, 4));
    const int shape = random.whole(0, 9);
    if (shape == 0)
        return cv::Mat();
    if (shape == 1) {
        const int sizes[] = {random.whole(0, 4), random.whole(1, 50), random.whole(1, 50)};
        return cv::Mat(3, sizes, type, cv::Scalar::all(1));
    }
    const int rows = random.whole(0, 110);
    const int columns = random.whole(0, 110);
    if (shape == 2)
        return cv::Mat(rows, columns, type, cv::Scalar::all(random.whole(0, 255)));
    cv::Mat larger(rows + 6, columns + 6, type);
    for (int row = 0; row < larger.rows; ++row) {
        uchar *bytes = larger.ptr(row);
        for (size_t i = 0; i < static_cast<size_t>(larger.cols) * larger.elemSize(); ++i)
            bytes[i] = static_cast<uchar>(shape < 6 ? random.whole(0, 255)
                                                    : random.whole(0, 40) / 40 * 255);
    }
    return shape % 2 ? larger(cv::Rect(3, 3, columns, rows)) : larger;
}
} // namespace

void GeometryFuzzTest::numbers()
{
    Random random(3);
    LogRecorder recorder;
    int failures = 0;
    for (int i = 0; i < 60000; ++i) {
        double v[9];
        for (double &value : v)
            value = anyNumber(random);
        double x = 12.5;
        double y = 13.5;
        int radius = -14;
        int status = CenterOfCircle(v[0], v[1], v[2], v[3], v[4], v[5], x, y, radius);
        QVERIFY(status == 0 || (status == -1 && x == 12.5 && y == 13.5 && radius == -14));
        QVERIFY(status == -1 || radius >= 0);
        failures += status != 0;

        status = CalcPoleCOOR(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], x, y);
        QVERIFY(status == 0 || (status == -1 && x == 0.0 && y == 0.0));
        failures += status != 0;
        status = PoleFromTriangle(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8], x, y);
        QVERIFY(status == 0 || (status == -1 && x == 0.0 && y == 0.0));
        failures += status != 0;

        CandidateByAngle(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8], x, y);
        QVERIFY((sameNumber(x, v[0]) && sameNumber(y, v[1])) ||
                (sameNumber(x, v[2]) && sameNumber(y, v[3])));
        QCOMPARE(CorrectRefraction(v[0], v[1], v[2], v[3], x), 0);
        RotatePointByDegrees(v[0], v[1], v[2], v[3], v[4], x, y);
        QVERIFY(!std::isfinite(v[0]) ? std::isnan(x) : true);
        RotatePointByRadians(v[0], v[1], v[2], v[3], v[4], x, y);
        QVERIFY(!std::isfinite(v[0]) ? std::isnan(x) : true);
        recorder.clear();
    }
    QVERIFY(failures > 1000);
}

void GeometryFuzzTest::templates()
{
    Random random(4);
    QImage mask(40, 34, QImage::Format_ARGB32);
    mask.fill(Qt::white);
    LogRecorder recorder;
    for (int i = 0; i < 3000; ++i) {
        StarCatalogue c;
        for (double *field : {&c.angleABP, &c.angleBAP, &c.angleDBP, &c.starBX, &c.starBY,
                              &c.starAX, &c.starAY, &c.starDX, &c.starDY})
            *field = anyNumber(random);
        const bool found = computeTemplatePole(c, mask, "north");
        QVERIFY(found || (c.templatePoleX == 0.0 && c.templatePoleY == 0.0));
        QCOMPARE(mask.size(), QSize(40, 34));

        const int angle = random.whole(-100000, 100000);
        const QPointF position(anyNumber(random), anyNumber(random));
        const QPointF pole = expectedPole(c, angle, position);
        QVERIFY(std::isfinite(position.x()) || !std::isfinite(pole.x()));
        const QPointF target = polarisTarget(position, pole, {anyNumber(random), 1.0});
        QVERIFY(!std::isnan(pole.x()) || std::isnan(target.x()));
        const QPointF starA = predictedStarA(c, angle, position);
        QVERIFY(std::isfinite(position.x()) || !std::isfinite(starA.x()));

        // A double beyond float's range has no defined conversion to it.
        const double wide = anyNumber(random);
        const float zoom = std::fabs(wide) < 1e38 ? static_cast<float>(wide / 100.0)
                                                  : std::numeric_limits<float>::infinity();
        const QPoint click = viewPosition(zoom, position);
        for (const PlacedTemplate &placed :
             {turnTemplate(mask, angle, zoom, click), flatTemplate(mask, zoom, position)}) {
            QVERIFY(placed.image.isNull() == placed.geometry.isNull());
            QVERIFY(placed.image.width() <= 8000 && placed.image.height() <= 8000);
            QVERIFY(placed.image.isNull() || zoom >= 1.0f / 40.0f);
        }
        recorder.clear();
    }
}

void GeometryFuzzTest::matrices()
{
    Random random(5);
    LogRecorder recorder;
    int found = 0;
    for (int i = 0; i < 20000; ++i) {
        const cv::Mat frame = anyMatrix(random);
        const bool usable = frame.dims <= 2 && (frame.type() == CV_8UC1 || frame.type() == CV_8UC3);
        const bool ordinary = random.whole(0, 3) > 0;
        const double startX = ordinary ? random.real(5.0, 80.0) : anyNumber(random);
        const double startY = ordinary ? random.real(5.0, 80.0) : anyNumber(random);
        double x = 0.0;
        double y = 0.0;
        int status = GetGravityCenter(&frame, startX, startY, x, y);
        QVERIFY(status == 0 ? usable : status == -1);
        QVERIFY(status == 0 || (sameNumber(x, startX) && sameNumber(y, startY)));
        QVERIFY(status == -1 || std::isnan(x) ||
                (std::fabs(x - startX) <= 11.0 && std::fabs(y - startY) <= 11.0));

        status = GetPreciseStarPos(&frame, startX, startY, x, y);
        QVERIFY(status == 0 ? usable : status == -1);
        QVERIFY(status == 0 || (sameNumber(x, startX) && sameNumber(y, startY)));
        // Half of the search window plus half of the centroid window.
        QVERIFY(status == -1 || (std::fabs(x - startX) <= 31.0 && std::fabs(y - startY) <= 31.0));
        found += status == 0;
        recorder.clear();
    }
    QVERIFY2(found > 200, qPrintable(QString::number(found)));
}

void GeometryFuzzTest::oneFrameOnFourThreads()
{
    cv::Mat frame(200, 200, CV_8UC1, cv::Scalar(10));
    frame(cv::Rect(98, 99, 3, 3)).setTo(200);
    std::thread threads[4];
    int wrong[4] = {0, 0, 0, 0};
    for (int t = 0; t < 4; ++t) {
        threads[t] = std::thread([&frame, &wrong, t] {
            for (int i = 0; i < 500; ++i) {
                double x = 0.0;
                double y = 0.0;
                const int status = GetPreciseStarPos(&frame, 90.0 + i % 20, 95.0 + t, x, y);
                wrong[t] += status != 0 || x != 99.0 || y != 100.0;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    for (const int count : wrong)
        QCOMPARE(count, 0);
}

QTEST_GUILESS_MAIN(GeometryFuzzTest)
#include "tst_geometryfuzz.moc"
