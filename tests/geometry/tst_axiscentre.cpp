// SPDX-License-Identifier: MIT
// Is the circle through three positions right, and do rotations go the right way?
#include "geometry/axiscentre.h"

#include "tests/geometry/geometrytest.h"

#include <limits>

using namespace geometrytest;

class AxisCentreTest : public QObject
{
    Q_OBJECT

private slots:
    void circle_data();
    void circle();
    void notANumber();
    void turns_data();
    void turns();
    void goldenCircles();
    void goldenTurns();
};

namespace
{
const QString straight =
    QStringLiteral("critical: Point in a straight line,Can not calculate center of cricle.");
}

void AxisCentreTest::circle_data()
{
    QTest::addColumn<QVector<double>>("points");
    QTest::addColumn<int>("status");
    QTest::addColumn<QVector<double>>("centre");
    QTest::addColumn<int>("radius");
    QTest::addColumn<QStringList>("log");
    // The outputs, which a failure must leave unchanged.
    const QVector<double> kept{-7.5, -8.5};
    const int keptRadius = -9;

    const auto row = [](const char *name, QVector<double> points, int status,
                        QVector<double> centre, int radius, QStringList log) {
        QTest::newRow(name) << points << status << centre << radius << log;
    };
    row("half circle", {0, 0, 10, 10, 20, 0}, 0, {10, 0}, 10,
        {R"(debug: center of cricle "10" "0")"});
    row("six digits in the log", {0, 0, 3, 1, 4, 3.5}, 0, {6.75 / 13, 44.75 / 13}, 3,
        {R"(debug: center of cricle "0.519231" "3.44231")"});
    row("large centre in the log", {1234567.0, 0, 1234577.0, 10, 1234587.0, 0}, 0, {1234577, 0}, 10,
        {R"(debug: center of cricle "1.23458e+06" "0")"});
    row("radius 9.99 becomes 9", {0, 0, 9.99, 9.99, 19.98, 0}, 0, {9.99, 0}, 9,
        {R"(debug: center of cricle "9.99" "0")"});
    row("first and last on one row", {-5, 0, 0, 5, 5, 0}, 0, {0, 0}, 5,
        {R"(debug: center of cricle "0" "0")"});
    row("all on one row", {0, 5, 10, 5, 30, 5}, -1, kept, keptRadius, {straight});
    row("all the same point", {3, 4, 3, 4, 3, 4}, -1, kept, keptRadius, {straight});
    row("first two on one row", {0, 0, 10, 0, 10, 10}, -1, kept, keptRadius, {});
    row("last two on one row", {0, 0, 10, 10, 20, 10}, -1, kept, keptRadius, {});
    row("on a slope", {0, 0, 1, 1, 2, 2}, -1, kept, keptRadius, {straight});
    row("on one column", {4, 0, 4, 10, 4, 30}, -1, kept, keptRadius, {straight});
    // The slopes differ in the last digit, the products underflow to the same zero.
    row("determinant zero", {0, 0, 1e-200, 1e-200, 3e-200, 2e-200}, -1, kept, keptRadius, {});
}

void AxisCentreTest::circle()
{
    QFETCH(QVector<double>, points);
    QFETCH(int, status);
    QFETCH(QVector<double>, centre);
    QFETCH(int, radius);
    QFETCH(QStringList, log);
    double x = -7.5;
    double y = -8.5;
    int r = -9;
    LogRecorder recorder;
    QCOMPARE(
        CenterOfCircle(points[0], points[1], points[2], points[3], points[4], points[5], x, y, r),
        status);
    COMPARE_WITHIN(x, centre[0], 1e-9);
    COMPARE_WITHIN(y, centre[1], 1e-9);
    QCOMPARE(r, radius);
    QCOMPARE(logOf(recorder), log);
}

void AxisCentreTest::notANumber()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    double x = 0.0;
    double y = 0.0;
    int radius = -1;
    LogRecorder recorder;
    QCOMPARE(CenterOfCircle(nan, 0, 10, 10, 20, 0, x, y, radius), 0);
    QVERIFY(std::isnan(x));
    QCOMPARE(radius, 0);
    QCOMPARE(CenterOfCircle(0, 0, 1e9, 1, 2e9, -1e9, x, y, radius), 0);
    QVERIFY(radius > 1000000000);
    QCOMPARE(CenterOfCircle(0, 0, 1e100, 1, 2e100, 3, x, y, radius), 0);
    QCOMPARE(radius, std::numeric_limits<int>::max());
}

void AxisCentreTest::turns_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QVector<double>>("clockwise");
    QTest::addColumn<QVector<double>>("counterClockwise");
    QTest::newRow("not at all") << 0.0 << QVector<double>{101, 50} << QVector<double>{101, 50};
    QTest::newRow("a quarter") << 90.0 << QVector<double>{100, 51} << QVector<double>{100, 49};
    QTest::newRow("half") << 180.0 << QVector<double>{99, 50} << QVector<double>{99, 50};
    QTest::newRow("backwards") << -90.0 << QVector<double>{100, 49} << QVector<double>{100, 51};
    QTest::newRow("all round") << 360.0 << QVector<double>{101, 50} << QVector<double>{101, 50};
}

void AxisCentreTest::turns()
{
    QFETCH(double, degrees);
    QFETCH(QVector<double>, clockwise);
    QFETCH(QVector<double>, counterClockwise);
    double x = 0.0;
    double y = 0.0;
    RotatePointByDegrees(degrees, 101, 50, 100, 50, x, y);
    COMPARE_WITHIN(x, clockwise[0], 1e-12);
    COMPARE_WITHIN(y, clockwise[1], 1e-12);
    RotatePointByRadians(degrees * 3.141592653589793 / 180.0, 101, 50, 100, 50, x, y);
    COMPARE_WITHIN(x, counterClockwise[0], 1e-12);
    COMPARE_WITHIN(y, counterClockwise[1], 1e-12);
    RotatePointByDegrees(90.0, 1, 0, 0, 0, x, y);
    COMPARE_WITHIN(x, 0.0, 1e-15);
    COMPARE_WITHIN(y, 1.0, 0.0);
}

void AxisCentreTest::goldenCircles()
{
    const auto rows = goldenRows("circle");
    QCOMPARE(rows.size(), 60);
    LogRecorder recorder;
    for (const auto &[name, v] : rows) {
        double x = 0.0;
        double y = 0.0;
        int radius = 0;
        QCOMPARE(CenterOfCircle(v[0], v[1], v[2], v[3], v[4], v[5], x, y, radius), 0);
        COMPARE_WITHIN(x, v[6], 1e-7);
        COMPARE_WITHIN(y, v[7], 1e-7);
        QCOMPARE(double(radius), v[8]);
    }
}

void AxisCentreTest::goldenTurns()
{
    const auto rows = goldenRows("rotate");
    QCOMPARE(rows.size(), 60);
    for (const auto &[name, v] : rows) {
        double x = 0.0;
        double y = 0.0;
        RotatePointByDegrees(v[0], v[1], v[2], v[3], v[4], x, y);
        COMPARE_WITHIN(x, v[5], 1e-9);
        COMPARE_WITHIN(y, v[6], 1e-9);
        RotatePointByRadians(v[0], v[1], v[2], v[3], v[4], x, y);
        COMPARE_WITHIN(x, v[7], 1e-9);
        COMPARE_WITHIN(y, v[8], 1e-9);
    }
}

QTEST_GUILESS_MAIN(AxisCentreTest)
#include "tst_axiscentre.moc"
