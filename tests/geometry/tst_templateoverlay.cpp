// SPDX-License-Identifier: MIT
// Is the template placed where it was clicked, turned the right way, and do the positions follow?
#include "geometry/templateoverlay.h"

#include "geometry/starcatalogue.h"
#include "tests/geometry/geometrytest.h"

#include <limits>

using namespace geometrytest;

class TemplateOverlayTest : public QObject
{
    Q_OBJECT

private slots:
    void turnedPlace_data();
    void turnedPlace();
    void turnedPicture_data();
    void turnedPicture();
    void senseOfTurning();
    void flatPlace_data();
    void flatPlace();
    void view_data();
    void view();
    void absurdZoom_data();
    void absurdZoom();
    void extremeClicks();
    void golden();
    void poleOnAxis();
    void templateOnItself();
};

namespace
{
QImage mask(QSize size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    return image;
}

const QSize north(800, 800);
const QSize south(800, 674);
} // namespace

void TemplateOverlayTest::turnedPlace_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("angle");
    QTest::addColumn<float>("zoom");
    QTest::addColumn<QRect>("geometry");
    // The click is at (640, 480).
    QTest::newRow("north") << north << 0 << 1.0f << QRect(241, 81, 800, 800);
    QTest::newRow("north, 360 degrees") << north << 360 << 1.0f << QRect(241, 81, 800, 800);
    QTest::newRow("north, three quarters") << north << 0 << 0.75f << QRect(341, 181, 600, 600);
    QTest::newRow("north, half") << north << 0 << 0.5f << QRect(441, 281, 400, 400);
    QTest::newRow("south") << south << 0 << 1.0f << QRect(241, 144, 800, 674);
    QTest::newRow("south on its side") << south << 90 << 1.0f << QRect(304, 81, 674, 800);
    QTest::newRow("south upside down") << south << 180 << 1.0f << QRect(241, 144, 800, 674);
    QTest::newRow("south on the other side") << south << 270 << 1.0f << QRect(304, 81, 674, 800);
    // 505.5 rows truncate to 505, and the width follows the height: 599.
    QTest::newRow("south, three quarters") << south << 0 << 0.75f << QRect(341, 228, 599, 505);
    QTest::newRow("south, half") << south << 0 << 0.5f << QRect(441, 312, 400, 337);
}

void TemplateOverlayTest::turnedPlace()
{
    QFETCH(QSize, size);
    QFETCH(int, angle);
    QFETCH(float, zoom);
    QFETCH(QRect, geometry);
    const PlacedTemplate placed = turnTemplate(mask(size), angle, zoom, {640, 480});
    QCOMPARE(placed.geometry, geometry);
    QCOMPARE(placed.image.size(), geometry.size());
}

void TemplateOverlayTest::turnedPicture_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("north") << north;
    QTest::newRow("south") << south;
}

void TemplateOverlayTest::turnedPicture()
{
    QFETCH(QSize, size);
    const QImage picture = mask(size);
    for (int angle = 0; angle <= 360; angle += 15) {
        const PlacedTemplate placed = turnTemplate(picture, angle, 0.5f, {300, 200});
        const double radians = angle * 3.141592653589793 / 180.0;
        const double sine = std::fabs(std::sin(radians));
        const double cosine = std::fabs(std::cos(radians));
        const double width = size.width() / 2.0;
        const double height = size.height() / 2.0;
        COMPARE_WITHIN(placed.image.width(), width * cosine + height * sine, 2.0);
        COMPARE_WITHIN(placed.image.height(), width * sine + height * cosine, 2.0);
        QCOMPARE(placed.geometry.size(), placed.image.size());
        QCOMPARE(placed.geometry.center(), QPoint(300, 200));
    }
    // The diagonal of the north mask: 1131 pixels.
    COMPARE_WITHIN(turnTemplate(mask(north), 45, 1.0f, {640, 480}).image.width(), 1131.4, 2.0);
}

