// SPDX-License-Identifier: MIT
// Does each stage end by itself, and is what is shown true, from random starts to the end?
#include "tests/assistant/guidetest.h"

using namespace assistant;

class GuideTest : public QObject
{
    Q_OBJECT

private slots:
    void stagesEndByThemselves_data();
    void stagesEndByThemselves();
    void axisShowsBeforeItIsKnown();
    void startIsAligned();
    void axisEndsAtEnoughTurn();
    void figuresHoldWhileBoltsAndAxisMove();
    void farOffTheFiguresAreTheBolts_data();
    void farOffTheFiguresAreTheBolts();
    void refractedPoleIsAnother();
    void withoutSiteOnlyTheTotal();
    void settingsMayChange();
    void siteMayComeWhileTheAxisTurns();
    void thinCloudLeavesFigures();
    void startAgainForgetsAll();
    void exposureAdjustsItself();
};

void GuideTest::stagesEndByThemselves_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<double>("speed"); // degrees a second
    QTest::newRow("north") << false << 3.0;
    QTest::newRow("south") << true << 3.0;
    QTest::newRow("north, the other way") << false << -3.0;
    QTest::newRow("south, slowly") << true << -0.7;
}

void GuideTest::stagesEndByThemselves()
{
    QFETCH(bool, south);
    QFETCH(double, speed);
    const virtualsky::SkyState sky = plainNight(south);
    PaintedMount mount(sky, settingsFor(sky));
    Status status = mount.next();
    QVERIFY(status.stage == Stage::Sky);
    QVERIFY(!status.error && !status.axis.place);
    status = nextThatSays(mount, AdviceCode::TurnAxis);
    QVERIFY(status.stage == Stage::Axis);
    QVERIFY(status.pole.has_value());
    QVERIFY(!status.error);
    QVERIFY(turnAxisAsTold(mount, speed));
    status = mount.next();
    QVERIFY(status.stage == Stage::Bolts);
    QVERIFY(saysFirst(status, AdviceCode::StopTurning));
    QVERIFY(status.axis.enough);
    QVERIFY(status.axis.turnedDegrees >= recognition::minTurn);
    QVERIFY(status.axis.sigmaArcseconds < enoughSigma);
    QVERIFY(isTrue(status, mount));
    QVERIFY(status.firstError.has_value());
    status = nextThatSays(mount, AdviceCode::TurnBolts);
    QVERIFY(says(status, AdviceCode::TurnBolts));
}

/// After five degrees the axis is shown, and no error is computed from it.
void GuideTest::axisShowsBeforeItIsKnown()
{
    PaintedMount mount(plainNight(), settingsFor(plainNight()));
    Status status = nextThatSays(mount, AdviceCode::TurnAxis);
    for (int i = 0; i < 10; ++i) {
        virtualsky::SkyState sky = mount.sky();
        sky.raAngle += 0.5;
        mount.setSky(sky);
        status = mount.next();
    }
    QVERIFY(status.stage == Stage::Axis);
    QVERIFY(status.axis.place && status.axis.isEarly && !status.axis.enough);
    QVERIFY(status.axis.sigmaArcseconds > 0.0 && status.axis.covariance.xx > 0.0);
    QVERIFY(!status.error);
    const auto truth = *mount.truth().axis;
    const double off = std::hypot(status.axis.place->x - truth.x, status.axis.place->y - truth.y) *
                       virtualsky::pixelScale;
    QVERIFY2(off < 4.0 * status.axis.sigmaArcseconds, qPrintable(QString::number(off)));
}

/// One whole alignment; the bar over many starts: tst_guidestarts.
void GuideTest::startIsAligned()
{
    const virtualsky::SkyState sky = startingSky(100);
    PaintedMount mount(sky, settingsFor(sky));
    const AlignmentResult result = alignAsTold(mount);
    QVERIFY2(result.finished, qPrintable(QString::fromStdString(result.whyNot)));
    QVERIFY2(result.seconds - result.boltsSeconds < 60.0,
             qPrintable(QString::number(result.seconds)));
    QVERIFY2(result.trueError < 10.0, qPrintable(QString::number(result.trueError)));
}

/// Two places agree on some axis whatever happened: a third one is waited for.
void GuideTest::axisEndsAtEnoughTurn()
{
    virtualsky::SkyState sky = plainNight();
    PaintedMount mount(sky, settingsFor(sky));
    nextThatSays(mount, AdviceCode::TurnAxis);
    sky.raAngle = 40.0;
    mount.setSky(sky);
    for (int i = 0; i < 5; ++i)
        QVERIFY(mount.next().stage == Stage::Axis);
    QVERIFY(saysFirst(mount.next(), AdviceCode::TurnFurther));
    sky.raAngle = 20.0;
    mount.setSky(sky);
    QVERIFY(mount.next().stage == Stage::Bolts);
}

