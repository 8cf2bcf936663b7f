// SPDX-License-Identifier: MIT
// Are the reference stars followed, the pole computed and the pole star enlarged correctly?
#include "camera/monitor.h"
#include "core/sharedstate.h"
#include "geometry/polecomputation.h"
#include "tests/camera/recordingcamera.h"
#include "tests/support/logrecorder.h"

#include <QtTest>
#include <cmath>
#include <limits>
#include <memory>
#include <opencv2/imgproc.hpp>
#include <random>

namespace
{
constexpr double pixelTolerance = 0.05;
const QPointF noStar(300, 700);

/// Minutes of arc, used as pixels, at latitude 40, 10 degrees Celsius and 1010 hPa:
/// python3 -c "from math import *; print(1 / tan(radians(40 + 7.31 / 44.4)))"
constexpr double raisedAt1010 = 1.184822634584;

bool isNear(QPointF a, QPointF b, double tolerance)
{
    return std::abs(a.x() - b.x()) <= tolerance && std::abs(a.y() - b.y()) <= tolerance;
}

cv::Mat noisyFrame(int channels)
{
    cv::Mat frame(960, 1280, CV_8UC(channels));
    cv::RNG random(20);
    random.fill(frame, cv::RNG::UNIFORM, 0, 256);
    return frame;
}

void ticks(cv::Mat &picture, int x, int y, const cv::Scalar &colour)
{
    cv::line(picture, {x - 11, y}, {x - 6, y}, colour, 1, 8);
    cv::line(picture, {x + 11, y}, {x + 6, y}, colour, 1, 8);
    cv::line(picture, {x, y - 11}, {x, y - 6}, colour, 1, 8);
    cv::line(picture, {x, y + 11}, {x, y + 6}, colour, 1, 8);
}

/// A crop cut from the enlargement of the whole frame, which is restored afterwards.
class WholeEnlargement
{
public:
    explicit WholeEnlargement(const cv::Mat &frame)
    {
        cv::Mat grey = frame, large;
        if (frame.channels() == 3)
            cv::cvtColor(frame, grey, cv::COLOR_BGR2GRAY);
        cv::resize(grey, large, cv::Size(6400, 4800), 0, 0, cv::INTER_LINEAR);
        cv::cvtColor(large, clean, cv::COLOR_GRAY2BGR);
        marked = clean.clone();
    }

    cv::Mat crop(QPointF a, QPointF b, bool mono)
    {
        const int ax = int(5 * a.x()), ay = int(5 * a.y());
        const int bx = int(5 * b.x()), by = int(5 * b.y());
        const cv::Scalar first = mono ? cv::Scalar(255, 248, 248) : cv::Scalar(255, 0, 0);
        cv::circle(marked, {ax, ay}, 1, first, -1, 16);
        cv::circle(marked, {ax, ay}, 8, first, 1, 16);
        ticks(marked, ax, ay, first);
        cv::circle(marked, {bx, by}, 2, cv::Scalar(0, 255, 0), -1, 16);
        ticks(marked, bx, by, cv::Scalar(0, 255, 0));
        cv::Mat cut(200, 200, CV_8UC3, cv::Scalar::all(0));
        const cv::Rect area(bx - 100, by - 100, 200, 200);
        const cv::Rect inside = area & cv::Rect(0, 0, 6400, 4800);
        if (!inside.empty())
            marked(inside).copyTo(cut(inside - area.tl()));
        restore(ax, ay);
        restore(bx, by);
        return cut;
    }

private:
    void restore(int x, int y)
    {
        const cv::Rect area = cv::Rect(x - 20, y - 20, 40, 40) & cv::Rect(0, 0, 6400, 4800);
        if (!area.empty())
            clean(area).copyTo(marked(area));
    }

    cv::Mat clean, marked;
};

bool sameBytes(const cv::Mat &a, const cv::Mat &b)
{
    return a.size() == b.size() && a.type() == b.type() && cv::norm(a, b, cv::NORM_INF) == 0.0;
}
} // namespace

class MonitorTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void tracking_data();
    void tracking();
    void searchStartsAgainFromTheStart();
    void starAtTheEdgeStaysAtItsSearchPosition();
    void refraction_data();
    void refraction();
    void pole_data();
    void pole();
    void noPoleOnOneColumn();
    void crop_data();
    void crop();
    void cropOfNoPosition_data();
    void cropOfNoPosition();
    void cropOfOddFrames();

private:
    std::unique_ptr<RefractionSettings> conditions; ///< of the refraction
    std::unique_ptr<AlignmentPoints> points;
    std::unique_ptr<MonitorPositions> positions;
};

void MonitorTest::init()
{
    conditions = std::make_unique<RefractionSettings>();
    points = std::make_unique<AlignmentPoints>();
    positions = std::make_unique<MonitorPositions>();
    points->savedAxisCenter = QPointF(640, 480);
    points->angleBAP = 40.0;
    points->angleABP = 60.0;
}

void MonitorTest::tracking_data()
{
    QTest::addColumn<int>("channels");
    QTest::addColumn<QPointF>("searchA");
    QTest::addColumn<QPointF>("foundA");
    const QPointF star(400.3, 300.6);
    QTest::newRow("on the star") << 1 << QPointF(400, 301) << star;
    QTest::newRow("12 pixels off") << 1 << QPointF(388, 312) << star;
    QTest::newRow("three channels") << 3 << QPointF(395, 305) << star;
    QTest::newRow("30 pixels off is lost") << 1 << QPointF(370, 300) << QPointF(370, 300);
    QTest::newRow("no star there") << 1 << noStar << noStar;
    QTest::newRow("off the frame") << 1 << QPointF(-500, 2000) << QPointF(-500, 2000);
}

void MonitorTest::tracking()
{
    QFETCH(int, channels);
    QFETCH(QPointF, searchA);
    QFETCH(QPointF, foundA);
    const QPointF starB(800.75, 620.2);
    positions->starASearch = searchA;
    positions->starBSearch = QPointF(796, 625);
    const LogRecorder log;
    const ReferenceStars stars =
        trackReferenceStars(starFrame({{400.3, 300.6}, starB}, channels), *positions);
    QVERIFY(isNear(stars.a, foundA, pixelTolerance));
    QVERIFY(isNear(stars.b, starB, pixelTolerance));
    QCOMPARE(positions->starASearch.load(), searchA);
    QCOMPARE(positions->starBSearch.load(), QPointF(796, 625));
}

void MonitorTest::searchStartsAgainFromTheStart()
{
    positions->starASearch = QPointF(400, 300);
    positions->starBSearch = QPointF(400, 300);
    const LogRecorder log;
    QVERIFY(isNear(trackReferenceStars(starFrame({{412, 300}}), *positions).a, {412, 300},
                   pixelTolerance));
    QCOMPARE(trackReferenceStars(starFrame({{432, 300}}), *positions).a, QPointF(400, 300));
    QVERIFY(isNear(trackReferenceStars(starFrame({{390, 300}}), *positions).a, {390, 300},
                   pixelTolerance));
}

void MonitorTest::starAtTheEdgeStaysAtItsSearchPosition()
{
    positions->starASearch = QPointF(5, 5);
    positions->starBSearch = QPointF(1278, 958);
    const LogRecorder log;
    const ReferenceStars stars = trackReferenceStars(starFrame({{5, 5}, {1278, 958}}), *positions);
    QCOMPARE(stars.a, QPointF(5, 5));
    QCOMPARE(stars.b, QPointF(1278, 958));
}

