// SPDX-License-Identifier: MIT
// What do the window's labels say in each state and fault, and is no number shown that is not
// right?
#include "assistantwindow/assistantresources.h"
#include "tests/assistant/guidetest.h"
#include "tests/assistantwindow/windowedguide.h"

using assistant::AdviceCode;
using assistant::Stage;
using assistant::Status;

namespace
{
/// A frame each five seconds of an interval in which nothing is to be seen.
Status waitFor(WindowedGuide &guide, double seconds)
{
    const double end = guide.seconds() + seconds;
    Status status;
    while (guide.seconds() < end) {
        guide.mount().wait(5.0);
        status = guide.next();
    }
    return status;
}

bool numberComes(WindowedGuide &guide, int frames = 50)
{
    for (int i = 0; i < frames; ++i) {
        guide.next();
        if (guide.showsNumber())
            return true;
    }
    return false;
}

void turn(WindowedGuide &guide, double degrees)
{
    virtualsky::SkyState sky = guide.sky();
    sky.raAngle += degrees;
    guide.setSky(sky);
}

QByteArray told(const WindowedGuide &guide)
{
    return guide.troubles.join('\n').toUtf8();
}
} // namespace

class AssistantLabelsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseAssistantResources(); }
    void signsAreTheBolts_data();
    void signsAreTheBolts();
    void withoutSiteTotalAlone();
    void axisShowsItsUncertainty();
    void cloudsForAMinute();
    void noFramesForAMinute();
    void bumpWhileTheAxisTurns();
    void cameraSlips();
    void wrongHemisphereInTheSite();
    void clockIsADayBehind();
    void clockIsUnsynchronised_data();
    void clockIsUnsynchronised();
    void clockIsSet();
};

void AssistantLabelsTest::signsAreTheBolts_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<double>("altitude"); // degrees
    QTest::addColumn<double>("azimuth");
    QTest::newRow("north, above and west") << false << 0.3 << -0.4;
    QTest::newRow("north, below and east") << false << -0.5 << 0.2;
    QTest::newRow("south, above and east") << true << 0.4 << 0.3;
    QTest::newRow("south, below and west") << true << -0.2 << -0.6;
}

/// Altitude positive: axis above the pole; azimuth positive: east of it, in both hemispheres.
void AssistantLabelsTest::signsAreTheBolts()
{
    QFETCH(bool, south);
    QFETCH(double, altitude);
    QFETCH(double, azimuth);
    virtualsky::SkyState sky = plainNight(south);
    sky.boltAltitude = altitude;
    sky.boltAzimuth = azimuth;
    WindowedGuide guide(sky, settingsFor(sky));
    QVERIFY(!guide.showsNumber());
    QVERIFY(turnAxisAsTold(guide) && numberComes(guide));
    const auto shownAltitude = guide.number("label_altitudeError");
    const auto shownAzimuth = guide.number("label_azimuthError");
    QVERIFY(shownAltitude && shownAzimuth);
    QCOMPARE(*shownAltitude > 0.0, altitude > 0.0);
    QCOMPARE(*shownAzimuth > 0.0, azimuth > 0.0);
    QVERIFY(std::abs(*shownAltitude - altitude * 3600.0) < 30.0);
    QVERIFY(std::abs(*shownAzimuth - azimuth * 3600.0) < 40.0);
    QVERIFY(*guide.number("label_totalError") >= 0.0);
    QVERIFY2(guide.troubles.isEmpty(), told(guide));
}

void AssistantLabelsTest::withoutSiteTotalAlone()
{
    const virtualsky::SkyState sky = plainNight();
    assistant::Settings settings = settingsFor(sky);
    settings.site.reset();
    WindowedGuide guide(sky, settings);
    // Without a site the pole is the one that the air shows.
    guide.watchesTruth = false;
    QVERIFY(turnAxisAsTold(guide) && numberComes(guide));
    QVERIFY(!guide.number("label_altitudeError") && !guide.number("label_azimuthError"));
    const double refraction = 90.0; // arcseconds, at most, at this altitude of the pole
    QVERIFY(std::abs(*guide.number("label_totalError") - guide.truth().poleError) < refraction);
    QVERIFY(guide.text("label_uncertainty").startsWith("± "));
    QVERIFY(guide.label("label_noSite").isVisible());
    Status status; // what concerns the axis comes first, for a while
    for (int i = 0; i < 40 && !guide.saysOrHints(status, AdviceCode::SiteMissing); ++i)
        status = guide.next();
    QVERIFY(guide.saysOrHints(status, AdviceCode::SiteMissing));
    QVERIFY2(guide.troubles.isEmpty(), told(guide));
}

