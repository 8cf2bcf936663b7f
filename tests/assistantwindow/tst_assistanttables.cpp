// SPDX-License-Identifier: MIT
// What does the assistant's window say, draw and sound for a status? Tables of its pure functions.
#include "assistantapp/options.h"
#include "assistantwindow/display.h"
#include "assistantwindow/guidance.h"
#include "assistantwindow/indicators.h"
#include "assistantwindow/languagenames.h"
#include "assistantwindow/mainpage.h"
#include "assistantwindow/starlabel.h"
#include "assistantwindow/theme.h"
#include "assistantwindow/view.h"
#include "core/languages.h"

#include <QSet>
#include <QtTest>
#include <cmath>
#include <limits>

using namespace assistantwindow;
using assistant::AdviceCode;

namespace
{
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
const QLocale english(QLocale::English), german(QLocale::German);

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

/// Every code of the enumeration, by its last one.
std::vector<AdviceCode> allCodes()
{
    std::vector<AdviceCode> codes;
    for (int i = 0; i <= int(AdviceCode::RecordingFull); ++i)
        codes.push_back(AdviceCode(i));
    return codes;
}
} // namespace

class AssistantTablesTest : public QObject
{
    Q_OBJECT

private slots:
    void angle_data();
    void angle();
    void smallTexts();
    void everyAdviceHasItsOwnSentence();
    void adviceCarriesItsNumber();
    void ways_data();
    void ways();
    void arrowsPointAsAtTheMount_data();
    void arrowsPointAsAtTheMount();
    void pulses_data();
    void pulses();
    void pulsesComeFasterAsTheErrorShrinks();
    void phrase_data();
    void phrase();
    void zoom_data();
    void zoom();
    void zoomDoesNotFlicker();
    void wholeFrameIsCentred();
    void closeViewHasItsCentreAndRadius();
    void ellipses_data();
    void ellipses();
    void namesAreThinned();
    void arrowsToOutside_data();
    void arrowsToOutside();
    void plotIsLogarithmic();
    void exposureSliderIsLogarithmic();
    void panelLeavesThePictureItsShape();
    void redThemeHasOnlyRed();
    void reddenedKeepsBrightness();
    void starLabels_data();
    void starLabels();
    void brightSkyStays();
    void displayOfAnInvalidNumberIsADash();
    void displayDropsTheAxisOnceAligned();
    void languagesAreThoseOfTheTable();
    void options_data();
    void options();
};

void AssistantTablesTest::angle_data()
{
    QTest::addColumn<double>("arcseconds");
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0.0 << english << "0.0″";
    QTest::newRow("seconds") << 12.34 << english << "12.3″";
    QTest::newRow("decimal comma") << 12.34 << german << "12,3″";
    QTest::newRow("negative") << -12.34 << english << "12.3″";
    QTest::newRow("just below a minute") << 59.94 << english << "59.9″";
    QTest::newRow("rounded up to a minute") << 59.96 << english << "1′00″";
    QTest::newRow("minutes") << 245.0 << english << "4′05″";
    QTest::newRow("rounded up to a degree") << 3599.7 << english << "1°00′";
    QTest::newRow("degrees") << 4320.0 << english << "1°12′";
    QTest::newRow("degrees round their minutes") << 7190.0 << english << "2°00′";
    QTest::newRow("not a number") << noNumber << english << "—";
    QTest::newRow("infinite") << infinity << english << "—";
}

void AssistantTablesTest::angle()
{
    QFETCH(double, arcseconds);
    QFETCH(QLocale, locale);
    QTEST(angleText(arcseconds, locale), "text");
}

