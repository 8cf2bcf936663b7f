// SPDX-License-Identifier: MIT
// What does the assistant show and sound for an error?
#include "assistantwindow/display.h"
#include "assistantwindow/guidance.h"
#include "assistantwindow/indicators.h"
#include "assistantwindow/mainpage.h"

#include <QtTest>
#include <cmath>
#include <limits>

using namespace assistantwindow;
using assistant::AdviceCode;

namespace
{
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
const QLocale english(QLocale::English);

assistant::ErrorFigures figures(double total, std::optional<double> altitude = {},
                                std::optional<double> azimuth = {})
{
    assistant::ErrorFigures made;
    made.total = {total, 2.0};
    if (altitude)
        made.altitude = recognition::Measured{*altitude, 1.0};
    if (azimuth)
        made.azimuth = recognition::Measured{*azimuth, 1.0};
    return made;
}
} // namespace

class AssistantFiguresTest : public QObject
{
    Q_OBJECT

private slots:
    void ways_data();
    void ways();
    void arrowsPointAsAtTheMount_data();
    void arrowsPointAsAtTheMount();
    void pulses_data();
    void pulses();
    void pulsesComeFasterAsTheErrorShrinks();
    void phrase_data();
    void phrase();
    void plotIsLogarithmic();
    void exposureSliderIsLogarithmic();
    void panelLeavesThePictureItsShape();
    void displayOfAnInvalidNumberIsADash();
    void displayDropsTheAxisOnceAligned();
};

void AssistantFiguresTest::ways_data()
{
    QTest::addColumn<double>("altitude");
    QTest::addColumn<double>("azimuth");
    QTest::addColumn<double>("latitude");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    const auto row = [](const char *name, double altitude, double azimuth, double latitude,
                        Way first, Way second) {
        QTest::newRow(name) << altitude << azimuth << latitude << int(first) << int(second);
    };
    row("axis above and east", 100, 100, 40, Way::Down, Way::West);
    row("axis below and west", -100, -100, 40, Way::Up, Way::East);
    row("the same in the south", 100, 100, -40, Way::Down, Way::West);
    row("both within the goal's share", 14, 14, 0, Way::Stay, Way::Stay);
    row("altitude just beyond it", 15, 0, 0, Way::Down, Way::Stay);
    row("azimuth shrinks on the sky", 0, 25, 60, Way::Stay, Way::Stay);
    row("azimuth counts at the equator", 0, 25, 0, Way::Stay, Way::West);
    row("no number", noNumber, infinity, 40, Way::Unknown, Way::Unknown);
}

void AssistantFiguresTest::ways()
{
    QFETCH(double, altitude);
    QFETCH(double, azimuth);
    QFETCH(double, latitude);
    const BoltWays found = boltWays(figures(200.0, altitude, azimuth), latitude, 20.0);
    QTEST(int(found.altitude), "first");
    QTEST(int(found.azimuth), "second");
    const BoltWays none = boltWays(figures(200.0), latitude, 20.0);
    QVERIFY(none.altitude == Way::Unknown && none.azimuth == Way::Unknown);
}

void AssistantFiguresTest::arrowsPointAsAtTheMount_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<bool>("south");
    QTest::addColumn<double>("degrees");
    QTest::newRow("up") << int(Way::Up) << false << 0.0;
    QTest::newRow("down") << int(Way::Down) << true << 180.0;
    QTest::newRow("east in the north is right") << int(Way::East) << false << 90.0;
    QTest::newRow("west in the north is left") << int(Way::West) << false << -90.0;
    QTest::newRow("east in the south is left") << int(Way::East) << true << -90.0;
    QTest::newRow("west in the south is right") << int(Way::West) << true << 90.0;
}

void AssistantFiguresTest::arrowsPointAsAtTheMount()
{
    QFETCH(int, way);
    QFETCH(bool, south);
    using recognition::Hemisphere;
    QTEST(arrowDegrees(Way(way), south ? Hemisphere::South : Hemisphere::North), "degrees");
}

void AssistantFiguresTest::pulses_data()
{
    QTest::addColumn<double>("total");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("milliseconds");
    const int pulse = int(Pulses::Kind::Pulse), steady = int(Pulses::Kind::Steady);
    QTest::newRow("far") << 9000.0 << pulse << 2000;
    QTest::newRow("a degree") << 3600.0 << pulse << 2000;
    QTest::newRow("half way in the logarithm") << std::sqrt(3600.0 * 20.0) << pulse << 1060;
    QTest::newRow("just above the goal") << 20.001 << pulse << 120;
    QTest::newRow("goal") << 20.0 << steady << 0;
    QTest::newRow("below") << 3.0 << steady << 0;
    QTest::newRow("no number") << noNumber << int(Pulses::Kind::Silent) << 0;
}