/// A dash until the axis can be computed; then it shrinks, and the errors stay dashes.
void AssistantLabelsTest::axisShowsItsUncertainty()
{
    const virtualsky::SkyState sky = plainNight();
    WindowedGuide guide(sky, settingsFor(sky));
    Status status = nextThatSays(guide, AdviceCode::TurnAxis);
    QVERIFY(guide.says(status, AdviceCode::TurnAxis));
    QCOMPARE(guide.text("label_uncertainty"), assistantwindow::dash());
    const auto shownFor = [&](std::optional<recognition::PixelPlace> place, double sigma) {
        status.axis.place = place;
        status.axis.sigmaArcseconds = sigma;
        guide.show(status);
        return guide.text("label_uncertainty");
    };
    QCOMPARE(shownFor(recognition::PixelPlace{600.0, 500.0}, 12.34), QStringLiteral("± 12.3″"));
    QTRY_VERIFY(guide.label("label_uncertainty").isVisible());
    QCOMPARE(shownFor(recognition::PixelPlace{600.0, 500.0}, 4.0), QStringLiteral("± 4.0″"));
    QCOMPARE(shownFor({}, 4.0), assistantwindow::dash());
    QVERIFY(!guide.showsNumber());
    QVERIFY2(guide.troubles.isEmpty(), told(guide));
}

void AssistantLabelsTest::cloudsForAMinute()
{
    const virtualsky::SkyState clear = plainNight();
    WindowedGuide guide(clear, settingsFor(clear));
    QVERIFY(turnAxisAsTold(guide) && numberComes(guide));
    virtualsky::SkyState cloudy = guide.sky();
    cloudy.clouds = 0.99;
    guide.setSky(cloudy);
    const Status status = waitFor(guide, 60.0);
    QVERIFY(guide.says(status, AdviceCode::Clouds));
    QVERIFY(!guide.showsNumber() && !guide.number("label_altitudeError"));
    QCOMPARE(guide.text("label_uncertainty"), assistantwindow::dash());
    guide.setSky(clear);
    turn(guide, cloudy.raAngle - clear.raAngle);
    QVERIFY(numberComes(guide));
    QVERIFY(guide.number("label_altitudeError").has_value());
    QVERIFY2(guide.troubles.isEmpty(), told(guide));
}

void AssistantLabelsTest::noFramesForAMinute()
{
    const virtualsky::SkyState sky = plainNight(true);
    WindowedGuide guide(sky, settingsFor(sky));
    QVERIFY(turnAxisAsTold(guide) && numberComes(guide));
    Status status;
    for (int second = 0; second < 60; ++second) {
        status = guide.silence();
        QVERIFY(second < 2 || !guide.showsNumber());
    }
    QVERIFY(guide.says(status, AdviceCode::CameraLost));
    QVERIFY2(guide.text("label_advice").contains("60"), qPrintable(guide.text("label_advice")));
    QVERIFY(numberComes(guide));
    QVERIFY2(guide.troubles.isEmpty(), told(guide));
}

void AssistantLabelsTest::bumpWhileTheAxisTurns()
{
    const virtualsky::SkyState sky = plainNight();
    WindowedGuide guide(sky, settingsFor(sky));
    nextThatSays(guide, AdviceCode::TurnAxis);
    bool said = false;
    for (int i = 0; i < 100; ++i) {
        turn(guide, 0.6);
        if (i == 12) {
            virtualsky::SkyState moved = guide.sky();
            moved.boltAltitude += 0.1;
            guide.setSky(moved);
        }
        const Status status = guide.next();
        if (!said && guide.says(status, AdviceCode::Bumped)) {
            said = true;
            QVERIFY(!guide.showsNumber());
        }
    }
    QVERIFY(said);
    QVERIFY(guide.showsNumber());
    QVERIFY2(guide.troubles.isEmpty(), told(guide));
}

