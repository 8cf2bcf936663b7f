// SPDX-License-Identifier: MIT
// Is the pole found from two stars, on the right side of the line between them?
#include "geometry/polecomputation.h"

#include "tests/geometry/geometrytest.h"

using namespace geometrytest;

class PoleComputationTest : public QObject
{
    Q_OBJECT

private slots:
    void byReference_data();
    void byReference();
    void byStar_data();
    void byStar();
    void candidate_data();
    void candidate();
    void goldenByReference();
    void goldenTemplatePoles();
};

void PoleComputationTest::byReference_data()
{
    QTest::addColumn<QVector<double>>("in");
    QTest::addColumn<int>("status");
    QTest::addColumn<QVector<double>>("pole");
    QTest::addColumn<QStringList>("log");
    const QStringList invalid{"critical: CalcPoleCOOR - Calculate pole failed as invalid value."};
    const QStringList failed{"critical: CalcPoleCOOR - Calculate pole failed."};
    const auto row = [](const char *name, QVector<double> in, int status, QVector<double> pole,
                        QStringList log) { QTest::newRow(name) << in << status << pole << log; };
    // x1, y1, angle at A, x2, y2, angle at B, xr, yr
    row("nearer to plus", {0, 0, 45, 10, 0, 45, 5, 1}, 0, {5, 5}, {});
    row("nearer to minus", {0, 0, 45, 10, 0, 45, 5, -1}, 0, {5, -5}, {});
    row("equally near", {0, 0, 45, 10, 0, 45, 5, 0}, 0, {5, -5}, {});
    row("stars swapped", {10, 0, 45, 0, 0, 45, 5, 1}, 0, {5, 5}, {});
    row("unequal angles", {0, 0, 60, 10, 0, 30, 3, 9}, 0, {2.5, 2.5 * std::sqrt(3.0)}, {});
    row("one pixel column", {0, 0, 45, 0, 10, 45, 5, 1}, -1, {0, 0}, invalid);
    row("one pixel", {4, 4, 45, 4, 4, 45, 5, 1}, -1, {0, 0}, invalid);
    row("angles of 180 together", {0, 0, 90, 10, 0, 90, 5, 1}, -1, {0, 0}, invalid);
    row("circles apart", {0, 0, 0, 10, 0, 0, 5, 1}, -1, {0, 0}, failed);
    row("circles that touch", {0, 3, 0, 10, 3, 90, 5, 1}, 0, {3, 3}, {});
    row("angle not a number", {0, 0, notANumber, 10, 0, 45, 5, 1}, -1, {0, 0}, {});
    row("star not a number", {notANumber, 0, 45, 10, 0, 45, 5, 1}, -1, {0, 0}, {});
    row("reference not a number", {0, 0, 45, 10, 0, 45, notANumber, 1}, 0, {5, -5}, {});
}

void PoleComputationTest::byReference()
{
    QFETCH(QVector<double>, in);
    QFETCH(int, status);
    QFETCH(QVector<double>, pole);
    QFETCH(QStringList, log);
    double x = 77.0;
    double y = 88.0;
    LogRecorder recorder;
    QCOMPARE(CalcPoleCOOR(in[0], in[1], in[2], in[3], in[4], in[5], in[6], in[7], x, y), status);
    COMPARE_WITHIN(x, pole[0], 1e-12);
    COMPARE_WITHIN(y, pole[1], 1e-12);
    QCOMPARE(logOf(recorder), log);
}