void AssistantTablesTest::smallTexts()
{
    QCOMPARE(uncertaintyText(3.14, english), QStringLiteral("± 3.1″"));
    QCOMPARE(uncertaintyText(noNumber, english), dash());
    QCOMPARE(degreesText(22.6, english), QStringLiteral("23°"));
    QCOMPARE(exposureText(250000.0, english), QStringLiteral("250 ms"));
    QCOMPARE(exposureText(2500000.0, german), QStringLiteral("2,5 s"));
    QCOMPARE(exposureText(0.0, english), dash());
    QCOMPARE(durationText(42.0), QStringLiteral("0:42"));
    QCOMPARE(durationText(725.0), QStringLiteral("12:05"));
    QCOMPARE(durationText(3723.0), QStringLiteral("1:02:03"));
    QCOMPARE(durationText(-1.0), dash());
}

void AssistantTablesTest::everyAdviceHasItsOwnSentence()
{
    QSet<QString> sentences;
    for (const AdviceCode code : allCodes()) {
        const QString sentence = adviceText({code, 7.0, 90.0, "why"}, true, english);
        QVERIFY2(!sentence.isEmpty() && !sentence.contains('%'), qPrintable(sentence));
        QVERIFY2(sentence.size() <= 75, qPrintable(sentence));
        QVERIFY2(!sentences.contains(sentence), qPrintable(sentence));
        sentences.insert(sentence);
    }
}

void AssistantTablesTest::adviceCarriesItsNumber()
{
    const auto text = [](AdviceCode code, double first, bool hasBolts = true) {
        return adviceText({code, first, 0.0, "full"}, hasBolts, english);
    };
    QVERIFY(text(AdviceCode::ExposeLonger, 4.0).contains("(4)"));
    QVERIFY(text(AdviceCode::TurnFurther, 17.2).contains("17°"));
    QVERIFY(text(AdviceCode::TurnBolts, 245.0).contains("4′05″"));
    QVERIFY(text(AdviceCode::TurnBolts, 245.0, false).contains("until the arrow is gone"));
    QVERIFY(text(AdviceCode::Focus, 7.26).contains("7.3"));
    QVERIFY(text(AdviceCode::RecordingFailed, 0.0).contains("folder full"));
    QVERIFY(text(AdviceCode::CameraRefuses, 0.0).contains("camera full"));
    QVERIFY(text(AdviceCode::CameraUnusable, 0.0).endsWith(": full"));
    QCOMPARE(adviceText({AdviceCode::CameraUnusable, 0.0, 0.0, {}}, true, english),
             QStringLiteral("The camera library cannot be used."));
    QCOMPARE(moodOf(AdviceCode::Aligned), AdviceMood::Good);
    QCOMPARE(moodOf(AdviceCode::CameraLost), AdviceMood::Warning);
}

void AssistantTablesTest::ways_data()
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

void AssistantTablesTest::ways()
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

void AssistantTablesTest::arrowsPointAsAtTheMount_data()
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

void AssistantTablesTest::arrowsPointAsAtTheMount()
{
    QFETCH(int, way);
    QFETCH(bool, south);
    using recognition::Hemisphere;
    QTEST(arrowDegrees(Way(way), south ? Hemisphere::South : Hemisphere::North), "degrees");
}

void AssistantTablesTest::pulses_data()
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

void AssistantTablesTest::pulses()
{
    QFETCH(double, total);
    const Pulses found = pulsesFor(figures(total), 20.0);
    QTEST(int(found.kind), "kind");
    QTEST(found.milliseconds, "milliseconds");
    QVERIFY(pulsesFor({}, 20.0).kind == Pulses::Kind::Silent);
}

void AssistantTablesTest::pulsesComeFasterAsTheErrorShrinks()
{
    int last = 0;
    for (double total = 21.0; total < 3600.0; total *= 1.2) {
        const int now = pulsesFor(figures(total), 20.0).milliseconds;
        QVERIFY(now > last);
        last = now;
    }
}

void AssistantTablesTest::phrase_data()
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

void AssistantTablesTest::phrase()
{
    QFETCH(double, altitude);
    QFETCH(double, azimuth);
    QTEST(spokenPhrase(figures(std::hypot(altitude, azimuth), altitude, azimuth), 0.0, 20.0),
          "said");
    QVERIFY(spokenPhrase(figures(500.0), 0.0, 20.0).isEmpty());
}