void MonitorTest::refraction_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<float>("pressure");
    QTest::addColumn<float>("temperature");
    QTest::addColumn<double>("raised"); ///< pixels towards smaller y
    const double raisedInTheCold = raisedAt1010 * 283 / 253;
    QTest::newRow("off") << false << "hPa" << 1010.0F << 10.0F << 0.0;
    QTest::newRow("on") << true << "hPa" << 1010.0F << 10.0F << raisedAt1010;
    QTest::newRow("the unit is not looked at") << true << "kPa" << 1010.0F << 10.0F << raisedAt1010;
    QTest::newRow("half the pressure") << true << "hPa" << 505.0F << 10.0F << raisedAt1010 / 2;
    QTest::newRow("entered in kPa") << true << "kPa" << 101.0F << 10.0F << raisedAt1010 / 10;
    QTest::newRow("20 degrees of frost") << true << "hPa" << 1010.0F << -20.0F << raisedInTheCold;
}

void MonitorTest::refraction()
{
    QFETCH(bool, enabled);
    QFETCH(QString, unit);
    QFETCH(float, pressure);
    QFETCH(float, temperature);
    QFETCH(double, raised);
    conditions->enabledCorrect = enabled;
    conditions->P_unit = unit;
    conditions->P = pressure;
    conditions->T = temperature;
    conditions->latitude = 40.0F;
    updatePole({QPointF(400, 300), QPointF(800, 620)}, *conditions, *points, *positions);
    QVERIFY(isNear(positions->starACurrent, {400, 300 - raised}, 1e-6));
    QVERIFY(isNear(positions->starBCurrent, {800, 620 - raised}, 1e-6));
    double x = 0, y = 0;
    QCOMPARE(CalcPoleCOOR(400, 300 - raised, 40, 800, 620 - raised, 60, 640, 480, x, y), 0);
    QVERIFY(isNear(positions->poleCurrent, {x, y}, 1e-6));
}

void MonitorTest::pole_data()
{
    QTest::addColumn<QPointF>("axis");
    QTest::addColumn<bool>("above"); ///< the line from star A to star B
    QTest::newRow("axis above the line") << QPointF(700, 400) << true;
    QTest::newRow("axis below the line") << QPointF(500, 500) << false;
    QTest::newRow("far above") << QPointF(1279, 0) << true;
    QTest::newRow("far below") << QPointF(0, 959) << false;
}

/// The angles allow two places, one on each side of the line: the pole is on the axis's side.
void MonitorTest::pole()
{
    QFETCH(QPointF, axis);
    QFETCH(bool, above);
    const QPointF a(400, 300), b(800, 620);
    points->savedAxisCenter = axis;
    updatePole({a, b}, *conditions, *points, *positions);
    QVERIFY(positions->poleValid);
    const QPointF p = positions->poleCurrent;
    const auto degreesAt = [](QPointF corner, QPointF one, QPointF other) {
        const QPointF u = one - corner, v = other - corner;
        return std::acos(QPointF::dotProduct(u, v) /
                         (std::hypot(u.x(), u.y()) * std::hypot(v.x(), v.y()))) *
               180.0 / 3.141592653589793;
    };
    QVERIFY(std::abs(degreesAt(a, b, p) - 40.0) < 1e-9);
    QVERIFY(std::abs(degreesAt(b, a, p) - 60.0) < 1e-9);
    // Up is where y is smaller.
    const double lineAtPole = a.y() + (p.x() - a.x()) * (b.y() - a.y()) / (b.x() - a.x());
    QCOMPARE(p.y() < lineAtPole, above);
}

void MonitorTest::noPoleOnOneColumn()
{
    const LogRecorder log;
    const QPointF a(400, 300), b(800, 620);
    updatePole({a, b}, *conditions, *points, *positions);
    QVERIFY(positions->poleValid);
    const QPointF before = positions->poleCurrent;
    updatePole({a, QPointF(400, 620)}, *conditions, *points, *positions);
    QVERIFY(!positions->poleValid);
    QCOMPARE(positions->poleCurrent.load(), before);
    updatePole({a, b}, *conditions, *points, *positions);
    QVERIFY(positions->poleValid);
}