void GuideTest::figuresHoldWhileBoltsAndAxisMove()
{
    for (const bool tracking : {false, true}) {
        virtualsky::SkyState sky = plainNight();
        sky.tracking = tracking;
        PaintedMount mount(sky, settingsFor(sky));
        QVERIFY(turnAxisAsTold(mount));
        for (int i = 0; i < 40; ++i) {
            virtualsky::SkyState moved = mount.sky();
            if (i % 2 == 0)
                moved.boltAltitude -= 0.01;
            else
                moved.raAngle += 0.4;
            mount.setSky(moved);
            const Status status = mount.next();
            QVERIFY2(isTrue(status, mount), qPrintable(QString::number(i)));
        }
        for (int i = 0; i < 30; ++i) { // a long turn back, the bolts at rest
            virtualsky::SkyState moved = mount.sky();
            moved.raAngle -= 2.0;
            mount.setSky(moved);
            const Status status = mount.next();
            QVERIFY2(isTrue(status, mount), qPrintable(QString::number(i)));
        }
    }
}

void GuideTest::farOffTheFiguresAreTheBolts_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("altitude"); // degrees that the bolts are off
    QTest::addColumn<double>("azimuth");
    QTest::newRow("40 north") << 40.0 << 3.0 << 3.0;
    QTest::newRow("40 north, below in the west") << 40.0 << -3.0 << -4.5;
    QTest::newRow("20 north") << 20.0 << 3.0 << -4.0;
    QTest::newRow("65 north") << 65.0 << 4.0 << 5.0;
    QTest::newRow("34 south") << -34.0 << 3.0 << 3.5;
    QTest::newRow("60 south, in the west") << -60.0 << -4.0 << -5.0;
}

/// Three to five degrees off, the parts of the angle on the sky are minutes away from the bolts.
void GuideTest::farOffTheFiguresAreTheBolts()
{
    QFETCH(double, latitude);
    QFETCH(double, altitude);
    QFETCH(double, azimuth);
    virtualsky::SkyState sky = plainNight(latitude < 0.0);
    sky.latitude = latitude;
    sky.boltAltitude = altitude;
    sky.boltAzimuth = azimuth;
    PaintedMount mount(sky, settingsFor(sky));
    QVERIFY(turnAxisAsTold(mount));
    const auto status = nextFigure(mount);
    QVERIFY(status.has_value());
    const auto &[total, shownAltitude, shownAzimuth] = *status->error;
    const QString figures = QStringLiteral("%1 +- %2, %3 +- %4, total %5 +- %6")
                                .arg(shownAltitude->arcseconds)
                                .arg(shownAltitude->sigma)
                                .arg(shownAzimuth->arcseconds)
                                .arg(shownAzimuth->sigma)
                                .arg(total.arcseconds)
                                .arg(total.sigma);
    QVERIFY2(isTrue(*status, mount), qPrintable(figures));
    QVERIFY2(shownAltitude->sigma < 8.0 && total.sigma < 8.0, qPrintable(figures));
}

void GuideTest::refractedPoleIsAnother()
{
    const virtualsky::SkyState sky = plainNight();
    assistant::Settings settings = settingsFor(sky);
    settings.target = recognition::PoleTarget::Refracted;
    PaintedMount mount(sky, settings);
    QVERIFY(turnAxisAsTold(mount));
    const auto status = nextFigure(mount);
    QVERIFY(status.has_value());
    const virtualsky::Truth truth = mount.truth();
    QVERIFY(std::hypot(status->pole->x - truth.refractedPole->x,
                       status->pole->y - truth.refractedPole->y) < 0.1);
    // At 40 degrees of altitude the air lifts by about 69".
    const double lift = sky.boltAltitude * 3600.0 - status->error->altitude->arcseconds;
    QVERIFY2(lift > 64.0 && lift < 74.0, qPrintable(QString::number(lift)));
}

void GuideTest::withoutSiteOnlyTheTotal()
{
    virtualsky::SkyState sky = plainNight();
    assistant::Settings settings = settingsFor(sky);
    settings.site.reset();
    PaintedMount mount(sky, settings);
    QVERIFY(turnAxisAsTold(mount));
    const auto status = nextFigure(mount);
    QVERIFY(status.has_value());
    QVERIFY(says(*status, AdviceCode::SiteMissing));
    QVERIFY(!status->error->altitude && !status->error->azimuth);
    const virtualsky::Truth truth = mount.truth();
    const double total =
        virtualsky::pixelScale *
        std::hypot(truth.axis->x - truth.refractedPole->x, truth.axis->y - truth.refractedPole->y);
    QVERIFY(std::abs(status->error->total.arcseconds - total) <
            4.0 * status->error->total.sigma + 0.01 * total);
}