/// Nobody can tell a slip from a turned bolt before the RA axis turns again; from then on no wrong
/// number is shown.
void AssistantLabelsTest::cameraSlips()
{
    const virtualsky::SkyState sky = plainNight();
    WindowedGuide guide(sky, settingsFor(sky));
    QVERIFY(turnAxisAsTold(guide) && numberComes(guide));
    virtualsky::SkyState slipped = guide.sky();
    slipped.axisX += 10.0;
    guide.setSky(slipped);
    guide.watchesTruth = false;
    for (int i = 0; i < 80 && !(guide.watchesTruth && guide.showsNumber()); ++i) {
        turn(guide, 0.6);
        const Status status = guide.next();
        if (guide.watchesTruth || !guide.says(status, AdviceCode::AxisSlipped))
            continue;
        guide.watchesTruth = true;
        QVERIFY(!guide.showsNumber());
        QCOMPARE(guide.text("label_azimuthError"), assistantwindow::dash());
    }
    QVERIFY(guide.watchesTruth && guide.showsNumber());
    QVERIFY2(guide.troubles.isEmpty(), told(guide));
}

void AssistantLabelsTest::wrongHemisphereInTheSite()
{
    const virtualsky::SkyState sky = plainNight();
    assistant::Settings settings = settingsFor(sky);
    settings.site->latitude *= -1.0;
    WindowedGuide guide(sky, settings);
    guide.watchesTruth = false; // the air of the site is not that of the sky
    QVERIFY(turnAxisAsTold(guide) && numberComes(guide));
    const Status status = guide.next();
    QVERIFY(guide.saysOrHints(status, AdviceCode::WrongHemisphere));
    QVERIFY(!guide.number("label_altitudeError") && !guide.number("label_azimuthError"));
    QVERIFY2(guide.troubles.isEmpty(), told(guide));
}

void AssistantLabelsTest::clockIsADayBehind()
{
    const virtualsky::SkyState sky = plainNight();
    WindowedGuide guide(sky, settingsFor(sky));
    guide.mount().setClockError(-86400.0);
    guide.mount().setClockBehind(true);
    QVERIFY(turnAxisAsTold(guide));
    Status status;
    for (int i = 0; i < 30; ++i) {
        status = guide.next();
        QVERIFY(!guide.showsNumber());
    }
    QVERIFY(guide.says(status, AdviceCode::ClockBehind));
    guide.mount().setClockError(0.0);
    guide.mount().setClockBehind(false);
    QVERIFY(numberComes(guide));
    status = guide.next();
    QVERIFY(!guide.saysOrHints(status, AdviceCode::ClockBehind));
    QVERIFY2(guide.troubles.isEmpty(), told(guide));
}

void AssistantLabelsTest::clockIsUnsynchronised_data()
{
    QTest::addColumn<double>("by"); // seconds
    QTest::newRow("right") << 0.0;
    QTest::newRow("a day ahead") << 86400.0;
}

/// What is shown may be turned about the pole, and the hint says by how much; the total is right.
void AssistantLabelsTest::clockIsUnsynchronised()
{
    QFETCH(double, by);
    const virtualsky::SkyState sky = plainNight();
    WindowedGuide guide(sky, settingsFor(sky));
    guide.mount().setClockError(by);
    guide.mount().setClockSynchronised(false);
    guide.watchesTruth = by == 0.0;
    QVERIFY(turnAxisAsTold(guide) && numberComes(guide));
    for (int i = 0; i < 40; ++i) {
        const Status status = guide.next();
        QVERIFY(guide.showsNumber());
        QVERIFY(i < 30 || guide.saysOrHints(status, AdviceCode::ClockUnsure));
        const double off = *guide.number("label_totalError") - guide.truth().poleError;
        const double sigma = *guide.number("label_totalError", "sigma");
        QVERIFY2(std::abs(off) < 4.0 * sigma + 0.5, qPrintable(QString::number(off)));
    }
    QVERIFY2(guide.troubles.isEmpty(), told(guide));
}

void AssistantLabelsTest::clockIsSet()
{
    const virtualsky::SkyState sky = plainNight();
    WindowedGuide guide(sky, settingsFor(sky));
    guide.mount().setClockError(-86400.0);
    nextThatSays(guide, AdviceCode::TurnAxis);
    guide.mount().setClockError(0.0);
    const Status status = guide.next();
    QVERIFY(guide.saysOrHints(status, AdviceCode::ClockJumped));
    QVERIFY(turnAxisAsTold(guide) && numberComes(guide));
    QVERIFY2(guide.troubles.isEmpty(), told(guide));
}

QTEST_MAIN(AssistantLabelsTest)
#include "tst_assistantlabels.moc"