void AssistantTablesTest::zoom_data()
{
    QTest::addColumn<int>("now");
    QTest::addColumn<double>("total");
    QTest::addColumn<int>("next");
    QTest::newRow("far") << 0 << 200.0 << 0;
    QTest::newRow("not yet") << 0 << 61.0 << 0;
    QTest::newRow("below a minute") << 0 << 59.0 << 1;
    QTest::newRow("stays close") << 1 << 79.0 << 1;
    QTest::newRow("opens") << 1 << 81.0 << 0;
    QTest::newRow("closer") << 1 << 14.0 << 2;
    QTest::newRow("stays closer") << 2 << 23.0 << 2;
    QTest::newRow("one step back") << 2 << 25.0 << 1;
    QTest::newRow("all at once") << 0 << 5.0 << 2;
    QTest::newRow("all the way back") << 2 << 500.0 << 0;
    QTest::newRow("no number") << 2 << noNumber << 0;
}

void AssistantTablesTest::zoom()
{
    QFETCH(int, now);
    QFETCH(double, total);
    QTEST(zoomLevel(now, total), "next");
    QCOMPARE(zoomLevel(now, {}), 0);
}

void AssistantTablesTest::zoomDoesNotFlicker()
{
    for (const double middle : {60.0, 15.0}) {
        int level = zoomLevel(0, middle - 4.0), changes = 0;
        for (int i = 0; i < 100; ++i) {
            const int next = zoomLevel(level, middle + (i % 2 == 0 ? 4.0 : -4.0));
            changes += next != level ? 1 : 0;
            level = next;
        }
        QCOMPARE(changes, 0);
    }
}

void AssistantTablesTest::wholeFrameIsCentred()
{
    const View view = wholeView({1280, 960}, {400, 400});
    QCOMPARE(view.scale, 0.3125);
    QCOMPARE(view.place(-0.5, -0.5), QPointF(0.0, 50.0));
    QCOMPARE(view.place(1279.5, 959.5), QPointF(400.0, 350.0));
}

void AssistantTablesTest::closeViewHasItsCentreAndRadius()
{
    const View view = closeView({100.0, 200.0}, 4.0, {400, 300});
    QCOMPARE(view.place(100.0, 200.0), QPointF(200.0, 150.0));
    QCOMPARE(view.place(100.0, 196.0), QPointF(200.0, 0.0));
}

void AssistantTablesTest::ellipses_data()
{
    QTest::addColumn<double>("xx");
    QTest::addColumn<double>("xy");
    QTest::addColumn<double>("yy");
    QTest::addColumn<double>("longer");
    QTest::addColumn<double>("shorter");
    QTest::addColumn<double>("degrees");
    QTest::newRow("along x") << 9.0 << 0.0 << 4.0 << 6.0 << 4.0 << 0.0;
    QTest::newRow("along y") << 4.0 << 0.0 << 9.0 << 6.0 << 4.0 << 90.0;
    QTest::newRow("down to the right") << 2.5 << 1.5 << 2.5 << 4.0 << 2.0 << 45.0;
    QTest::newRow("up to the right") << 2.5 << -1.5 << 2.5 << 4.0 << 2.0 << -45.0;
}

void AssistantTablesTest::ellipses()
{
    QFETCH(double, xx);
    QFETCH(double, xy);
    QFETCH(double, yy);
    const Ellipse found = ellipseOf({xx, xy, yy}, 2.0);
    QTEST(found.longer, "longer");
    QTEST(found.shorter, "shorter");
    QTEST(found.degrees, "degrees");
}

