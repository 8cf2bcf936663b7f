// SPDX-License-Identifier: MIT
// Does the exposure go where enough stars show, and does it rest there?
#include "assistant/autoexposure.h"

#include <QtTest>

using namespace assistant;
using recognition::ExtractionStatus;

Q_DECLARE_METATYPE(ExposureFacts)

class AutoExposureTest : public QObject
{
    Q_OBJECT

private slots:
    void better_data();
    void better();
    void waitsForTheCamera();
    void doesNotGoBackToSaturation();
    void offChangesNothing();
    void refusedIsNotWantedAgain();
    void isOrderedOnce();
};

void AutoExposureTest::better_data()
{
    QTest::addColumn<ExposureFacts>("facts");
    QTest::addColumn<double>("expected");
    const auto row = [](const char *name, ExposureFacts facts, double expected) {
        QTest::newRow(name) << facts << expected;
    };
    row("enough", {200000.0, true, 15, ExtractionStatus::Ok}, 200000.0);
    row("recognised, few", {200000.0, true, 14, ExtractionStatus::Ok}, 300000.0);
    row("none", {20000.0, false, 0, ExtractionStatus::TooFewStars}, 40000.0);
    row("some, not recognised", {20000.0, false, 10, ExtractionStatus::Ok}, 30000.0);
    row("many others", {20000.0, false, 40, ExtractionStatus::Ok}, 20000.0);
    row("black", {1000.0, false, 0, ExtractionStatus::Black}, 2000.0);
    row("saturated", {100000.0, false, 0, ExtractionStatus::SaturatedSky}, 50000.0);
    row("not below 1 ms", {1500.0, false, 0, ExtractionStatus::SaturatedSky}, 1000.0);
    row("not above 500 ms", {400000.0, false, 0, ExtractionStatus::TooFewStars}, 500000.0);
    row("out of focus", {20000.0, false, 9, ExtractionStatus::OutOfFocus}, 20000.0);
    row("no sky", {20000.0, false, 0, ExtractionStatus::NoSky}, 20000.0);
    row("trailed", {20000.0, false, 9, ExtractionStatus::Trailed}, 20000.0);
}

void AutoExposureTest::better()
{
    QFETCH(ExposureFacts, facts);
    QFETCH(double, expected);
    QCOMPARE(betterExposure(facts), expected);
}

void AutoExposureTest::waitsForTheCamera()
{
    AutoExposure automatic;
    const ExposureFacts dark = {20000.0, false, 0, ExtractionStatus::TooFewStars};
    automatic.consider(dark); // may have begun before
    QVERIFY(!automatic.wanted());
    automatic.consider(dark);
    QCOMPARE(automatic.wanted().value(), 40000.0);
    automatic.consider(dark); // still the old one
    QCOMPARE(automatic.wanted().value(), 40000.0);
    const ExposureFacts good = {40000.0, true, 20, ExtractionStatus::Ok};
    automatic.consider(good);
    QCOMPARE(automatic.wanted().value(), 40000.0);
    automatic.consider(good);
    QVERIFY(!automatic.wanted());
}

void AutoExposureTest::doesNotGoBackToSaturation()
{
    AutoExposure automatic;
    ExposureFacts facts = {400000.0, false, 0, ExtractionStatus::SaturatedSky};
    int changes = 0;
    for (int frame = 0; frame < 60; ++frame) {
        automatic.consider(facts);
        if (!automatic.wanted() || *automatic.wanted() == facts.microseconds)
            continue;
        ++changes;
        facts.microseconds = *automatic.wanted();
        facts.status = facts.microseconds > 350000.0 ? ExtractionStatus::SaturatedSky
                                                     : ExtractionStatus::TooFewStars;
    }
    QVERIFY2(changes <= 3, qPrintable(QString::number(changes)));
    QVERIFY(facts.microseconds >= 200000.0 && facts.microseconds < 400000.0);
}

void AutoExposureTest::offChangesNothing()
{
    AutoExposure automatic;
    automatic.setEnabled(false);
    for (int i = 0; i < 4; ++i)
        automatic.consider({20000.0, false, 0, ExtractionStatus::TooFewStars});
    QVERIFY(!automatic.wanted());
    automatic.setEnabled(true);
    automatic.consider({20000.0, false, 0, ExtractionStatus::TooFewStars});
    QVERIFY(automatic.wanted().has_value());
}

void AutoExposureTest::refusedIsNotWantedAgain()
{
    AutoExposure automatic;
    const ExposureFacts dark = {20000.0, false, 0, ExtractionStatus::TooFewStars};
    int wanted = 0;
    for (int frame = 0; frame < 200; ++frame) {
        automatic.consider(dark);
        wanted += automatic.wanted() ? 1 : 0;
    }
    QVERIFY2(wanted >= 10 && wanted <= 30, qPrintable(QString::number(wanted)));
    automatic.consider({20000.0, false, 0, ExtractionStatus::SaturatedSky});
    QCOMPARE(automatic.wanted().value(), 10000.0); // another one is
    automatic.setEnabled(true);
    automatic.consider(dark);
    QCOMPARE(automatic.wanted().value(), 40000.0); // so is the same after the user's switch
}

void AutoExposureTest::isOrderedOnce()
{
    ExposureOrder order;
    QCOMPARE(order.due(40000.0), std::optional<double>(40000.0));
    for (int frame = 0; frame < 5; ++frame)
        QCOMPARE(order.due(40000.0), std::nullopt);
    QCOMPARE(order.due(60000.0), std::optional<double>(60000.0));
    order.forget();
    QCOMPARE(order.due(60000.0), std::optional<double>(60000.0));
    QCOMPARE(order.due({}), std::nullopt);
    QCOMPARE(order.due(60000.0), std::optional<double>(60000.0));
}

QTEST_GUILESS_MAIN(AutoExposureTest)
#include "tst_autoexposure.moc"
