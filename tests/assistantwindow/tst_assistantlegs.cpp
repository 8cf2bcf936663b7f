// SPDX-License-Identifier: MIT
// Do the two legs in the picture show where each bolt of the virtual mount moves the pole, and does
// the picture draw them?
#include "assistantwindow/boltlegs.h"
#include "assistantwindow/marks.h"
#include "assistantwindow/theme.h"
#include "core/languages.h"
#include "tests/assistantwindow/drawing.h"
#include "tests/assistantwindow/madestatus.h"
#include "tests/support/paintedtexts.h"
#include "virtualcamera/truth.h"

#include <QPainter>
#include <QtTest>

using assistantwindow::BoltLegs;
using recognition::PixelPlace;

namespace
{
/// What the guide would say of a sky: axis and pole by the virtual mount's truth.
assistant::Status statusOf(const virtualsky::SkyState &sky)
{
    using namespace skyframes;
    assistant::Status status;
    const virtualsky::Truth truth = virtualsky::truth(sky, november2026);
    status.utcSeconds = november2026;
    status.sky = std::make_shared<recognition::Recognition>(
        recognised(frameOf(sky, november2026, 1), november2026));
    status.axis.place = PixelPlace{truth.axis->x, truth.axis->y};
    status.pole = PixelPlace{truth.pole->x, truth.pole->y};
    status.error = madestatus::figuresOf({truth.altitudeError, truth.azimuthError}, true);
    return status;
}

virtualsky::SkyState offSky(bool south, double roll)
{
    virtualsky::SkyState sky = skyframes::skyOf(south, skyframes::november2026);
    sky.boltAltitude = 0.5;
    sky.boltAzimuth = -0.6;
    sky.roll = roll;
    return sky;
}

double distance(const PixelPlace &a, const PixelPlace &b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}
} // namespace

class AssistantLegsTest : public QObject
{
    Q_OBJECT

private slots:
    void legsAreTheBoltsWays_data();
    void legsAreTheBoltsWays();
    void noneWithoutSiteOrFigures();
    void pictureShowsBoth();
    void arrowHeadsPointAlongTheirLegs();
    void legsAreNamed_data();
    void legsAreNamed();
    void shortLegShowsItsDirection();
};

void AssistantLegsTest::legsAreTheBoltsWays_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<double>("roll");
    QTest::newRow("north") << false << 0.0;
    QTest::newRow("north, rolled") << false << 130.0;
    QTest::newRow("south") << true << 0.0;
    QTest::newRow("south, rolled") << true << -75.0;
}

/// The camera stands on the mount: a bolt that takes its leg away moves the pole in the picture by
/// that leg, towards the axis.
void AssistantLegsTest::legsAreTheBoltsWays()
{
    QFETCH(bool, south);
    QFETCH(double, roll);
    const virtualsky::SkyState sky = offSky(south, roll);
    const assistant::Status status = statusOf(sky);
    QVERIFY(status.sky->status == recognition::RecognitionStatus::Recognised);
    const auto legs =
        assistantwindow::boltLegs(status, astrometry::Site{sky.latitude, sky.longitude});
    QVERIFY(legs.has_value());
    const double both = distance(legs->axis, legs->pole);
    const auto poleWith = [&](double altitude, double azimuth) {
        virtualsky::SkyState turned = sky;
        turned.boltAltitude = altitude;
        turned.boltAzimuth = azimuth;
        const virtualsky::Truth truth = virtualsky::truth(turned, skyframes::november2026);
        return PixelPlace{truth.pole->x, truth.pole->y};
    };
    const PixelPlace byAltitude{legs->pole.x - (legs->corner.x - legs->axis.x),
                                legs->pole.y - (legs->corner.y - legs->axis.y)};
    const PixelPlace byAzimuth{legs->pole.x - (legs->pole.x - legs->corner.x),
                               legs->pole.y - (legs->pole.y - legs->corner.y)};
    QVERIFY2(distance(byAltitude, poleWith(0.0, sky.boltAzimuth)) < 0.05 * both,
             qPrintable(QString::number(distance(byAltitude, poleWith(0.0, sky.boltAzimuth)))));
    QVERIFY2(distance(byAzimuth, poleWith(sky.boltAltitude, 0.0)) < 0.05 * both,
             qPrintable(QString::number(distance(byAzimuth, poleWith(sky.boltAltitude, 0.0)))));
    QVERIFY(distance(legs->corner, legs->axis) > 0.3 * both);
    QVERIFY(distance(legs->corner, legs->pole) > 0.3 * both);
}

void AssistantLegsTest::noneWithoutSiteOrFigures()
{
    assistant::Status status = statusOf(offSky(false, 0.0));
    QVERIFY(!assistantwindow::boltLegs(status, {}));
    status.error->azimuth.reset();
    QVERIFY(!assistantwindow::boltLegs(status, astrometry::Site{40.0, 116.0}));
}