void TemplateOverlayTest::senseOfTurning()
{
    // A spot right of the centre is below it after a quarter turn.
    QImage picture = mask(QSize(101, 101));
    for (int y = 48; y <= 52; ++y)
        for (int x = 88; x <= 92; ++x)
            picture.setPixelColor(x, y, Qt::white);
    const auto spot = [&](int angle) {
        const PlacedTemplate placed = turnTemplate(picture, angle, 1.0f, {0, 0});
        double x = 0.0;
        double y = 0.0;
        double sum = 0.0;
        for (int row = 0; row < placed.image.height(); ++row) {
            for (int column = 0; column < placed.image.width(); ++column) {
                const double weight = qAlpha(placed.image.pixel(column, row));
                sum += weight;
                x += weight * (placed.geometry.left() + column);
                y += weight * (placed.geometry.top() + row);
            }
        }
        return QPointF(x / sum, y / sum);
    };
    // Rounding to whole pixels: half a pixel in the turned picture, up to one in its place.
    for (int angle = 0; angle <= 360; angle += 10) {
        const double radians = angle * 3.141592653589793 / 180.0;
        COMPARE_WITHIN(spot(angle).x(), 40.0 * std::cos(radians), 1.5);
        COMPARE_WITHIN(spot(angle).y(), 40.0 * std::sin(radians), 1.5);
    }
}

void TemplateOverlayTest::flatPlace_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<float>("zoom");
    QTest::addColumn<QPointF>("centre");
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<QSize>("picture");
    const QPointF middle(640, 480);
    QTest::newRow("north") << north << 1.0f << middle << QRect(240, 80, 800, 800) << north;
    QTest::newRow("north, half") << north << 0.5f << middle << QRect(120, 40, 400, 400)
                                 << QSize(400, 400);
    QTest::newRow("south, three quarters")
        << south << 0.75f << middle << QRect(180, 108, 600, 505) << QSize(599, 505);
    QTest::newRow("truncated toward zero on both sides")
        << north << 0.5f << QPointF(399.0, 401.9) << QRect(0, 0, 400, 400) << QSize(400, 400);
    QTest::newRow("off the frame")
        << north << 0.5f << QPointF(0.0, 10.0) << QRect(-200, -195, 400, 400) << QSize(400, 400);
}

void TemplateOverlayTest::flatPlace()
{
    QFETCH(QSize, size);
    QFETCH(float, zoom);
    QFETCH(QPointF, centre);
    QFETCH(QRect, geometry);
    QFETCH(QSize, picture);
    const PlacedTemplate placed = flatTemplate(mask(size), zoom, centre);
    QCOMPARE(placed.geometry, geometry);
    QCOMPARE(placed.image.size(), picture);
}

void TemplateOverlayTest::view_data()
{
    QTest::addColumn<float>("zoom");
    QTest::addColumn<QPointF>("frame");
    QTest::addColumn<QPoint>("view");
    QTest::newRow("full size") << 1.0f << QPointF(640.9, 480.2) << QPoint(640, 480);
    QTest::newRow("frame centre at three quarters")
        << 0.75f << QPointF(640, 480) << QPoint(480, 360);
    QTest::newRow("truncated toward zero") << 0.5f << QPointF(-1.9, 3.9) << QPoint(0, 1);
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN() << QPointF(1, 1)
                                  << QPoint(0, 0);
    QTest::newRow("beyond int") << 1e9f << QPointF(1e9, -1e9)
                                << QPoint(std::numeric_limits<int>::max(),
                                          std::numeric_limits<int>::min());
}

void TemplateOverlayTest::view()
{
    QFETCH(float, zoom);
    QFETCH(QPointF, frame);
    QFETCH(QPoint, view);
    QCOMPARE(viewPosition(zoom, frame), view);
}

void TemplateOverlayTest::absurdZoom_data()
{
    QTest::addColumn<float>("zoom");
    QTest::newRow("zero") << 0.0f;
    QTest::newRow("too small for one pixel") << 0.001f;
    QTest::newRow("negative") << -1.0f;
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity();
    QTest::newRow("thousand million") << 1e9f;
    QTest::newRow("just too large on one side") << 5.13f;
}

void TemplateOverlayTest::absurdZoom()
{
    QFETCH(float, zoom);
    LogRecorder recorder;
    for (const PlacedTemplate &placed :
         {turnTemplate(mask(north), 30, zoom, {640, 480}),
          flatTemplate(mask(north), zoom, {640, 480}), flatTemplate(mask(south), zoom, {640, 480}),
          flatTemplate(mask(south.transposed()), zoom, {640, 480}),
          turnTemplate(QImage(), 30, 1.0f, {640, 480}), flatTemplate(QImage(), 1.0f, {640, 480})}) {
        QVERIFY(placed.image.isNull());
        QVERIFY(placed.geometry.isNull());
    }
    QCOMPARE(logOf(recorder), QStringList());
}

