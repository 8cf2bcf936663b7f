// SPDX-License-Identifier: MIT
// Which advice follows from what a frame, the axis and the error say?
#include "assistant/advice.h"

#include <QtTest>

using namespace assistant;
using recognition::ExtractionStatus;

Q_DECLARE_METATYPE(LostSky)
Q_DECLARE_METATYPE(AdviceCode)
using Codes = std::vector<AdviceCode>;
Q_DECLARE_METATYPE(Codes)

class AdviceTest : public QObject
{
    Q_OBJECT

private slots:
    void lostSky_data();
    void lostSky();
    void poleOutside_data();
    void poleOutside();
    void axis_data();
    void axis();
    void bolts_data();
    void bolts();
    void order_data();
    void order();
};

void AdviceTest::lostSky_data()
{
    QTest::addColumn<LostSky>("frame");
    QTest::addColumn<AdviceCode>("code");
    QTest::addColumn<double>("first");
    const auto row = [](const char *name, LostSky frame, AdviceCode code, double first = 0.0) {
        QTest::newRow(name) << frame << code << first;
    };
    row("black", {ExtractionStatus::Black, 0, 0.0, false, true, true}, AdviceCode::CoverOn);
    row("black after the sky", {ExtractionStatus::Black, 0, 0.0, true}, AdviceCode::CoverOn);
    row("saturated", {ExtractionStatus::SaturatedSky, 3}, AdviceCode::ExposeShorter);
    row("no sky", {ExtractionStatus::NoSky}, AdviceCode::NoSky);
    row("bad frame", {ExtractionStatus::BadFrame}, AdviceCode::NoSky);
    row("out of focus", {ExtractionStatus::OutOfFocus, 9, 12.5}, AdviceCode::Focus, 12.5);
    row("trailed", {ExtractionStatus::Trailed, 6}, AdviceCode::HoldStill);
    row("noise drawn out", {ExtractionStatus::Trailed, 5}, AdviceCode::ExposeLonger, 5.0);
    row("first frame", {ExtractionStatus::TooFewStars, 2, 0.0, false, true}, AdviceCode::Searching,
        2.0);
    row("exposure still changes", {ExtractionStatus::TooFewStars, 2, 0.0, false, false, true},
        AdviceCode::Searching, 2.0);
    row("few", {ExtractionStatus::TooFewStars, 4}, AdviceCode::ExposeLonger, 4.0);
    row("few after the sky", {ExtractionStatus::TooFewStars, 4, 0.0, true}, AdviceCode::Clouds,
        4.0);
    row("unlike the pole's", {ExtractionStatus::Ok, 12}, AdviceCode::NotThePole, 12.0);
    row("hardly enough", {ExtractionStatus::Ok, 11}, AdviceCode::ExposeLonger, 11.0);
    row("left by a cloud", {ExtractionStatus::Ok, 11, 0.0, true}, AdviceCode::Clouds, 11.0);
    row("moved away", {ExtractionStatus::Ok, 12, 0.0, true}, AdviceCode::NotThePole, 12.0);
}

void AdviceTest::lostSky()
{
    QFETCH(LostSky, frame);
    QFETCH(AdviceCode, code);
    QFETCH(double, first);
    const Advice advice = adviceOf(frame);
    QCOMPARE(int(advice.code), int(code));
    QCOMPARE(advice.first, first);
}

void AdviceTest::poleOutside_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("degrees"); // 0: inside
    QTest::addColumn<double>("direction");
    QTest::newRow("centre") << 639.5 << 479.5 << 0.0 << 0.0;
    QTest::newRow("corner pixel") << 1279.4 << 959.4 << 0.0 << 0.0;
    // Degrees by angles of a pinhole's directions, computed by hand.
    QTest::newRow("above") << 639.5 << -120.5 << 0.993845 << 0.0;
    QTest::newRow("right") << 1399.5 << 479.5 << 0.989717 << 90.0;
    QTest::newRow("below") << 639.5 << 1199.5 << 1.984690 << 180.0;
    QTest::newRow("left") << -240.5 << 479.5 << 1.975669 << -90.0;
    QTest::newRow("above right") << 1359.5 << -240.5 << 2.076457 << 45.0;
    QTest::newRow("far above") << 639.5 << -1120.5 << 9.106658 << 0.0;
}