void AssistantFiguresTest::pulses()
{
    QFETCH(double, total);
    const Pulses found = pulsesFor(figures(total), 20.0);
    QTEST(int(found.kind), "kind");
    QTEST(found.milliseconds, "milliseconds");
    QVERIFY(pulsesFor({}, 20.0).kind == Pulses::Kind::Silent);
}

void AssistantFiguresTest::pulsesComeFasterAsTheErrorShrinks()
{
    int last = 0;
    for (double total = 21.0; total < 3600.0; total *= 1.2) {
        const int now = pulsesFor(figures(total), 20.0).milliseconds;
        QVERIFY(now > last);
        last = now;
    }
}

void AssistantFiguresTest::phrase_data()
{
    QTest::addColumn<double>("altitude");
    QTest::addColumn<double>("azimuth");
    QTest::addColumn<QString>("said");
    QTest::newRow("minutes") << -120.0 << 10.0 << "up, 2 minutes";
    QTest::newRow("one minute") << 61.0 << 0.0 << "down, 1 minute";
    QTest::newRow("degrees of azimuth") << 100.0 << 7300.0 << "west, 2 degrees";
    QTest::newRow("seconds in steps of five") << 0.0 << -37.0 << "east, 35 seconds";
    QTest::newRow("aligned") << 3.0 << 4.0 << "aligned";
}

void AssistantFiguresTest::phrase()
{
    QFETCH(double, altitude);
    QFETCH(double, azimuth);
    QTEST(spokenPhrase(figures(std::hypot(altitude, azimuth), altitude, azimuth), 0.0, 20.0),
          "said");
    QVERIFY(spokenPhrase(figures(500.0), 0.0, 20.0).isEmpty());
}

void AssistantFiguresTest::plotIsLogarithmic()
{
    QCOMPARE(plotHeight(1.0), 0.0);
    QCOMPARE(plotHeight(36000.0), 1.0);
    QCOMPARE(plotHeight(0.0), 0.0);
    QVERIFY(std::abs(plotHeight(std::sqrt(36000.0)) - 0.5) < 1e-12);
}

void AssistantFiguresTest::exposureSliderIsLogarithmic()
{
    const Range range{1000.0, 100000.0};
    QCOMPARE(sliderOf(1000.0, range), 0);
    QCOMPARE(sliderOf(10000.0, range), 500);
    QCOMPARE(sliderOf(1e9, range), 1000);
    QCOMPARE(sliderOf(0.0, range), 0);
    QVERIFY(std::abs(exposureOf(500, range) - 10000.0) < 1e-6);
    QCOMPARE(exposureOf(500, Range{}), 0.0);
}

void AssistantFiguresTest::panelLeavesThePictureItsShape()
{
    QCOMPARE(panelWidth({800, 480}), 376);
    QCOMPARE(panelWidth({1366, 768}), 558);
    QCOMPARE(panelWidth({640, 480}), 330);
    QVERIFY(!isRoomy({800, 480}));
    QVERIFY(isRoomy({1366, 768}));
}

void AssistantFiguresTest::displayOfAnInvalidNumberIsADash()
{
    assistant::Status status;
    status.stage = assistant::Stage::Bolts;
    const Display none = displayOf(status, {}, english);
    QCOMPARE(none.total.text, dash());
    QVERIFY(!none.total.arcseconds && !none.hasBolts);
    status.error = figures(noNumber, 100.0, infinity);
    const Display invalid = displayOf(status, {}, english);
    QCOMPARE(invalid.total.text, dash());
    QVERIFY(!invalid.total.arcseconds && !invalid.total.sigmaArcseconds);
    QCOMPARE(invalid.altitude.text, QStringLiteral("1′40″"));
    QCOMPARE(invalid.azimuth.text, dash());
    QVERIFY(!invalid.hasBolts);
}

void AssistantFiguresTest::displayDropsTheAxisOnceAligned()
{
    assistant::Status status;
    status.advice = {{AdviceCode::StopTurning, 3.0, 0.0, {}},
                     {AdviceCode::TurnBolts, 99.0, 0.0, {}}};
    QVERIFY(displayOf(status, {}, english).advice.startsWith("Enough"));
    status.advice[1].code = AdviceCode::Aligned;
    const Display display = displayOf(status, {}, english);
    QVERIFY(display.advice.startsWith("Aligned"));
    QVERIFY(display.aligned && display.hint.isEmpty());
}

QTEST_MAIN(AssistantFiguresTest)
#include "tst_assistantfigures.moc"
