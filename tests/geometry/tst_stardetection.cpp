// SPDX-License-Identifier: MIT
// Is a star found where it is, and does every failure log its message and leave the start
// unchanged?
#include "geometry/stardetection.h"

#include "tests/geometry/geometrytest.h"

#include <limits>
#include <opencv2/imgproc.hpp>

Q_DECLARE_METATYPE(cv::Mat)

using namespace geometrytest;

class StarDetectionTest : public QObject
{
    Q_OBJECT

private slots:
    void centroid_data();
    void centroid();
    void precise_data();
    void precise();
    void nullFrame();
    void unusableFrames_data();
    void unusableFrames();
    void partOfALargerMatrix();
    void golden();
};

namespace
{
const QString centroidOutside = QStringLiteral("critical: GetGravityCenter - Out of Whole FOV");
const QString centroidFaint = QStringLiteral("warning: GetGravityCenter - Too low SNR, Keep stay");
const QString preciseOutside = QStringLiteral("critical: GetPreciseStarPos - Out of Whole FOV");
const QString noStar = QStringLiteral("critical: GetPreciseStarPos - No Star in the ROI Area.");
const double infinity = std::numeric_limits<double>::infinity();

/// 100 x 80 pixels of one brightness, with squares of 3 x 3 brighter pixels on top. The median
/// removes a square's corners and leaves a cross of five pixels around the same centre.
struct Scene {
    int background;
    QVector<QPoint> squares;
    int brightness;
    int type = CV_8UC1;
};

cv::Mat draw(const Scene &scene)
{
    cv::Mat frame(80, 100, scene.type, cv::Scalar::all(scene.background));
    for (const QPoint &p : scene.squares)
        frame(cv::Rect(p.x() - 1, p.y() - 1, 3, 3) & cv::Rect(0, 0, 100, 80))
            .setTo(cv::Scalar::all(scene.brightness));
    return frame;
}

/// Two squares of different colours: the first pure red, the second mostly green.
cv::Mat colouredPair()
{
    cv::Mat frame(80, 100, CV_8UC3, cv::Scalar(0, 0, 0));
    frame(cv::Rect(39, 34, 3, 3)).setTo(cv::Scalar(255, 0, 0));
    frame(cv::Rect(54, 44, 3, 3)).setTo(cv::Scalar(10, 200, 30));
    return frame;
}

void addColumns()
{
    QTest::addColumn<cv::Mat>("frame");
    QTest::addColumn<QPointF>("start");
    QTest::addColumn<int>("status");
    QTest::addColumn<QPointF>("found");
    QTest::addColumn<QStringList>("log");
}

void row(const char *name, const cv::Mat &frame, QPointF start, int status, QPointF found,
         const QStringList &log)
{
    QTest::newRow(name) << frame << start << status << found << log;
}

using Routine = int (*)(const cv::Mat *, double, double, double &, double &);

void check(Routine routine)
{
    QFETCH(cv::Mat, frame);
    QFETCH(QPointF, start);
    QFETCH(int, status);
    QFETCH(QPointF, found);
    QFETCH(QStringList, log);
    const cv::Mat before = frame.clone();
    double x = -1.0;
    double y = -1.0;
    LogRecorder recorder;
    QCOMPARE(routine(&frame, start.x(), start.y(), x, y), status);
    COMPARE_WITHIN(x, found.x(), 1e-12);
    COMPARE_WITHIN(y, found.y(), 1e-12);
    QCOMPARE(logOf(recorder), log);
    QVERIFY(before.empty() || cv::norm(before, frame, cv::NORM_INF) == 0.0);
}
} // namespace