void AssistantLegsTest::pictureShowsBoth()
{
    const assistant::Status status = statusOf(offSky(false, 0.0));
    const auto legs = assistantwindow::boltLegs(status, astrometry::Site{40.0, 116.0});
    const assistantwindow::Theme &colours = assistantwindow::theme(false);
    const auto count = [&](const std::optional<BoltLegs> &shown, const QColor &colour) {
        QImage image(1280, 960, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        assistantwindow::paintMarks(painter, status, shown, {}, QRectF(image.rect()), colours);
        painter.end();
        int found = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                found += image.pixelColor(x, y) == colour ? 1 : 0;
        return found;
    };
    for (const QColor &colour : {colours.altitude, colours.azimuth}) {
        QVERIFY(count(legs, colour) > 40);
        QCOMPARE(count({}, colour), 0);
    }
}

/// From the axis to the pole, by the corner.
void AssistantLegsTest::arrowHeadsPointAlongTheirLegs()
{
    const assistant::Status status = statusOf(offSky(false, 30.0));
    const auto legs = assistantwindow::boltLegs(status, astrometry::Site{40.0, 116.0});
    QVERIFY(legs.has_value());
    const auto placeOf = [](const PixelPlace &place) {
        return QPointF(place.x + 0.5, place.y + 0.5);
    };
    const struct {
        QColor assistantwindow::Theme::*ink;
        QPointF from, to;
    } all[] = {{&assistantwindow::Theme::altitude, placeOf(legs->axis), placeOf(legs->corner)},
               {&assistantwindow::Theme::azimuth, placeOf(legs->corner), placeOf(legs->pole)}};
    for (const auto &leg : all) {
        const assistantwindow::Theme colours = drawing::only(leg.ink);
        QImage image(1280, 960, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        assistantwindow::paintMarks(painter, status, legs, {}, QRectF(image.rect()), colours);
        painter.end();
        const QPointF way = leg.to - leg.from;
        const QPointF unit = way / std::hypot(way.x(), way.y()), across(-unit.y(), unit.x());
        for (const double side : {-1.0, 1.0}) {
            QVERIFY(drawing::light(image, leg.to - unit * 5.5 + across * (side * 4.0)) > 90);
            QVERIFY(drawing::light(image, leg.to + unit * 4.0 + across * (side * 4.0)) < 40);
        }
    }
}

void AssistantLegsTest::legsAreNamed_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("altitude");
    QTest::addColumn<QString>("azimuth");
    QTest::newRow("English") << "EN"
                             << "Altitude"
                             << "Azimuth";
    QTest::newRow("Russian") << "RU"
                             << "Высота"
                             << "Азимут";
    QTest::newRow("Chinese") << "ZH"
                             << "高度"
                             << "方位";
}

/// In the language of the figures beside the picture.
void AssistantLegsTest::legsAreNamed()
{
    QFETCH(QString, code);
    QFETCH(QString, altitude);
    QFETCH(QString, azimuth);
    Q_INIT_RESOURCE(assistant_catalogues);
    QVERIFY(installTranslator("assistant", languageOf(code)));
    const assistant::Status status = statusOf(offSky(false, 30.0));
    const auto legs = assistantwindow::boltLegs(status, astrometry::Site{40.0, 116.0});
    const assistantwindow::Theme &colours = assistantwindow::theme(false);
    TextKeeper keeper({1280, 960});
    QPainter painter(&keeper);
    assistantwindow::paintMarks(painter, status, legs, {}, {0.0, 0.0, 1280.0, 960.0}, colours);
    painter.end();
    QVERIFY(installTranslator("assistant", languages.front()));
    const auto textIn = [&keeper](const QColor &colour) {
        QString text;
        for (const PaintedText &each : keeper.texts)
            if (each.colour == colour)
                text += each.text;
        return text;
    };
    QCOMPARE(textIn(colours.altitude), altitude);
    QCOMPARE(textIn(colours.azimuth), azimuth);
}

void AssistantLegsTest::shortLegShowsItsDirection()
{
    using assistantwindow::shownLeg;
    const QLineF longLeg(10.0, 20.0, 10.0, 90.0);
    QCOMPARE(shownLeg(longLeg), longLeg);
    const QLineF axis = shownLeg({10.0, 20.0, 10.0, 25.0});
    QCOMPARE(axis.p1(), QPointF(10.0, 20.0));
    QVERIFY(axis.length() > 30.0 && std::abs(axis.dx()) < 1e-9 && axis.dy() > 0.0);
    QVERIFY(shownLeg({10.0, 20.0, 10.0, 21.0}).isNull());
}

QTEST_MAIN(AssistantLegsTest)
#include "tst_assistantlegs.moc"
