// SPDX-License-Identifier: MIT
// What does the assistant show and sound for an error?
#include "assistantwindow/assistantwindow.h"
#include "assistantwindow/display.h"
#include "assistantwindow/guidance.h"
#include "assistantwindow/indicators.h"
#include "assistantwindow/largepage.h"
#include "assistantwindow/mainpage.h"
#include "tests/assistantwindow/figurevalues.h"

#include <QtTest>
#include <cmath>
#include <limits>

using namespace assistantwindow;
using assistant::AdviceCode;

namespace
{
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
    void goodBoltKeepsItsSide_data();
    void goodBoltKeepsItsSide();
    void plotBreaksWhereNothingWasMeasured();
    void gapIsHatched();
    void goodBoltShowsItsArrow();
    void arrowsAreStraight();
    void largeRowsAreNamed();
    void askedExposureWaitsForTheCamera();
    void windowLeavesRoomBesideIt_data();
    void windowLeavesRoomBesideIt();
    void aimIsNamed();
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

void AssistantFiguresTest::goodBoltKeepsItsSide_data()
{
    QTest::addColumn<double>("altitude");
    QTest::addColumn<double>("azimuth");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::newRow("above and west") << 5.0 << -3.0 << int(Way::Down) << int(Way::East);
    QTest::newRow("below and east") << -0.1 << 0.1 << int(Way::Up) << int(Way::West);
    QTest::newRow("no error") << 0.0 << 0.0 << int(Way::Stay) << int(Way::Stay);
    QTest::newRow("no number") << noNumber << 2.0 << int(Way::Unknown) << int(Way::West);
}

void AssistantFiguresTest::goodBoltKeepsItsSide()
{
    QFETCH(double, altitude);
    QFETCH(double, azimuth);
    const BoltWays found = boltWays(figures(6.0, altitude, azimuth), 40.0, 20.0);
    QTEST(int(found.altitudeSide), "first");
    QTEST(int(found.azimuthSide), "second");
    QVERIFY(found.azimuth == Way::Stay);
}

void AssistantFiguresTest::plotBreaksWhereNothingWasMeasured()
{
    std::deque<assistant::History::Point> points;
    QVERIFY(plotRuns(points).empty());
    for (const double seconds : {0.0, 0.5, 5.5, 10.6, 11.1, 70.0})
        points.push_back({seconds, 100.0, {}, {}});
    const std::vector<PlotRun> runs = plotRuns(points);
    QCOMPARE(runs.size(), std::size_t(3));
    QCOMPARE(runs[0].last, std::size_t(3)); // five seconds are no gap yet
    QCOMPARE(runs[1].first, std::size_t(3));
    QCOMPARE(runs[1].last, std::size_t(5));
    QCOMPARE(runs[2].last, std::size_t(6));
}

void AssistantFiguresTest::gapIsHatched()
{
    const auto hatched = [](double now, double step) {
        std::deque<assistant::History::Point> points;
        for (int i = 0; i < 10; ++i)
            points.push_back({i * step, 100.0, {}, {}});
        ErrorPlot plot;
        plot.resize(400, 200);
        plot.show(points, 20.0, now);
        const QImage image = plot.grab().toImage();
        int found = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                found += image.pixelColor(x, y) == theme(false).border ? 1 : 0;
        return found;
    };
    QCOMPARE(hatched(0.0, 2.0), 0);
    QVERIFY(hatched(0.0, 20.0) > 500);  // between points
    QVERIFY(hatched(100.0, 2.0) > 500); // since the last one
}

void AssistantFiguresTest::goodBoltShowsItsArrow()
{
    const auto drawn = [](Way way, Way side, double degrees) {
        BoltArrow arrow(&Theme::altitude);
        arrow.resize(64, 64);
        arrow.show(way, side, degrees);
        return arrow.grab().toImage();
    };
    const QImage up = drawn(Way::Stay, Way::Up, 0.0), down = drawn(Way::Stay, Way::Down, 180.0);
    QVERIFY(up != down);                             // the side is visible
    QVERIFY(up != drawn(Way::Stay, Way::Stay, 0.0)); // besides the tick
    QVERIFY(up != drawn(Way::Up, Way::Up, 0.0));     // and the bolt is not to be turned
}

/// Up and down are the same on both sides, left and right above and below.
void AssistantFiguresTest::arrowsAreStraight()
{
    for (const double degrees : {0.0, 90.0, 180.0, -90.0}) {
        BoltArrow arrow(&Theme::altitude);
        arrow.resize(64, 64);
        arrow.show(Way::Up, Way::Up, degrees);
        const QImage drawn = arrow.grab().toImage().convertToFormat(QImage::Format_RGB32);
        const bool isUpright = degrees == 0.0 || degrees == 180.0;
        const QImage mirrored = drawn.mirrored(isUpright, !isUpright);
        int different = 0;
        for (int y = 0; y < drawn.height(); ++y)
            for (int x = 0; x < drawn.width(); ++x)
                different +=
                    std::abs(qGray(drawn.pixel(x, y)) - qGray(mirrored.pixel(x, y))) > 8 ? 1 : 0;
        QCOMPARE(different, 0);
    }
}

void AssistantFiguresTest::largeRowsAreNamed()
{
    assistant::Status status;
    status.stage = assistant::Stage::Bolts;
    status.error = figures(100.0, 5.0, -90.0);
    const LargeContent bolts = largeContent(displayOf(status, {}, english));
    QCOMPARE(bolts.rows.size(), std::size_t(2));
    QCOMPARE(bolts.rows[0].name, QStringLiteral("Altitude"));
    QCOMPARE(bolts.rows[1].name, QStringLiteral("Azimuth"));
    // A good bolt keeps number and arrow.
    QVERIFY(bolts.rows[0].way == Way::Stay && bolts.rows[0].side == Way::Down);
    QCOMPARE(bolts.rows[0].degrees, 180.0);
    QCOMPARE(bolts.rows[0].number, QStringLiteral("5.0″"));
    status.error = figures(100.0);
    QCOMPARE(largeContent(displayOf(status, {}, english)).rows[0].name,
             QStringLiteral("Total error"));
    status.stage = assistant::Stage::Axis;
    QCOMPARE(largeContent(displayOf(status, {}, english)).rows[0].name, QStringLiteral("Axis"));
}

void AssistantFiguresTest::askedExposureWaitsForTheCamera()
{
    AskedExposure asked;
    QVERIFY(!asked.isAwaited(1000.0, true, 0.0));
    asked.ask(5000.0, 10.0);
    QVERIFY(asked.isAwaited(1000.0, true, 10.1));
    QVERIFY(asked.isAwaited(5000.0, true, 10.2)); // still automatic
    QVERIFY(!asked.isAwaited(5000.0, false, 10.3));
    QVERIFY(!asked.isAwaited(1000.0, true, 10.4)); // once reported, the camera leads
    asked.ask({}, 20.0);
    QVERIFY(asked.isAwaited(5000.0, false, 20.1));
    QVERIFY(!asked.isAwaited(7000.0, true, 20.2));
    asked.ask(5000.0, 30.0);
    QVERIFY(asked.isAwaited(1000.0, false, 32.9));
    QVERIFY(!asked.isAwaited(1000.0, false, 33.1)); // refused
}

void AssistantFiguresTest::windowLeavesRoomBesideIt_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QSize>("window");
    QTest::newRow("800 x 480") << QSize(800, 480) << QSize(800, 480);
    QTest::newRow("1024 x 768") << QSize(1024, 768) << QSize(800, 740);
    QTest::newRow("1366 x 768") << QSize(1366, 768) << QSize(940, 740);
    QTest::newRow("1366 x 700") << QSize(1366, 700) << QSize(940, 700);
    QTest::newRow("1920 x 1080") << QSize(1920, 1080) << QSize(1180, 740);
}

void AssistantFiguresTest::windowLeavesRoomBesideIt()
{
    QFETCH(QSize, screen);
    QTEST(usualSize(screen), "window");
}

void AssistantFiguresTest::aimIsNamed()
{
    assistant::Settings settings;
    QVERIFY(displayOf({}, settings, english).aim.contains("as the air shows it"));
    settings.site = astrometry::Site{40.0, 116.0};
    QVERIFY(displayOf({}, settings, english).aim.contains("true pole, refraction at 1013 hPa"));
    settings.pressure = 0.0;
    QVERIFY(displayOf({}, settings, english).aim.contains("no refraction"));
}

QTEST_MAIN(AssistantFiguresTest)
#include "tst_assistantfigures.moc"
