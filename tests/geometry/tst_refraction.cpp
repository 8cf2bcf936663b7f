// SPDX-License-Identifier: MIT
// Does the refraction lower the y coordinate by the right amount?
#include "geometry/refraction.h"

#include "tests/geometry/geometrytest.h"

using namespace geometrytest;

class RefractionTest : public QObject
{
    Q_OBJECT

private slots:
    void correction_data();
    void correction();
    void golden();
};

void RefractionTest::correction_data()
{
    QTest::addColumn<double>("h");
    QTest::addColumn<double>("pressure");
    QTest::addColumn<double>("temperature");
    QTest::addColumn<double>("lowered");
    QTest::addColumn<double>("tolerance");
    QTest::newRow("zenith is clamped to nothing") << 90.0 << 101.3 << 10.0 << 0.0 << 0.0;
    QTest::newRow("zenith in the cold") << 90.0 << 101.3 << -273.0 << 0.0 << 0.0;
    QTest::newRow("middle latitude") << 39.9 << 101.3 << 10.0 << 1.1925 << 5e-5;
    QTest::newRow("a tenth of the pressure") << 39.9 << 10.13 << 10.0 << 0.11925 << 5e-6;
    QTest::newRow("minus 273 is not scaled") << 39.9 << 50.0 << -273.0 << 1.1890 << 5e-5;
    QTest::newRow("below minus 273 raises") << 39.9 << 101.0 << -274.0 << -283.0 * 1.1890 << 0.02;
    QTest::newRow("no air") << 39.9 << 0.0 << 10.0 << 0.0 << 0.0;
    QTest::newRow("horizon") << 0.0 << 101.0 << 10.0 << 34.478 << 1e-3;
}

void RefractionTest::correction()
{
    QFETCH(double, h);
    QFETCH(double, pressure);
    QFETCH(double, temperature);
    QFETCH(double, lowered);
    QFETCH(double, tolerance);
    double corrected = 0.0;
    LogRecorder recorder;
    QCOMPARE(CorrectRefraction(480.0, h, pressure, temperature, corrected), 0);
    COMPARE_WITHIN(480.0 - corrected, lowered, tolerance);
    QCOMPARE(logOf(recorder), QStringList());
}

void RefractionTest::golden()
{
    const auto rows = goldenRows("refraction");
    QCOMPARE(rows.size(), 60);
    for (const auto &[name, v] : rows) {
        double corrected = 0.0;
        QCOMPARE(CorrectRefraction(v[0], v[1], v[2], v[3], corrected), 0);
        COMPARE_WITHIN(corrected, v[4], 1e-10);
    }
}

QTEST_GUILESS_MAIN(RefractionTest)
#include "tst_refraction.moc"