void AdviceTest::poleOutside()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, degrees);
    QFETCH(double, direction);
    const auto advice = adviceOnPole({x, y}, 1280, 960, 30.0); // 120 pixels a degree
    QCOMPARE(advice.has_value(), degrees > 0.0);
    if (!advice)
        return;
    QVERIFY(advice->code == AdviceCode::PoleThatWay);
    QVERIFY2(std::abs(advice->first - degrees) < 1e-6, qPrintable(QString::number(advice->first)));
    QCOMPARE(advice->second, direction);
}

void AdviceTest::axis_data()
{
    QTest::addColumn<double>("turned");
    QTest::addColumn<bool>("enough");
    QTest::addColumn<AdviceCode>("code");
    QTest::newRow("not begun") << 0.2 << false << AdviceCode::TurnAxis;
    QTest::newRow("under way") << 7.5 << false << AdviceCode::TurnFurther;
    QTest::newRow("far, unchecked") << 45.0 << false << AdviceCode::TurnFurther;
    QTest::newRow("enough") << 30.0 << true << AdviceCode::StopTurning;
}

void AdviceTest::axis()
{
    QFETCH(double, turned);
    QFETCH(bool, enough);
    QFETCH(AdviceCode, code);
    AxisProgress progress;
    progress.turnedDegrees = turned;
    progress.enough = enough;
    QCOMPARE(int(adviceOnAxis(progress).code), int(code));
}

void AdviceTest::bolts_data()
{
    QTest::addColumn<double>("total");
    QTest::addColumn<AdviceCode>("code");
    QTest::newRow("far") << 3600.0 << AdviceCode::TurnBolts;
    QTest::newRow("an arcminute") << 60.0 << AdviceCode::TurnBolts;
    QTest::newRow("near") << 59.9 << AdviceCode::NearlyThere;
    QTest::newRow("the goal itself") << 20.0 << AdviceCode::NearlyThere;
    QTest::newRow("aligned") << 19.9 << AdviceCode::Aligned;
}

void AdviceTest::bolts()
{
    QFETCH(double, total);
    QFETCH(AdviceCode, code);
    ErrorFigures figures;
    figures.total.arcseconds = total;
    const Advice advice = adviceOnBolts(figures, 20.0);
    QCOMPARE(int(advice.code), int(code));
    QCOMPARE(advice.first, total);
}

void AdviceTest::order_data()
{
    QTest::addColumn<Codes>("given");
    QTest::addColumn<Codes>("ordered");
    using C = AdviceCode;
    QTest::newRow("nothing") << Codes{} << Codes{};
    QTest::newRow("a failed recording before the hints")
        << Codes{C::TurnBolts, C::ClockUnsure, C::SiteMissing, C::RecordingFailed}
        << Codes{C::TurnBolts, C::RecordingFailed, C::ClockUnsure, C::SiteMissing};
    QTest::newRow("a full recording before the hints")
        << Codes{C::TurnAxis, C::SiteTooFarNorth, C::RecordingFull}
        << Codes{C::TurnAxis, C::RecordingFull, C::SiteTooFarNorth};
    QTest::newRow("the pole outside before the hints")
        << Codes{C::TurnAxis, C::ClockUnsure, C::SiteMissing, C::PoleThatWay, C::Focus}
        << Codes{C::TurnAxis, C::PoleThatWay, C::Focus, C::ClockUnsure, C::SiteMissing};
    QTest::newRow("a clock that is behind before the hints")
        << Codes{C::TurnBolts, C::SiteMissing, C::ClockBehind}
        << Codes{C::TurnBolts, C::ClockBehind, C::SiteMissing};
    QTest::newRow("a clock that is set first")
        << Codes{C::TurnBolts, C::RecordingFull, C::ClockJumped}
        << Codes{C::TurnBolts, C::ClockJumped, C::RecordingFull};
    QTest::newRow("what to do stays first") << Codes{C::Focus, C::Bumped, C::RecordingFailed}
                                            << Codes{C::Focus, C::Bumped, C::RecordingFailed};
    QTest::newRow("an event keeps its stage")
        << Codes{C::StopTurning, C::Aligned, C::RecordingFull}
        << Codes{C::StopTurning, C::Aligned, C::RecordingFull};
}

void AdviceTest::order()
{
    QFETCH(Codes, given);
    std::vector<Advice> advice;
    for (const AdviceCode code : given)
        advice.push_back({code, 0.0, 0.0, {}});
    orderAdvice(advice);
    Codes found;
    for (const Advice &one : advice)
        found.push_back(one.code);
    QTEST(found, "ordered");
}

QTEST_GUILESS_MAIN(AdviceTest)
#include "tst_advice.moc"