void GuideTest::settingsMayChange()
{
    const virtualsky::SkyState sky = plainNight(true);
    assistant::Settings settings = settingsFor(sky);
    const auto site = settings.site;
    settings.site.reset();
    PaintedMount mount(sky, settings);
    QVERIFY(turnAxisAsTold(mount));
    QVERIFY(!nextFigure(mount)->error->altitude);
    settings.site = site;
    mount.guide().setSettings(settings);
    const auto status = nextFigure(mount);
    QVERIFY(status && status->stage == Stage::Bolts);
    QVERIFY(isTrue(*status, mount));
}

void GuideTest::siteMayComeWhileTheAxisTurns()
{
    const virtualsky::SkyState sky = plainNight();
    assistant::Settings settings = settingsFor(sky);
    const auto site = settings.site;
    settings.site.reset();
    PaintedMount mount(sky, settings);
    nextThatSays(mount, AdviceCode::TurnAxis);
    for (int i = 0; i < 12; ++i) {
        virtualsky::SkyState turned = mount.sky();
        turned.raAngle += 0.6;
        mount.setSky(turned);
        mount.next();
    }
    settings.site = site;
    mount.guide().setSettings(settings);
    QVERIFY(!says(mount.next(), AdviceCode::Bumped));
    QVERIFY(turnAxisAsTold(mount));
    const auto status = nextFigure(mount);
    QVERIFY(status && isTrue(*status, mount));
    const double first = status->firstError->total.arcseconds;
    settings.language = QStringLiteral("DE"); // nothing that the sky depends on
    mount.guide().setSettings(settings);
    const Status after = mount.next();
    QVERIFY(after.error.has_value());
    QCOMPARE(after.firstError->total.arcseconds, first);
}

/// Eight to fourteen stars, that the whole frame's search may or may not recognise.
void GuideTest::thinCloudLeavesFigures()
{
    const virtualsky::SkyState sky = plainNight();
    PaintedMount mount(sky, settingsFor(sky));
    QVERIFY(turnAxisAsTold(mount));
    virtualsky::SkyState cloudy = mount.sky();
    cloudy.clouds = 0.95;
    mount.setSky(cloudy);
    int figures = 0;
    std::size_t most = 0;
    constexpr int frames = 40;
    for (int i = 0; i < frames; ++i) {
        const Status status = mount.next();
        if (!status.error)
            continue;
        ++figures;
        most = std::max(most, status.sky->matched.size());
        QVERIFY2(isTrue(status, mount), qPrintable(QString::number(i)));
    }
    QVERIFY2(figures > frames * 3 / 4, qPrintable(QString::number(figures)));
    qInfo("at most %zu stars, %d figures of %d", most, figures, frames);
}

void GuideTest::startAgainForgetsAll()
{
    const virtualsky::SkyState sky = plainNight();
    PaintedMount mount(sky, settingsFor(sky));
    QVERIFY(turnAxisAsTold(mount));
    QVERIFY(nextFigure(mount).has_value());
    mount.guide().startAgain();
    const Status status = mount.next();
    QVERIFY(status.stage == Stage::Sky);
    QVERIFY(!status.error && !status.firstError && !status.axis.place);
    QVERIFY(turnAxisAsTold(mount));
}

void GuideTest::exposureAdjustsItself()
{
    virtualsky::SkyState sky = plainNight();
    PaintedMount mount(sky, settingsFor(sky));
    mount.setExposure(5000.0);
    Status status = mount.next();
    QVERIFY(status.sky->status != recognition::RecognitionStatus::Recognised);
    status = nextThatSays(mount, AdviceCode::TurnAxis, 40);
    QVERIFY(status.stage == Stage::Axis);
    for (int i = 0; i < 30; ++i)
        status = mount.next();
    QVERIFY(status.exposureMicroseconds > 5000.0);
    QVERIFY(status.sky->matched.size() >= enoughStars);
    QVERIFY(status.automaticExposure);
    mount.guide().setAutomaticExposure(false);
    mount.setExposure(5000.0);
    for (int i = 0; i < 5; ++i)
        status = mount.next();
    QCOMPARE(status.exposureMicroseconds, 5000.0);
    QVERIFY(!status.automaticExposure);
}

QTEST_GUILESS_MAIN(GuideTest)
#include "tst_guide.moc"
