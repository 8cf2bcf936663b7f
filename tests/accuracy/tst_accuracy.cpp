// SPDX-License-Identifier: MIT
// Are star positions, axis and pole as accurate as light, noise and the built-in angles allow?
#include "bench/accuracy.h"
#include "resources/resources.h"

#include <QTest>
#include <cmath>

namespace
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int trials = 4; // with fewer, the scatter may be below half the bound
#else
constexpr int trials = 20;
#endif

/// Noise of 0.1 pixel in both stars moves the pole by this much, arcseconds rms.
constexpr double poleNoisePerTenthPixel = 3.3;
/// Error left by the computation of the table and by the camera's scale, arcseconds.
constexpr double tableTolerance = 4.0;
} // namespace

class AccuracyTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void method_data();
    void method();
};

void AccuracyTest::method_data()
{
    QTest::addColumn<int>("number");
    int number = 0;
    for (const AccuracyCase &sky : accuracyCases())
        QTest::addRow("%s %s %s", sky.south ? "south" : "north", qPrintable(sky.date),
                      qPrintable(sky.name))
            << number++;
}

void AccuracyTest::method()
{
    QFETCH(int, number);
    const AccuracyCase sky = accuracyCases().at(std::size_t(number));
    const Accuracy found = measureAccuracy(sky, trials);
    QCOMPARE(found.failures, 0);

    for (const CentroidError &star : {found.starA, found.starB}) {
        QVERIFY2(star.rms < 0.35, qPrintable(QString::number(star.rms)));
        // No unbiased method is better than the bound; a few trials scatter around it.
        if (sky.noise)
            QVERIFY2(star.rms > 0.5 * star.bound, qPrintable(QString::number(star.rms)));
        else // Polaris is saturated: its centre is found from a plateau
            QVERIFY2(star.rms < 0.15, qPrintable(QString::number(star.rms)));
    }
    QVERIFY2(found.axisRms < 1.0, qPrintable(QString::number(found.axisRms)));

    const double noise = std::hypot(found.starA.rms, found.starB.rms) / std::sqrt(2.0) / 0.1 *
                         poleNoisePerTenthPixel;
    const double allowed = tableTolerance + 3 * noise / std::sqrt(double(trials));
    const double expected = poleErrorOfTheAngles(sky.date, sky.south);
    QVERIFY2(std::abs(found.poleMean - expected) < allowed,
             qPrintable(QStringLiteral("mean pole %1 arcsec off, expected %2 within %3")
                            .arg(found.poleMean)
                            .arg(expected)
                            .arg(allowed)));
    QVERIFY2(found.poleScatter < 1 + 2.5 * noise,
             qPrintable(QStringLiteral("%1 against %2").arg(found.poleScatter).arg(noise)));
}

QTEST_GUILESS_MAIN(AccuracyTest)
#include "tst_accuracy.moc"