void AssistantTablesTest::namesAreThinned()
{
    const QRectF bounds(0, 0, 100, 100);
    const std::vector<std::vector<QRectF>> boxes{
        {{10, 10, 20, 10}}, {{20, 12, 20, 10}},
        {{60, 60, 20, 10}}, {{90, 90, 20, 10}, {70, 90, 20, 10}},
        {{40, 40, 20, 10}}, {{10, 80, 20, 10}}};
    const std::vector<QRectF> taken{{45, 35, 10, 10}};
    // The second overlaps the first, the fourth leaves the picture at its first place and has
    // another, the fifth is over a mark.
    std::vector<std::size_t> labels;
    for (const PlacedLabel &name : placedLabels(boxes, taken, bounds, 9))
        labels.push_back(name.label);
    const std::vector<std::size_t> expected{0, 2, 3, 5};
    QCOMPARE(labels, expected);
    QCOMPARE(placedLabels(boxes, taken, bounds, 9)[2].box, QRectF(70, 90, 20, 10));
    QCOMPARE(placedLabels(boxes, taken, bounds, 2).size(), std::size_t(2));
}

void AssistantTablesTest::arrowsToOutside_data()
{
    QTest::addColumn<QPointF>("target");
    QTest::addColumn<bool>("hasArrow");
    QTest::addColumn<QPointF>("tip");
    QTest::addColumn<double>("degrees");
    QTest::newRow("inside") << QPointF(50, 20) << false << QPointF() << 0.0;
    QTest::newRow("above") << QPointF(100, -50) << true << QPointF(100, 0) << 0.0;
    QTest::newRow("right") << QPointF(900, 50) << true << QPointF(200, 50) << 90.0;
    QTest::newRow("below") << QPointF(100, 250) << true << QPointF(100, 100) << 180.0;
    QTest::newRow("up left") << QPointF(0, -50) << true << QPointF(50, 0) << -45.0;
}

void AssistantTablesTest::arrowsToOutside()
{
    QFETCH(QPointF, target);
    QFETCH(QPointF, tip);
    QFETCH(double, degrees);
    const auto arrow = arrowToOutside(target, {0, 0, 200, 100});
    QTEST(arrow.has_value(), "hasArrow");
    if (!arrow)
        return;
    QVERIFY(std::hypot(arrow->tip.x() - tip.x(), arrow->tip.y() - tip.y()) < 1e-6);
    QVERIFY(std::abs(arrow->degrees - degrees) < 1e-6);
}

void AssistantTablesTest::plotIsLogarithmic()
{
    QCOMPARE(plotHeight(1.0), 0.0);
    QCOMPARE(plotHeight(36000.0), 1.0);
    QCOMPARE(plotHeight(0.0), 0.0);
    QVERIFY(std::abs(plotHeight(std::sqrt(36000.0)) - 0.5) < 1e-12);
}

void AssistantTablesTest::exposureSliderIsLogarithmic()
{
    const Range range{1000.0, 100000.0};
    QCOMPARE(sliderOf(1000.0, range), 0);
    QCOMPARE(sliderOf(10000.0, range), 500);
    QCOMPARE(sliderOf(1e9, range), 1000);
    QCOMPARE(sliderOf(0.0, range), 0);
    QVERIFY(std::abs(exposureOf(500, range) - 10000.0) < 1e-6);
    QCOMPARE(exposureOf(500, Range{}), 0.0);
}

void AssistantTablesTest::panelLeavesThePictureItsShape()
{
    QCOMPARE(panelWidth({800, 480}), 376);
    QCOMPARE(panelWidth({1366, 768}), 558);
    QCOMPARE(panelWidth({640, 480}), 330);
    QVERIFY(!isRoomy({800, 480}));
    QVERIFY(isRoomy({1366, 768}));
}

void AssistantTablesTest::redThemeHasOnlyRed()
{
    const Theme &red = theme(true);
    for (const QColor &colour : {red.well, red.window, red.panel, red.control, red.border, red.text,
                                 red.quiet, red.disabled, red.accent, red.lit, red.onAccent,
                                 red.good, red.warning, red.pole, red.axis, red.star, red.grid})
        QVERIFY2(colour.green() == 0 && colour.blue() == 0, qPrintable(colour.name()));
    QVERIFY(red.text.red() > 150);
    QVERIFY(theme(false).pole.blue() > 0);
}