void PoleComputationTest::byStar_data()
{
    QTest::addColumn<QVector<double>>("in");
    QTest::addColumn<int>("status");
    QTest::addColumn<QVector<double>>("pole");
    QTest::addColumn<QStringList>("log");
    const QStringList invalid{"critical: invalid points, can not calculate pole."};
    const QStringList failed{"critical: did not calculate the appropriate pole"};
    const auto row = [](const char *name, QVector<double> in, int status, QVector<double> pole,
                        QStringList log) { QTest::newRow(name) << in << status << pole << log; };
    // x1, y1, angle at A, x2, y2, angle at B, xd, yd, angle at B between D and the pole.
    // D is above B on the screen (smaller y): 45 degrees from minus, 135 from plus.
    row("angle of plus", {0, 0, 45, 10, 0, 45, 10, -8, 130}, 0, {5, 5}, {});
    row("angle of minus", {0, 0, 45, 10, 0, 45, 10, -8, 50}, 0, {5, -5}, {});
    row("tie", {0, 0, 45, 10, 0, 45, 18, 0, 90}, 0, {5, -5}, {});
    row("star D on B", {0, 0, 45, 10, 0, 45, 10, 0, 45}, 0, {5, -5}, {});
    row("one pixel column", {0, 0, 45, 0, 10, 45, 5, 1, 45}, -1, {0, 0}, invalid);
    row("angles of 180 together", {0, 0, 90, 10, 0, 90, 5, 1, 45}, -1, {0, 0}, invalid);
    row("circles apart", {0, 0, 0, 10, 0, 0, 5, 1, 45}, -1, {0, 0}, failed);
    row("circles that touch", {0, 3, 0, 10, 3, 90, 5, 1, 45}, 0, {3, 3}, {});
    row("angle not a number", {0, 0, notANumber, 10, 0, 45, 5, 1, 45}, -1, {0, 0}, failed);
}

void PoleComputationTest::byStar()
{
    QFETCH(QVector<double>, in);
    QFETCH(int, status);
    QFETCH(QVector<double>, pole);
    QFETCH(QStringList, log);
    double x = 77.0;
    double y = 88.0;
    LogRecorder recorder;
    QCOMPARE(PoleFromTriangle(in[0], in[1], in[2], in[3], in[4], in[5], in[6], in[7], in[8], x, y),
             status);
    COMPARE_WITHIN(x, pole[0], 1e-12);
    COMPARE_WITHIN(y, pole[1], 1e-12);
    QCOMPARE(logOf(recorder), log);
}

void PoleComputationTest::candidate_data()
{
    QTest::addColumn<double>("angle");
    QTest::addColumn<bool>("first");
    // B at (0, 0), D at (4, 0); the first candidate at 30 degrees from D, the second at 90.
    QTest::newRow("exactly the first") << 30.0 << true;
    QTest::newRow("nearer to the first") << 59.9 << true;
    QTest::newRow("nearer to the second") << 60.1 << false;
    QTest::newRow("beyond the second") << 170.0 << false;
    QTest::newRow("not a number") << notANumber << false;
}

void PoleComputationTest::candidate()
{
    QFETCH(double, angle);
    QFETCH(bool, first);
    const double firstX = std::sqrt(3.0);
    double x = 0.0;
    double y = 0.0;
    CandidateByAngle(firstX, 1.0, 0.0, 5.0, 4.0, 0.0, 0.0, 0.0, angle, x, y);
    QCOMPARE(x, first ? firstX : 0.0);
    QCOMPARE(y, first ? 1.0 : 5.0);
    // Two candidates at the same angle: the second.
    CandidateByAngle(3.0, 3.0, 3.0, -3.0, 4.0, 0.0, 0.0, 0.0, angle, x, y);
    QCOMPARE(x, 3.0);
    QCOMPARE(y, -3.0);
}

void PoleComputationTest::goldenByReference()
{
    const auto rows = goldenRows("pole");
    QCOMPARE(rows.size(), 120);
    for (const auto &[name, v] : rows) {
        double x = 0.0;
        double y = 0.0;
        QCOMPARE(CalcPoleCOOR(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], x, y), 0);
        COMPARE_WITHIN(x, v[8], 1e-7);
        COMPARE_WITHIN(y, v[9], 1e-7);
    }
}

void PoleComputationTest::goldenTemplatePoles()
{
    const auto rows = goldenRows("templatepole");
    QCOMPARE(rows.size(), 18);
    for (const auto &[name, v] : rows) {
        double x = 0.0;
        double y = 0.0;
        QCOMPARE(PoleFromTriangle(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8], x, y), 0);
        COMPARE_WITHIN(x, v[9], 1e-8);
        COMPARE_WITHIN(y, v[10], 1e-8);
    }
}

QTEST_GUILESS_MAIN(PoleComputationTest)
#include "tst_polecomputation.moc"
