// SPDX-License-Identifier: MIT
// With few stars, is the pole's claimed error honest, with a lens that distorts and without?
#include "bench/recognition/bars.h"
#include "bench/recognition/fewstars.h"

#include <QtTest>
#include <limits>

class FewStarsTest : public QObject
{
    Q_OBJECT

private slots:
    void claimsAreHonest_data();
    void claimsAreHonest();
    void barsAreKeptOrMissed_data();
    void barsAreKeptOrMissed();
};

void FewStarsTest::claimsAreHonest_data()
{
    QTest::addColumn<double>("distortion");
    QTest::addColumn<int>("least"); // stars
    QTest::addColumn<int>("most");
    QTest::addColumn<double>("rms");    // arcseconds, at most
    QTest::addColumn<double>("inside"); // of 100, at least
    QTest::newRow("12 to 19 stars, no distortion") << 0.0 << 12 << 19 << 14.0 << 92.0;
    QTest::newRow("12 to 19 stars, 0.3 % in the corners") << 0.003 << 12 << 19 << 29.0 << 84.0;
    QTest::newRow("20 to 30 stars, no distortion") << 0.0 << 20 << 30 << 8.0 << 92.0;
    QTest::newRow("20 to 30 stars, 0.3 % in the corners") << 0.003 << 20 << 30 << 17.0 << 90.0;
    QTest::newRow("20 to 30 stars, 1 % in the corners") << 0.01 << 20 << 30 << 14.0 << 92.0;
    QTest::newRow("40 to 60 stars, 0.3 % in the corners") << 0.003 << 40 << 60 << 7.0 << 92.0;
}

void FewStarsTest::claimsAreHonest()
{
    QFETCH(double, distortion);
    QFETCH(int, least);
    QFETCH(int, most);
    QFETCH(double, rms);
    QFETCH(double, inside);
    constexpr int frames = 400;
    const FewStarsTally tally = tallyFewStars({distortion, least, most}, frames);
    QCOMPARE(tally.frames, frames);
    QVERIFY2(tally.lost <= 0.02 * frames, qPrintable(QString::number(tally.lost)));
    const double found = 100.0 * tally.inside / frames;
    QVERIFY2(found >= inside && found <= 98.0, qPrintable(QString::number(found)));
    QVERIFY2(tally.rms < rms, qPrintable(QString::number(tally.rms)));
}

void FewStarsTest::barsAreKeptOrMissed_data()
{
    QTest::addColumn<double>("value"); // must be from 90 to 98
    QTest::addColumn<bool>("kept");
    QTest::newRow("at the lower bar") << 90.0 << true;
    QTest::newRow("at the upper bar") << 98.0 << true;
    QTest::newRow("below") << 89.99 << false;
    QTest::newRow("above") << 98.01 << false;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << false;
}

// What the measurements' exit status goes by. A bar that was missed stays missed.
void FewStarsTest::barsAreKeptOrMissed()
{
    QFETCH(double, value);
    QFETCH(bool, kept);
    Bars bars;
    bars.atLeast("percent", value, 90.0);
    bars.atMost("percent", value, 98.0);
    bars.atMost("percent", 95.0, 98.0);
    QCOMPARE(bars.kept(), kept);
}

QTEST_GUILESS_MAIN(FewStarsTest)
#include "tst_fewstars.moc"
