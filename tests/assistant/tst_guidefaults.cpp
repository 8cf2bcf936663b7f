// SPDX-License-Identifier: MIT
// Is each fault reported, is nothing wrong shown as right, and does the alignment go on?
#include "tests/assistant/guidetest.h"

#include <random>

using namespace assistant;

class GuideFaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void cloudsForAMinute();
    void badFrames_data();
    void badFrames();
    void poleOutside();
    void notThePole();
    void cameraSlipsInTheAxisStage();
    void cameraSlipsWhileTheBoltsTurn();
    void wrongHemisphere();
    void clockJumps_data();
    void clockJumps();
    void clockIsUnsure();
    void clockIsBehind_data();
    void clockIsBehind();
    void nearTheEarthsPole();
    void noFrames();
};

void GuideFaultsTest::cloudsForAMinute()
{
    const virtualsky::SkyState clear = plainNight();
    PaintedMount mount(clear, settingsFor(clear));
    QVERIFY(turnAxisAsTold(mount));
    QVERIFY(nextFigure(mount).has_value());
    virtualsky::SkyState cloudy = mount.sky();
    cloudy.clouds = 0.99;
    const double covered = mount.seconds();
    mount.setSky(cloudy);
    Status status;
    while (mount.seconds() - covered < 60.0) {
        status = mount.next();
        QVERIFY(!status.error || isTrue(status, mount));
    }
    QVERIFY(saysFirst(status, AdviceCode::Clouds));
    QVERIFY(!status.error && !status.pole);
    QVERIFY(status.axis.place.has_value()); // what is known of the axis stays
    cloudy.clouds = 0.0;
    mount.setSky(cloudy);
    const auto after = nextFigure(mount);
    QVERIFY(after && after->stage == Stage::Bolts);
    QVERIFY(isTrue(*after, mount));
}

void GuideFaultsTest::badFrames_data()
{
    QTest::addColumn<int>("fault");
    QTest::addColumn<int>("code");
    QTest::newRow("black") << 0 << int(AdviceCode::CoverOn);
    QTest::newRow("saturated") << 1 << int(AdviceCode::ExposeShorter);
    QTest::newRow("out of focus") << 2 << int(AdviceCode::Focus);
    QTest::newRow("too few stars") << 3 << int(AdviceCode::ExposeLonger);
    QTest::newRow("not the sky") << 4 << int(AdviceCode::NoSky);
}

void GuideFaultsTest::badFrames()
{
    QFETCH(int, fault);
    QFETCH(int, code);
    virtualsky::SkyState sky = plainNight();
    if (fault == 0)
        sky.picture = virtualsky::Picture::Black;
    if (fault == 1)
        sky.picture = virtualsky::Picture::Saturated;
    if (fault == 2)
        sky.fwhm = 20.0;
    if (fault == 3)
        sky.clouds = 1.0;
    const assistant::Settings settings = settingsFor(sky);
    Guide guide(settings);
    guide.setAutomaticExposure(false);
    PaintedMount mount(sky, settings);
    mount.guide().setAutomaticExposure(false);
    Status status;
    for (int i = 0; i < 6; ++i) {
        status = mount.next();
        if (fault == 4) {
            cv::Mat frame(960, 1280, CV_8UC1);
            for (int y = 0; y < frame.rows; ++y)
                for (int x = 0; x < frame.cols; ++x)
                    frame.at<std::uint8_t>(y, x) =
                        std::uint8_t(128 + 90 * ((x / 24 + y / 24) % 2) * ((x * y) % 7 > 2));
            status = guide.observe({frame, *sky.date + i, double(i), 200000.0, true});
        }
    }
    const bool said = fault == 2 ? says(status, AdviceCode::Focus) // recognised nevertheless
                                 : saysFirst(status, AdviceCode(code));
    QVERIFY2(said, qPrintable(QString::number(int(status.advice.front().code))));
    QVERIFY(!status.error);
    QVERIFY(fault == 2 || (status.stage == Stage::Sky && !status.pole));
}

void GuideFaultsTest::poleOutside()
{
    virtualsky::SkyState sky = plainNight();
    sky.boltAltitude = -6.0; // the camera looks below the pole
    sky.boltAzimuth = 0.0;
    sky.axisX = sky.axisY = 0.0;
    PaintedMount mount(sky, settingsFor(sky));
    const Status status = nextThatSays(mount, AdviceCode::PoleThatWay);
    const Advice *const advice = adviceIn(status, AdviceCode::PoleThatWay);
    QVERIFY(advice != nullptr);
    // Half the frame's height is 4.06 degrees; at a roll of 0 the pole is above.
    QVERIFY2(std::abs(advice->first - 1.95) < 0.1, qPrintable(QString::number(advice->first)));
    QVERIFY2(std::abs(advice->second) < 1.0, qPrintable(QString::number(advice->second)));
}

