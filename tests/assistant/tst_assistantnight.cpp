// SPDX-License-Identifier: MIT
// Do figures and memory stay what they are while nobody touches the bolts? The whole night:
// `bench/assistantreport night`.
#include "bench/assistant/night.h"
#include "bench/assistant/start.h"

#include <QtTest>
#include <cmath>

class AssistantNightTest : public QObject
{
    Q_OBJECT

private slots:
    void nothingDrifts_data();
    void nothingDrifts();
};

void AssistantNightTest::nothingDrifts_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<bool>("tracking");
    QTest::newRow("tracking, north") << 4 << true;
    QTest::newRow("at rest, south") << 5 << false;
}

void AssistantNightTest::nothingDrifts()
{
    QFETCH(int, start);
    QFETCH(bool, tracking);
    virtualsky::SkyState sky = startingSky(std::uint64_t(start));
    sky.tracking = tracking;
    const NightResult night = nightAtRest(sky, 8.0, 120.0);
    QVERIFY(night.frames > 200);
    QCOMPARE(night.figures, night.frames);
    QVERIFY2(night.worstSigmas < 4.5, qPrintable(QString::number(night.worstSigmas)));
    QVERIFY2(std::abs(night.change) < 2.0, qPrintable(QString::number(night.change)));
    QVERIFY2(night.growthMebibytes < 4.0, qPrintable(QString::number(night.growthMebibytes)));
}

QTEST_GUILESS_MAIN(AssistantNightTest)
#include "tst_assistantnight.moc"
