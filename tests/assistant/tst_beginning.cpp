// SPDX-License-Identifier: MIT
// Does the error before stay that of the beginning, whatever changes afterwards?
#include "tests/assistant/guidetest.h"

using namespace assistant;

class BeginningTest : public QObject
{
    Q_OBJECT

private slots:
    void staysThroughChanges_data();
    void staysThroughChanges();
    void refractedPole();
    void clockIsSet();
    void slipKeepsIt();
    void startAgainForgetsIt();

private:
    static void lowerAltitude(MountOnSky &mount, double degrees)
    {
        virtualsky::SkyState sky = mount.sky();
        sky.boltAltitude -= degrees;
        mount.setSky(sky);
    }
    /// Whether the error before is that of the bolts as they were, within four standard errors and
    /// half an arcsecond.
    static bool isOf(const virtualsky::SkyState &began, const Status &status, double lifted = 0.0)
    {
        if (!status.firstError || !status.firstError->altitude || !status.firstError->azimuth)
            return false;
        const auto agrees = [](const recognition::Measured &shown, double real) {
            return std::abs(shown.arcseconds - real) <= 4.0 * shown.sigma + 0.5;
        };
        return agrees(*status.firstError->altitude, began.boltAltitude * 3600.0 - lifted) &&
               agrees(*status.firstError->azimuth, began.boltAzimuth * 3600.0);
    }
};

void BeginningTest::staysThroughChanges_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<bool>("siteAtFirst");
    QTest::addColumn<double>("pressureAtFirst"); // hectopascals; the sky's are 1013
    QTest::newRow("nothing changes") << false << true << 1013.25;
    QTest::newRow("the site comes later") << false << false << 1013.25;
    QTest::newRow("the site comes later, south") << true << false << 1013.25;
    QTest::newRow("the pressure is put right") << false << true << 0.0;
}

/// The bolts are turned meanwhile, and the sky moved on.
void BeginningTest::staysThroughChanges()
{
    QFETCH(bool, south);
    QFETCH(bool, siteAtFirst);
    QFETCH(double, pressureAtFirst);
    const virtualsky::SkyState sky = plainNight(south);
    const assistant::Settings right = settingsFor(sky);
    assistant::Settings atFirst = right;
    atFirst.pressure = pressureAtFirst;
    if (!siteAtFirst)
        atFirst.site.reset();
    PaintedMount mount(sky, atFirst);
    QVERIFY(turnAxisAsTold(mount));
    QVERIFY(nextFigure(mount).has_value());
    mount.wait(600.0);
    lowerAltitude(mount, 0.2);
    QVERIFY(nextFigure(mount).has_value());
    mount.guide().setSettings(right);
    const auto status = nextFigure(mount);
    QVERIFY(status && isTrue(*status, mount));
    QVERIFY2(isOf(sky, *status), qPrintable(QStringLiteral("%1, %2")
                                                .arg(status->firstError->altitude->arcseconds)
                                                .arg(status->firstError->azimuth->arcseconds)));
}

void BeginningTest::refractedPole()
{
    const virtualsky::SkyState sky = plainNight();
    assistant::Settings settings = settingsFor(sky);
    PaintedMount mount(sky, settings);
    QVERIFY(turnAxisAsTold(mount));
    QVERIFY(isOf(sky, *nextFigure(mount)));
    settings.target = recognition::PoleTarget::Refracted;
    mount.guide().setSettings(settings);
    const Status status = mount.next();
    QVERIFY(status.aim.pole == Aim::Pole::Refracted);
    QVERIFY(isOf(sky, status, 69.0)); // the lift at 40 degrees of altitude
    QVERIFY(!isOf(sky, status));
}

/// The clock is an hour ahead at first. Then 15 degrees of turn separate the two splits.
void BeginningTest::clockIsSet()
{
    virtualsky::SkyState sky = plainNight();
    sky.refraction = false;
    assistant::Settings settings = settingsFor(sky);
    PaintedMount mount(sky, settings);
    mount.setClockError(3600.0);
    QVERIFY(turnAxisAsTold(mount));
    const auto wrong = nextFigure(mount);
    QVERIFY(wrong && !isOf(sky, *wrong));
    lowerAltitude(mount, 0.2);
    mount.setClockError(0.0);
    const auto status = nextFigure(mount);
    QVERIFY(status && says(*status, AdviceCode::ClockJumped));
    QVERIFY(isOf(sky, *status));
}

void BeginningTest::slipKeepsIt()
{
    const virtualsky::SkyState sky = plainNight();
    PaintedMount mount(sky, settingsFor(sky));
    QVERIFY(turnAxisAsTold(mount));
    QVERIFY(nextFigure(mount).has_value());
    lowerAltitude(mount, 0.2);
    for (int i = 0; i < 10; ++i)
        mount.next();
    virtualsky::SkyState slipped = mount.sky();
    slipped.axisX += 40.0;
    mount.setSky(slipped);
    Status status;
    bool reported = false;
    for (int i = 0; i < 80 && !(reported && status.stage == Stage::Bolts); ++i) {
        virtualsky::SkyState turned = mount.sky();
        turned.raAngle += 0.6;
        mount.setSky(turned);
        status = mount.next();
        reported = reported || saysFirst(status, AdviceCode::AxisSlipped);
        QVERIFY(!reported || isOf(sky, status)); // while it is measured again, too
    }
    QVERIFY(reported && status.stage == Stage::Bolts);
    for (int i = 0; i < 20; ++i) { // further turning improves the new axis, not the old one
        virtualsky::SkyState turned = mount.sky();
        turned.raAngle += 1.5;
        mount.setSky(turned);
        status = mount.next();
    }
    QVERIFY(isTrue(status, mount));
    QVERIFY(isOf(sky, status));
}

void BeginningTest::startAgainForgetsIt()
{
    const virtualsky::SkyState sky = plainNight();
    PaintedMount mount(sky, settingsFor(sky));
    QVERIFY(turnAxisAsTold(mount));
    QVERIFY(nextFigure(mount).has_value());
    lowerAltitude(mount, 0.2);
    const virtualsky::SkyState lowered = mount.sky();
    mount.guide().startAgain();
    QVERIFY(!mount.next().firstError);
    QVERIFY(turnAxisAsTold(mount));
    QVERIFY(isOf(lowered, *nextFigure(mount)));
}

QTEST_GUILESS_MAIN(BeginningTest)
#include "tst_beginning.moc"