void MonitorTest::crop_data()
{
    QTest::addColumn<int>("channels");
    QTest::addColumn<bool>("mono");
    QTest::addColumn<bool>("atTheEdges");
    QTest::newRow("one channel") << 1 << false << false;
    QTest::newRow("one channel, mono") << 1 << true << false;
    QTest::newRow("three channels") << 3 << false << false;
    QTest::newRow("one channel, edges") << 1 << false << true;
    QTest::newRow("three channels, edges, mono") << 3 << true << true;
}

void MonitorTest::crop()
{
    QFETCH(int, channels);
    QFETCH(bool, mono);
    QFETCH(bool, atTheEdges);
    const cv::Mat frame = noisyFrame(channels);
    WholeEnlargement whole(frame);
    FrameMatrices matrices;
    std::mt19937 random(4);
    std::uniform_real_distribution<double> x(-60, 1340), y(-60, 1020), margin(-25, 25),
        apart(-30, 30);
    for (int i = 0; i < 2000; ++i) {
        QPointF b(x(random), y(random));
        if (atTheEdges)
            b = i % 2 ? QPointF(i % 4 == 1 ? margin(random) : 1280 + margin(random), y(random))
                      : QPointF(x(random), i % 4 ? margin(random) : 960 + margin(random));
        // The first star is usually close enough for its mark to be in the crop too.
        const QPointF a = b + QPointF(apart(random), apart(random));
        cropAroundStarB(frame, a, b, mono, matrices);
        QVERIFY2(sameBytes(matrices.magnifierCrop, whole.crop(a, b, mono)),
                 qPrintable(QStringLiteral("A %1,%2 B %3,%4")
                                .arg(a.x(), 0, 'g', 17)
                                .arg(a.y(), 0, 'g', 17)
                                .arg(b.x(), 0, 'g', 17)
                                .arg(b.y(), 0, 'g', 17)));
    }
}

void MonitorTest::cropOfNoPosition_data()
{
    QTest::addColumn<QPointF>("star");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("far left") << QPointF(-1000, 480);
    QTest::newRow("far below") << QPointF(640, 5000);
    QTest::newRow("just off the left") << QPointF(-20.2, 480);
    QTest::newRow("beyond int") << QPointF(1e300, -1e300);
    QTest::newRow("infinite") << QPointF(std::numeric_limits<double>::infinity(), 480);
    QTest::newRow("one coordinate not a number") << QPointF(nan, 5000);
}

void MonitorTest::cropOfNoPosition()
{
    QFETCH(QPointF, star);
    FrameMatrices matrices;
    const cv::Mat frame = noisyFrame(1);
    cropAroundStarB(frame, {640, 480}, {640, 480}, false, matrices);
    cropAroundStarB(frame, star, star, false, matrices);
    QVERIFY(sameBytes(matrices.magnifierCrop, cv::Mat(200, 200, CV_8UC3, cv::Scalar::all(0))));
}

/// Frames of other sizes give crops of the same size, black beyond the frame.
void MonitorTest::cropOfOddFrames()
{
    FrameMatrices matrices;
    const cv::Mat small(1, 1, CV_8UC1, cv::Scalar(90));
    cropAroundStarB(small, {50, 50}, {0, 0}, false, matrices);
    QVERIFY(matrices.magnifierCrop.size() == cv::Size(200, 200));
    QCOMPARE(matrices.magnifierCrop.at<cv::Vec3b>(104, 104), cv::Vec3b(90, 90, 90));
    QCOMPARE(matrices.magnifierCrop.at<cv::Vec3b>(105, 105), cv::Vec3b(0, 0, 0));
    QCOMPARE(matrices.magnifierCrop.at<cv::Vec3b>(99, 99), cv::Vec3b(0, 0, 0));
}

QTEST_GUILESS_MAIN(MonitorTest)
#include "tst_monitor.moc"