void StarDetectionTest::centroid_data()
{
    addColumns();
    const cv::Mat star = draw({10, {{50, 40}}, 200});
    row("on the star", star, {50, 40}, 0, {50, 40}, {});
    row("beside the star", star, {44.9, 46.2}, 0, {50, 40}, {});
    row("start -0.5 truncates to the first pixel", draw({10, {{6, 7}}, 200}), {9.5, 9.5}, 0, {6, 7},
        {});
    row("start 8.9 is outside on the left", star, {8.9, 40}, -1, {8.9, 40}, {centroidOutside});
    row("start 8.9 is outside at the top", star, {50, 8.9}, -1, {50, 8.9}, {centroidOutside});
    row("window ends with the last column", draw({10, {{95, 40}}, 200}), {90.99, 40}, 0, {95, 40},
        {});
    row("window ends with the last row", draw({10, {{50, 75}}, 200}), {50, 70.99}, 0, {50, 75}, {});
    row("one column too far", star, {91, 40}, -1, {91, 40}, {centroidOutside});
    row("one row too far", star, {50, 71}, -1, {50, 71}, {centroidOutside});
    row("uniform light", draw({90, {}, 0}), {50, 40}, -1, {50, 40}, {centroidFaint});
    row("black", draw({0, {}, 0}), {50, 40}, 0, {notANumber, notANumber}, {});
    // 395 pixels of 80 and five of the star: ratios 2.490 and 2.502.
    row("ratio just below 2.5", draw({80, {{50, 40}}, 203}), {50, 40}, -1, {50, 40},
        {centroidFaint});
    row("ratio just above 2.5", draw({80, {{50, 40}}, 204}), {50, 40}, 0, {50, 40}, {});
    row("two stars share the light", draw({0, {{46, 40}, {54, 40}}, 200}), {50, 40}, 0, {50, 40},
        {});
    row("RGB", draw({10, {{50, 40}}, 200, CV_8UC3}), {47, 42}, 0, {50, 40}, {});
    row("x not a number", star, {notANumber, 40}, -1, {notANumber, 40}, {centroidOutside});
    row("y infinite", star, {50, infinity}, -1, {50, infinity}, {centroidOutside});
    row("x beyond int", star, {4294967346.0, 40}, -1, {4294967346.0, 40}, {centroidOutside});
    row("x below int", star, {-1e300, 40}, -1, {-1e300, 40}, {centroidOutside});
    row("empty frame", cv::Mat(), {50, 40}, -1, {50, 40}, {centroidOutside});
}

void StarDetectionTest::centroid()
{
    check(GetGravityCenter);
}

void StarDetectionTest::precise_data()
{
    addColumns();
    const cv::Mat star = draw({10, {{50, 40}}, 200});
    row("on the star", star, {50, 40}, 0, {50, 40}, {});
    row("19 pixels away", star, {69, 59}, 0, {50, 40}, {});
    row("start -0.5 truncates to the first pixel", draw({10, {{15, 16}}, 200}), {19.5, 19.5}, 0,
        {15, 16}, {});
    row("start 18.9 is outside on the left", star, {18.9, 40}, -1, {18.9, 40}, {preciseOutside});
    row("start 18.9 is outside at the top", star, {50, 18.9}, -1, {50, 18.9}, {preciseOutside});
    row("window ends with the last column and row", draw({10, {{85, 65}}, 200}), {80.99, 60.99}, 0,
        {85, 65}, {});
    row("one column too far", star, {81, 40}, -1, {81, 40}, {preciseOutside});
    row("one row too far", star, {50, 61}, -1, {50, 61}, {preciseOutside});
    row("black window, star outside it", draw({0, {{90, 40}}, 200}), {50, 40}, -1, {50, 40},
        {noStar});
    // The cross's topmost pixel is the first of its five in reading order.
    row("faint star gives its brightest pixel", draw({40, {{55, 42}}, 90}), {50, 40}, 0, {55, 41},
        {centroidFaint});
    row("uniform light gives the window's corner", draw({90, {}, 0}), {50, 40}, 0, {30, 20},
        {centroidFaint});
    row("brightest pixel near the left edge", draw({10, {{5, 40}}, 200}), {20, 40}, 0, {5, 39},
        {centroidOutside});
    row("brightest pixel near the bottom", draw({10, {{50, 76}}, 200}), {50, 60}, 0, {50, 75},
        {centroidOutside});
    row("the first of two equal stars", draw({0, {{38, 52}, {62, 30}}, 200}), {50, 40}, 0, {62, 30},
        {});
    // A third of the centroid window has one count: the excess over the threshold rounds to
    // nothing.
    cv::Mat singleCount(80, 100, CV_8UC1, cv::Scalar(0));
    singleCount(cv::Rect(38, 41, 30, 6)).setTo(1);
    singleCount(cv::Rect(48, 39, 8, 2)).setTo(1);
    row("a patch of one count gives its brightest pixel", singleCount, {50, 40}, 0, {49, 39}, {});
    row("RGB", draw({10, {{50, 40}}, 200, CV_8UC3}), {47, 42}, 0, {50, 40}, {});
    row("RGB black", draw({0, {}, 0, CV_8UC3}), {50, 40}, -1, {50, 40}, {noStar});
    row("RGB goes by the grey picture", colouredPair(), {50, 40}, 0, {55, 45}, {});
    cv::Mat green(80, 100, CV_8UC3, cv::Scalar(0, 0, 0));
    green(cv::Rect(49, 39, 3, 3)).setTo(cv::Scalar(0, 255, 0));
    row("RGB without red counts as black", green, {50, 40}, -1, {50, 40}, {noStar});
    row("RGB too dim for grey", draw({0, {}, 0, CV_8UC3}) + cv::Scalar(1, 0, 0), {50, 40}, -1,
        {50, 40}, {noStar});
    row("x not a number", star, {notANumber, 40}, -1, {notANumber, 40}, {preciseOutside});
    row("y infinite", star, {50, -infinity}, -1, {50, -infinity}, {preciseOutside});
    row("empty frame", cv::Mat(), {50, 40}, -1, {50, 40}, {preciseOutside});
}

