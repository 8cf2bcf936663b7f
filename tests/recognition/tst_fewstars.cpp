// SPDX-License-Identifier: MIT
// With few stars, is the pole's claimed error honest, with a lens that distorts and without?
#include "bench/recognition/fewstars.h"

#include <QtTest>

class FewStarsTest : public QObject
{
    Q_OBJECT

private slots:
    void claimsAreHonest_data();
    void claimsAreHonest();
};

void FewStarsTest::claimsAreHonest_data()
{
    QTest::addColumn<double>("distortion");
    QTest::addColumn<int>("least"); // stars
    QTest::addColumn<int>("most");
    QTest::newRow("12 to 19 stars, no distortion") << 0.0 << 12 << 19;
    QTest::newRow("20 to 30 stars, no distortion") << 0.0 << 20 << 30;
    QTest::newRow("20 to 30 stars, 1 % in the corners") << 0.01 << 20 << 30;
    QTest::newRow("40 to 60 stars, 0.3 % in the corners") << 0.003 << 40 << 60;
}

void FewStarsTest::claimsAreHonest()
{
    QFETCH(double, distortion);
    QFETCH(int, least);
    QFETCH(int, most);
    constexpr int frames = 400;
    const FewStarsTally tally = tallyFewStars({distortion, least, most}, frames);
    QCOMPARE(tally.frames, frames);
    QVERIFY2(tally.lost <= 0.02 * frames, qPrintable(QString::number(tally.lost)));
    QVERIFY2(tally.inside >= 0.92 * frames && tally.inside <= 0.98 * frames,
             qPrintable(QString::number(tally.inside)));
}

QTEST_GUILESS_MAIN(FewStarsTest)
#include "tst_fewstars.moc"
