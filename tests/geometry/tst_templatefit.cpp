// SPDX-License-Identifier: MIT
// Is a misplaced template distinguished from a correct one, on the real stars of both poles?
#include "geometry/starcatalogue.h"
#include "geometry/templaterings.h"
#include "resources/resources.h"
#include "tests/geometry/geometrytest.h"
#include "tools/practicesky.h"
#include "virtualcamera/scene.h"
#include "virtualcamera/sensor.h"
#include "virtualcamera/truth.h"

#include <QDate>
#include <QFileInfo>
#include <QtMath>
#include <map>
#include <opencv2/core.hpp>

namespace
{
const QSize frameSize(1280, 960);

const StarCatalogue &catalogue(bool south)
{
    return south ? southCatalogue : northCatalogue;
}

double direction(QPointF way)
{
    return qRadiansToDegrees(std::atan2(way.y(), way.x()));
}

/// The template on two stars of the frame.
TemplatePlace placeOn(QPointF starA, QPointF starB, bool south)
{
    const StarCatalogue &c = catalogue(south);
    const QPointF onTemplate(c.starAX - c.starBX, c.starAY - c.starBY);
    return {starB, direction(starA - starB) - direction(onTemplate), south};
}

QString text(const TemplateFit &fit)
{
    return QStringLiteral("%1 of %2 rings, %3 stars").arg(fit.held).arg(fit.rings).arg(fit.stars);
}

/// A frame of the practice sky, and the template's correct place.
struct Rendered {
    Rendered(bool south, double seconds, double gain, double moon, double clouds = 0.0)
        : grey(frameSize.height(), frameSize.width(), CV_8UC1)
    {
        virtualsky::SkyState sky = practiceSky(south);
        sky.moon = moon;
        sky.clouds = clouds;
        virtualsky::Scene scene;
        virtualsky::Sensor sensor;
        sensor.render(sky, scene.starsAt(sky, *sky.date), {}, {seconds, gain, 1}, grey.data);
        const auto truth = virtualsky::truth(sky, *sky.date);
        right = placeOn({truth.starA->x, truth.starA->y}, {truth.starB->x, truth.starB->y}, south);
        stars = findStars(grey);
    }

    TemplateFit fit(const TemplatePlace &place) const
    {
        return fitTemplate(place, catalogue(place.south), stars, frameSize);
    }

    cv::Mat grey;
    TemplatePlace right;
    std::vector<FieldStar> stars;
};

/// Rendered only once.
const Rendered &halfASecond(bool south, double gain)
{
    static std::map<std::pair<bool, double>, Rendered> all;
    return all.try_emplace({south, gain}, south, 0.5, gain, 0.0).first->second;
}
} // namespace

class TemplateFitTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void ringsAreThoseOfTheMask_data() { hemispheres(); }
    void ringsAreThoseOfTheMask();
    void rightOne_data();
    void rightOne();
    void wrongOne_data();
    void wrongOne();
    void nothingIsSaidOfFewStars_data();
    void nothingIsSaidOfFewStars();
    void photographs_data() { hemispheres(); }
    void photographs();

private:
    static void hemispheres();
};

void TemplateFitTest::initTestCase()
{
    initialiseResources();
    loadStarCatalogues(QDate(2024, 5, 23));
}

void TemplateFitTest::hemispheres()
{
    QTest::addColumn<bool>("south");
    QTest::newRow("north") << false;
    QTest::newRow("south") << true;
}

/// Around every place of the table the picture has a closed ring of that radius.
void TemplateFitTest::ringsAreThoseOfTheMask()
{
    QFETCH(bool, south);
    const QImage mask(south ? ":/images/south_mask.png" : ":/images/north_mask.png");
    const std::vector<TemplateRing> rings = templateRings(south);
    QCOMPARE(int(rings.size()), south ? 38 : 29);
    for (const TemplateRing &ring : rings)
        for (int degrees = 0; degrees < 360; degrees += 5) {
            const double angle = qDegreesToRadians(double(degrees));
            const QPoint pixel(qRound(ring.x + ring.radius * std::cos(angle)),
                               qRound(ring.y + ring.radius * std::sin(angle)));
            QVERIFY2(qAlpha(mask.pixel(pixel)) > 60,
                     qPrintable(QString("%1, %2 at %3").arg(ring.x).arg(ring.y).arg(degrees)));
        }
    const StarCatalogue &c = catalogue(south);
    for (const QPointF named :
         {QPointF(c.starAX, c.starAY), QPointF(c.starBX, c.starBY), QPointF(c.starDX, c.starDY)})
        QVERIFY(std::any_of(rings.begin(), rings.end(), [&](const TemplateRing &ring) {
            return std::hypot(ring.x - named.x(), ring.y - named.y()) < 1.0;
        }));
}