void TemplateOverlayTest::extremeClicks()
{
    constexpr int last = std::numeric_limits<int>::max();
    constexpr int first = std::numeric_limits<int>::min();
    const QImage small = mask(QSize(8, 6));
    const QPoint low(-16777216, -16777216);
    QCOMPARE(turnTemplate(small, 0, 1.0f, {first, first}).geometry, QRect(low, small.size()));
    QCOMPARE(turnTemplate(small, 0, 1.0f, {last, last}).geometry, QRect(-low, small.size()));
    QCOMPARE(flatTemplate(small, 1.0f, {1e300, -1e300}).geometry, QRect(16777216, -16777216, 8, 6));
    QCOMPARE(flatTemplate(small, 1.0f, {std::numeric_limits<double>::quiet_NaN(), 10}).geometry,
             QRect(0, 7, 8, 6));
    for (const int angle : {first, last, -90, 450, 720})
        QVERIFY(!turnTemplate(small, angle, 1.0f, {0, 0}).image.isNull());
    QCOMPARE(turnTemplate(small, -90, 1.0f, {0, 0}).image.size(), QSize(6, 8));
}

void TemplateOverlayTest::golden()
{
    StarCatalogue catalogues[2];
    for (const auto &[name, v] : goldenRows("templatepole")) {
        if (!name.endsWith("2024"))
            continue;
        StarCatalogue &c = catalogues[name.startsWith("south")];
        c = readStarCatalogue(
            QStringLiteral(PROJECT_SOURCE_DIR "/resources/starData/%1StarPosData.ini")
                .arg(name.startsWith("south") ? "S" : "N"),
            2024);
        c.templatePoleX = v[9];
        c.templatePoleY = v[10];
    }
    const auto rows = goldenRows("overlay");
    QCOMPARE(rows.size(), 18);
    for (const auto &[name, v] : rows) {
        const StarCatalogue &c = catalogues[name.startsWith("south")];
        const QPointF polaris(v[1], v[2]);
        const QPointF pole = expectedPole(c, int(v[0]), polaris);
        COMPARE_WITHIN(pole.x(), v[5], 1e-9);
        COMPARE_WITHIN(pole.y(), v[6], 1e-9);
        const QPointF target = polarisTarget(polaris, pole, {v[3], v[4]});
        COMPARE_WITHIN(target.x(), v[7], 1e-9);
        COMPARE_WITHIN(target.y(), v[8], 1e-9);
        const QPointF starA = predictedStarA(c, int(v[0]), polaris);
        COMPARE_WITHIN(starA.x(), v[9], 1e-9);
        COMPARE_WITHIN(starA.y(), v[10], 1e-9);
    }
}

void TemplateOverlayTest::poleOnAxis()
{
    const QPointF target = polarisTarget({100.25, 200.5}, {640.125, 480.75}, {640.125, 480.75});
    QVERIFY(target.x() == 100.25 && target.y() == 200.5);
}

void TemplateOverlayTest::templateOnItself()
{
    StarCatalogue c;
    c.starAX = 445;
    c.starAY = 218;
    c.starBX = c.starBY = 400;
    c.templatePoleX = 391.5;
    c.templatePoleY = 318.25;
    const QPointF starA = predictedStarA(c, 0, {400, 400});
    QVERIFY(starA.x() == 445.0 && starA.y() == 218.0);
    const QPointF pole = expectedPole(c, 0, {400, 400});
    QVERIFY(pole.x() == 391.5 && pole.y() == 318.25);
    // The pole 10 right of the star is 10 below it after a quarter turn.
    c.templatePoleX = 410;
    c.templatePoleY = 400;
    const QPointF turned = expectedPole(c, 90, {50, 60});
    COMPARE_WITHIN(turned.x(), 50.0, 1e-12);
    COMPARE_WITHIN(turned.y(), 70.0, 1e-12);
}

QTEST_GUILESS_MAIN(TemplateOverlayTest)
#include "tst_templateoverlay.moc"