void AssistantTablesTest::reddenedKeepsBrightness()
{
    QImage image(3, 1, QImage::Format_RGB32);
    image.setPixel(0, 0, qRgb(10, 200, 30));
    image.setPixel(1, 0, qRgb(0, 0, 255));
    image.setPixel(2, 0, qRgb(90, 0, 0));
    const QImage red = reddened(image);
    QCOMPARE(red.pixel(0, 0), qRgb(200, 0, 0));
    QCOMPARE(red.pixel(1, 0), qRgb(255, 0, 0));
    QCOMPARE(red.pixel(2, 0), qRgb(90, 0, 0));
}

void AssistantTablesTest::starLabels_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("label");
    QTest::newRow("Bayer's letter") << "zet Oct"
                                    << "ζ Oct";
    QTest::newRow("name") << "Polaris"
                          << "Polaris";
    QTest::newRow("letter and name") << "alp UMi, Polaris"
                                     << "Polaris";
    QTest::newRow("number") << "HD 5848"
                            << "HD 5848";
    QTest::newRow("place") << "72.261-88.271"
                           << "";
    QTest::newRow("nothing") << ""
                             << "";
}

void AssistantTablesTest::starLabels()
{
    QFETCH(QString, name);
    QTEST(starLabel(name.toStdString()), "label");
}

void AssistantTablesTest::brightSkyStays()
{
    QImage picture(64, 64, QImage::Format_RGB888);
    picture.fill(QColor(200, 200, 200));
    QCOMPARE(brightened(picture), picture);
    picture.fill(QColor(20, 20, 20));
    picture.setPixel(5, 5, qRgb(60, 60, 60));
    const QImage bright = brightened(picture);
    QVERIFY(qGreen(bright.pixel(5, 5)) > 60);
    QVERIFY(qGreen(bright.pixel(8, 8)) <= 20);
    QVERIFY(brightened(QImage()).isNull());
}

void AssistantTablesTest::displayOfAnInvalidNumberIsADash()
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

void AssistantTablesTest::displayDropsTheAxisOnceAligned()
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

void AssistantTablesTest::languagesAreThoseOfTheTable()
{
    QCOMPARE(languageNames.size(), languages.size());
    for (std::size_t i = 0; i < languages.size(); ++i)
        QCOMPARE(languageNames[i].code, languages[i].code);
}

void AssistantTablesTest::options_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("isGood");
    QTest::addColumn<double>("longitude");
    QTest::newRow("none") << QStringList{} << true << 0.0;
    QTest::newRow("site") << QStringList{"--site", "51.5,-0.25"} << true << -0.25;
    QTest::newRow("joined") << QStringList{"--site=-34,149"} << true << 149.0;
    QTest::newRow("one number") << QStringList{"--site", "51.5"} << false << 0.0;
    QTest::newRow("out of range") << QStringList{"--site", "91,0"} << false << 0.0;
    QTest::newRow("no value") << QStringList{"--site"} << false << 0.0;
    QTest::newRow("language") << QStringList{"--language", "de", "--connect"} << true << 0.0;
    QTest::newRow("no such language") << QStringList{"--language", "XX"} << false << 0.0;
    QTest::newRow("no such option") << QStringList{"--large"} << false << 0.0;
}

void AssistantTablesTest::options()
{
    QFETCH(QStringList, arguments);
    QFETCH(double, longitude);
    const assistantapp::Options found = assistantapp::parse(arguments);
    QTEST(found.fault.isEmpty(), "isGood");
    QCOMPARE(found.connects, arguments.contains("--connect"));
    if (found.site)
        QCOMPARE(found.site->longitude, longitude);
    else
        QCOMPARE(longitude, 0.0);
}

QTEST_MAIN(AssistantTablesTest)
#include "tst_assistanttables.moc"