/// Elsewhere there are stars too.
void GuideFaultsTest::notThePole()
{
    std::mt19937 random(5);
    std::uniform_real_distribution<double> x(20.0, 1260.0), y(20.0, 940.0), light(30.0, 200.0);
    std::normal_distribution<double> noise(20.0, 2.0);
    cv::Mat frame(960, 1280, CV_8UC1);
    for (int row = 0; row < frame.rows; ++row)
        for (int column = 0; column < frame.cols; ++column)
            frame.at<std::uint8_t>(row, column) = cv::saturate_cast<std::uint8_t>(noise(random));
    for (int star = 0; star < 60; ++star) {
        const double atX = x(random), atY = y(random), peak = light(random);
        for (int row = int(atY) - 5; row <= int(atY) + 5; ++row)
            for (int column = int(atX) - 5; column <= int(atX) + 5; ++column) {
                const double off = std::hypot(column - atX, row - atY);
                std::uint8_t &pixel = frame.at<std::uint8_t>(row, column);
                pixel = cv::saturate_cast<std::uint8_t>(pixel + peak * std::exp(-off * off / 2.5));
            }
    }
    const virtualsky::SkyState sky = plainNight();
    Guide guide(settingsFor(sky));
    guide.setAutomaticExposure(false);
    Status status;
    for (int i = 0; i < 5; ++i)
        status = guide.observe({frame, *sky.date + i, double(i), 200000.0, true});
    QVERIFY(saysFirst(status, AdviceCode::NotThePole));
    QVERIFY(!status.error);
}

void GuideFaultsTest::cameraSlipsInTheAxisStage()
{
    const virtualsky::SkyState sky = plainNight(true);
    PaintedMount mount(sky, settingsFor(sky));
    nextThatSays(mount, AdviceCode::TurnAxis);
    bool reported = false;
    Status status;
    for (int i = 0; i < 90; ++i) {
        turn(mount, 0.6);
        if (i == 12) {
            virtualsky::SkyState slipped = mount.sky();
            slipped.axisX += 8.0;
            mount.setSky(slipped);
        }
        status = mount.next();
        reported = reported || says(status, AdviceCode::Bumped);
        QVERIFY(!status.error || isTrue(status, mount));
    }
    QVERIFY(reported);
    QVERIFY(isTrue(status, mount));
}

/// Nobody can tell a slip from a turned bolt before the RA axis turns again; then it is noticed and
/// the axis measured again.
void GuideFaultsTest::cameraSlipsWhileTheBoltsTurn()
{
    const virtualsky::SkyState sky = plainNight();
    PaintedMount mount(sky, settingsFor(sky));
    QVERIFY(turnAxisAsTold(mount));
    for (int i = 0; i < 10; ++i)
        mount.next();
    virtualsky::SkyState slipped = mount.sky();
    slipped.axisX += 10.0;
    mount.setSky(slipped);
    for (int i = 0; i < 10; ++i)
        mount.next();
    Status status;
    bool reported = false;
    for (int i = 0; i < 80 && !(reported && status.stage == Stage::Bolts); ++i) {
        turn(mount, 0.6);
        status = mount.next();
        reported = reported || saysFirst(status, AdviceCode::AxisSlipped);
        if (reported && status.error)
            QVERIFY(isTrue(status, mount));
    }
    QVERIFY(reported);
    QVERIFY(status.stage == Stage::Bolts);
    QVERIFY(isTrue(status, mount));
}

void GuideFaultsTest::wrongHemisphere()
{
    const virtualsky::SkyState sky = plainNight();
    assistant::Settings settings = settingsFor(sky);
    settings.site->latitude *= -1.0;
    PaintedMount mount(sky, settings);
    QVERIFY(turnAxisAsTold(mount));
    const auto status = nextFigure(mount);
    QVERIFY(status.has_value());
    QVERIFY(says(*status, AdviceCode::WrongHemisphere));
    QVERIFY(!status->error->altitude && !status->error->azimuth);
}