void TemplateFitTest::rightOne_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<double>("seconds");
    QTest::addColumn<double>("gain");
    QTest::addColumn<double>("moon");
    for (const bool south : {false, true})
        for (const double seconds : {0.5, 0.2, 0.1, 0.02})
            for (const double gain : {1.0, 50.0, 70.0})
                for (const double moon : {0.0, 0.7})
                    QTest::addRow("%s %g s gain %g moon %g", south ? "south" : "north", seconds,
                                  gain, moon)
                        << south << seconds << gain << moon;
}

/// Also with an error of a pixel or two and half a degree, as by a careful hand.
void TemplateFitTest::rightOne()
{
    QFETCH(bool, south);
    QFETCH(double, seconds);
    QFETCH(double, gain);
    QFETCH(double, moon);
    const Rendered sky(south, seconds, gain, moon);
    for (const QPointF slip : {QPointF(0, 0), QPointF(1.5, 1.5), QPointF(-1.5, 1), QPointF(2, -1)})
        for (const double turn : {0.0, 0.5, -0.5}) {
            const TemplateFit fit =
                sky.fit({sky.right.starB + slip, sky.right.angle + turn, south});
            QVERIFY2(!isMisfit(fit), qPrintable(text(fit)));
            if (seconds == 0.5 && gain == 50.0) // the exposure of the tour
                QVERIFY2(10 * fit.held >= 9 * fit.rings && fit.rings >= 28, qPrintable(text(fit)));
        }
}

void TemplateFitTest::wrongOne_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<QPointF>("slip");
    QTest::addColumn<double>("turn");
    for (const bool south : {false, true}) {
        const char *const pole = south ? "south" : "north";
        for (int degrees = 0; degrees < 360; degrees += 15) {
            const double angle = qDegreesToRadians(double(degrees));
            QTest::addRow("%s 12 pixels beside, towards %d", pole, degrees)
                << south << QPointF(12 * std::cos(angle), 12 * std::sin(angle)) << 0.0;
        }
        for (const double turn : {-5.0, 5.0, 10.0, 30.0, 45.0, 90.0, 135.0, 180.0, 225.0, 270.0})
            QTest::addRow("%s turned by %g", pole, turn) << south << QPointF() << turn;
    }
}

void TemplateFitTest::wrongOne()
{
    QFETCH(bool, south);
    QFETCH(QPointF, slip);
    QFETCH(double, turn);
    for (const double gain : {1.0, 50.0, 70.0}) {
        const Rendered &sky = halfASecond(south, gain);
        const TemplateFit fit = sky.fit({sky.right.starB + slip, sky.right.angle + turn, south});
        QVERIFY2(isMisfit(fit), qPrintable(text(fit)));
    }
}

void TemplateFitTest::nothingIsSaidOfFewStars_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<double>("clouds");
    QTest::newRow("too short an exposure") << 0.001 << 0.0;
    QTest::newRow("overcast") << 0.5 << 1.0;
}

void TemplateFitTest::nothingIsSaidOfFewStars()
{
    QFETCH(double, seconds);
    QFETCH(double, clouds);
    for (const bool south : {false, true}) {
        const Rendered sky(south, seconds, 1.0, 0.0, clouds);
        for (const double turn : {0.0, 5.0, 90.0}) {
            const TemplateFit fit = sky.fit({sky.right.starB, sky.right.angle + turn, south});
            QVERIFY2(!isMisfit(fit), qPrintable(text(fit)));
        }
    }
}

/// Real pictures of the pole fields; stars A and B from plate solutions.
void TemplateFitTest::photographs()
{
    QFETCH(bool, south);
    const QString path = QStringLiteral(PROJECT_SOURCE_DIR "/../shared/photos/%1_pole.png")
                             .arg(south ? "south" : "north");
    if (!QFileInfo::exists(path))
        QSKIP("the photographs are not beside the project");
    const std::vector<FieldStar> stars = findStars(geometrytest::readFrame(path));
    const TemplatePlace right = south ? placeOn({706.75, 341.23}, {883.80, 281.93}, true)
                                      : placeOn({353.10, 392.37}, {292.59, 213.79}, false);
    const auto fit = [&](QPointF slip, double turn) {
        return fitTemplate({right.starB + slip, right.angle + turn, south}, catalogue(south), stars,
                           frameSize);
    };
    QVERIFY2(!isMisfit(fit({0, 0}, 0)), qPrintable(text(fit({0, 0}, 0))));
    for (const QPointF slip : {QPointF(12, 0), QPointF(-12, 0), QPointF(0, 12), QPointF(0, -12)})
        QVERIFY2(isMisfit(fit(slip, 0)), qPrintable(text(fit(slip, 0))));
    for (const double turn : {5.0, -5.0, 60.0, 180.0})
        QVERIFY2(isMisfit(fit({0, 0}, turn)), qPrintable(text(fit({0, 0}, turn))));
}

QTEST_GUILESS_MAIN(TemplateFitTest)
#include "tst_templatefit.moc"