void StarDetectionTest::precise()
{
    check(GetPreciseStarPos);
}

void StarDetectionTest::nullFrame()
{
    for (const Routine routine : {GetGravityCenter, GetPreciseStarPos}) {
        double x = -1.0;
        double y = -1.0;
        LogRecorder recorder;
        QCOMPARE(routine(nullptr, 3.5, 4.5, x, y), -1);
        QCOMPARE(x, 3.5);
        QCOMPARE(y, 4.5);
        QCOMPARE(logOf(recorder), QStringList());
    }
}

void StarDetectionTest::unusableFrames_data()
{
    QTest::addColumn<cv::Mat>("frame");
    QTest::addColumn<bool>("saysOutside");
    const cv::Scalar light = cv::Scalar::all(50);
    QTest::newRow("16 bits") << cv::Mat(80, 100, CV_16UC1, light) << false;
    QTest::newRow("signed") << cv::Mat(80, 100, CV_8SC1, light) << false;
    QTest::newRow("single precision") << cv::Mat(80, 100, CV_32FC3, light) << false;
    QTest::newRow("double precision") << cv::Mat(80, 100, CV_64FC1, light) << false;
    QTest::newRow("two channels") << cv::Mat(80, 100, CV_8UC2, light) << false;
    QTest::newRow("four channels") << cv::Mat(80, 100, CV_8UC4, light) << false;
    QTest::newRow("no rows") << cv::Mat(0, 100, CV_8UC1) << true;
    QTest::newRow("no columns") << cv::Mat(80, 0, CV_8UC1) << true;
    const int sizes[] = {80, 100, 100};
    QTest::newRow("three dimensions") << cv::Mat(3, sizes, CV_8UC1, light) << true;
    QTest::newRow("too small") << cv::Mat(19, 19, CV_8UC1, light) << true;
}

void StarDetectionTest::unusableFrames()
{
    QFETCH(cv::Mat, frame);
    QFETCH(bool, saysOutside);
    const std::pair<Routine, QString> routines[] = {{GetGravityCenter, centroidOutside},
                                                    {GetPreciseStarPos, preciseOutside}};
    for (const auto &[routine, outside] : routines) {
        double x = -1.0;
        double y = -1.0;
        LogRecorder recorder;
        QCOMPARE(routine(&frame, 50.5, 40.5, x, y), -1);
        QCOMPARE(x, 50.5);
        QCOMPARE(y, 40.5);
        QCOMPARE(logOf(recorder), saysOutside ? QStringList{outside} : QStringList());
    }
}

void StarDetectionTest::partOfALargerMatrix()
{
    // White all around, so that an access beyond the frame would show.
    cv::Mat larger(200, 200, CV_8UC1, cv::Scalar(255));
    const cv::Mat star = draw({10, {{15, 16}}, 200});
    cv::Mat frame = larger(cv::Rect(33, 44, 100, 80));
    star.copyTo(frame);
    QVERIFY(!frame.isContinuous());
    double x = 0.0;
    double y = 0.0;
    LogRecorder recorder;
    QCOMPARE(GetPreciseStarPos(&frame, 20.0, 20.0, x, y), 0);
    QCOMPARE(x, 15.0);
    QCOMPARE(y, 16.0);
    QCOMPARE(logOf(recorder), QStringList());
}

void StarDetectionTest::golden()
{
    const auto rows = goldenRows("starpositions");
    QCOMPARE(rows.size(), 256);
    LogRecorder recorder;
    for (const auto &[name, v] : rows) {
        const QStringList parts = name.split(':');
        const cv::Mat frame =
            readFrame(QStringLiteral(TEST_SOURCE_DIR "/golden/%1.png").arg(parts[0]));
        QVERIFY2(!frame.empty(), qPrintable(name));
        const Routine routine = parts[1] == "centroid" ? GetGravityCenter : GetPreciseStarPos;
        double x = 0.0;
        double y = 0.0;
        QVERIFY2(routine(&frame, v[0], v[1], x, y) == int(v[2]), qPrintable(name));
        QVERIFY2(within(x, v[3], 1e-10) && within(y, v[4], 1e-10), qPrintable(name));
    }
}

QTEST_GUILESS_MAIN(StarDetectionTest)
#include "tst_stardetection.moc"