void GuideFaultsTest::clockJumps_data()
{
    QTest::addColumn<double>("by"); // seconds
    QTest::newRow("a day ahead") << 86400.0;
    QTest::newRow("an hour back") << -3600.0;
    QTest::newRow("a month") << 30.0 * 86400.0;
}

/// A clock that was wrong is put right while the axis is measured.
void GuideFaultsTest::clockJumps()
{
    QFETCH(double, by);
    const virtualsky::SkyState sky = plainNight();
    PaintedMount mount(sky, settingsFor(sky));
    mount.setClockError(-by);
    nextThatSays(mount, AdviceCode::TurnAxis);
    for (int i = 0; i < 12; ++i) {
        turn(mount, 0.6);
        QVERIFY(!says(mount.next(), AdviceCode::ClockJumped));
    }
    mount.setClockError(0.0);
    const Status status = mount.next();
    const Advice *const advice = adviceIn(status, AdviceCode::ClockJumped);
    QVERIFY(advice != nullptr);
    QVERIFY(std::abs(advice->first - by) < 1.0);
    QVERIFY(turnAxisAsTold(mount));
    const auto after = nextFigure(mount);
    QVERIFY(after && isTrue(*after, mount));
    QVERIFY(!says(*after, AdviceCode::Bumped));
}

void GuideFaultsTest::clockIsUnsure()
{
    const virtualsky::SkyState sky = plainNight();
    Guide guide(settingsFor(sky));
    PaintedMount mount(sky, settingsFor(sky));
    mount.next();
    const Status unsure = guide.observe({mount.lastFrame(), *sky.date, 0.0, 200000.0, false});
    QVERIFY(says(unsure, AdviceCode::ClockUnsure));
    const Status sure = guide.observe({mount.lastFrame(), *sky.date + 1.0, 1.0, 200000.0, true});
    QVERIFY(!says(sure, AdviceCode::ClockUnsure));
}

void GuideFaultsTest::clockIsBehind_data()
{
    QTest::addColumn<double>("by"); // seconds
    QTest::newRow("a day") << 86400.0;
    QTest::newRow("from 1970 on") << 1795204800.0;
}

/// A computer that keeps no time while it is off: nothing is shown against a pole of another date.
/// The axis is measured nevertheless, and once the clock is set the figures are right.
void GuideFaultsTest::clockIsBehind()
{
    QFETCH(double, by);
    const virtualsky::SkyState sky = plainNight();
    PaintedMount mount(sky, settingsFor(sky));
    mount.setClockError(-by);
    mount.setClockBehind(true);
    Status status = nextThatSays(mount, AdviceCode::TurnAxis);
    QVERIFY(says(status, AdviceCode::ClockBehind) && !says(status, AdviceCode::ClockUnsure));
    QVERIFY(turnAxisAsTold(mount));
    for (int i = 0; i < 30; ++i) {
        status = mount.next();
        QVERIFY(!status.error && !status.firstError && !status.pole);
        QVERIFY(says(status, AdviceCode::ClockBehind));
    }
    QVERIFY(saysFirst(status, AdviceCode::ClockBehind));
    mount.setClockError(0.0);
    mount.setClockBehind(false);
    const auto after = nextFigure(mount);
    QVERIFY(after && after->stage == Stage::Bolts);
    QVERIFY(isTrue(*after, mount));
    QVERIFY(!says(*after, AdviceCode::ClockBehind));
}

void GuideFaultsTest::nearTheEarthsPole()
{
    virtualsky::SkyState sky = plainNight();
    sky.latitude = 89.5;
    PaintedMount mount(sky, settingsFor(sky));
    QVERIFY(turnAxisAsTold(mount));
    const auto status = nextFigure(mount);
    QVERIFY(status.has_value());
    QVERIFY(says(*status, AdviceCode::SiteTooFarNorth));
    QVERIFY(!status->error->azimuth);
}

void GuideFaultsTest::noFrames()
{
    const virtualsky::SkyState sky = plainNight();
    PaintedMount mount(sky, settingsFor(sky));
    QVERIFY(turnAxisAsTold(mount));
    mount.silence();
    const Status status = mount.silence();
    QVERIFY(saysFirst(status, AdviceCode::CameraLost));
    QVERIFY(status.advice.front().first >= 1.9);
    QVERIFY(!status.error && !status.pole);
    QVERIFY(status.stage == Stage::Bolts);
    const auto after = nextFigure(mount);
    QVERIFY(after && isTrue(*after, mount));
}

QTEST_GUILESS_MAIN(GuideFaultsTest)
#include "tst_guidefaults.moc"
