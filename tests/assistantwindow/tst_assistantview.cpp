// SPDX-License-Identifier: MIT
// Which part of the sky is shown, where are its marks, and in which colours?
#include "assistantwindow/overview.h"
#include "assistantwindow/starlabel.h"
#include "assistantwindow/theme.h"
#include "assistantwindow/view.h"
#include "tests/assistantwindow/figurevalues.h"

#include <QtTest>
#include <cmath>
#include <limits>

using namespace assistantwindow;

class AssistantViewTest : public QObject
{
    Q_OBJECT

private slots:
    void zoom_data();
    void zoom();
    void zoomDoesNotFlicker();
    void errorIsSeenAtEveryZoom();
    void wholeFrameIsCentred();
    void closeViewHasItsCentreAndRadius();
    void ellipses_data();
    void ellipses();
    void namesAreThinned();
    void arrowsToOutside_data();
    void arrowsToOutside();
    void redThemeHasOnlyRed();
    void reddenedKeepsBrightness();
    void brightSkyStays();
    void greyIsBrightenedLikeColour();
    void overviewLeavesTheAxisFree_data();
    void overviewLeavesTheAxisFree();
    void scaleBars_data();
    void scaleBars();
};

void AssistantViewTest::zoom_data()
{
    QTest::addColumn<int>("now");
    QTest::addColumn<double>("total");
    QTest::addColumn<int>("next");
    QTest::newRow("far") << 0 << 9000.0 << 0;
    QTest::newRow("not yet") << 0 << 1801.0 << 0;
    QTest::newRow("below half a degree") << 0 << 1799.0 << 1;
    QTest::newRow("below ten minutes") << 1 << 599.0 << 2;
    QTest::newRow("below three minutes") << 2 << 179.0 << 3;
    QTest::newRow("not yet a minute") << 3 << 61.0 << 3;
    QTest::newRow("below a minute") << 3 << 59.0 << 4;
    QTest::newRow("stays close") << 4 << 79.0 << 4;
    QTest::newRow("opens") << 4 << 81.0 << 3;
    QTest::newRow("closer") << 4 << 14.0 << 5;
    QTest::newRow("stays closer") << 5 << 23.0 << 5;
    QTest::newRow("one step back") << 5 << 25.0 << 4;
    QTest::newRow("all at once") << 0 << 5.0 << 5;
    QTest::newRow("all the way back") << 5 << 5000.0 << 0;
    QTest::newRow("no number") << 5 << noNumber << 0;
}

void AssistantViewTest::zoom()
{
    QFETCH(int, now);
    QFETCH(double, total);
    QTEST(zoomLevel(now, total), "next");
    QCOMPARE(zoomLevel(now, {}), 0);
}

void AssistantViewTest::zoomDoesNotFlicker()
{
    for (const double middle : {1800.0, 600.0, 180.0, 60.0, 15.0}) {
        int level = zoomLevel(0, middle - 4.0), changes = 0;
        for (int i = 0; i < 100; ++i) {
            const int next = zoomLevel(level, middle + (i % 2 == 0 ? 4.0 : -4.0));
            changes += next != level ? 1 : 0;
            level = next;
        }
        QCOMPARE(changes, 0);
    }
}

/// From the whole frame to the goal, on the smallest screen: 240 pixels for the picture.
void AssistantViewTest::errorIsSeenAtEveryZoom()
{
    constexpr double minLength = 16.0; // pixels, of an arrow
    int level = zoomLevel(0, 1800.0);
    for (double error = 1799.0; error > 5.0; error *= 0.99) {
        level = zoomLevel(level, error);
        const double scale = closeView({}, zoomRadius(level), {500, 240}).scale; // per arcsecond
        QVERIFY2(error * scale >= minLength, qPrintable(QString::number(error)));
        QVERIFY2(error * scale < 120.0, qPrintable(QString::number(error)));
    }
}

void AssistantViewTest::wholeFrameIsCentred()
{
    const View view = wholeView({1280, 960}, {400, 400});
    QCOMPARE(view.scale, 0.3125);
    QCOMPARE(view.place(-0.5, -0.5), QPointF(0.0, 50.0));
    QCOMPARE(view.place(1279.5, 959.5), QPointF(400.0, 350.0));
}

void AssistantViewTest::closeViewHasItsCentreAndRadius()
{
    const View view = closeView({100.0, 200.0}, 4.0, {400, 300});
    QCOMPARE(view.place(100.0, 200.0), QPointF(200.0, 150.0));
    QCOMPARE(view.place(100.0, 196.0), QPointF(200.0, 0.0));
}

void AssistantViewTest::ellipses_data()
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

void AssistantViewTest::ellipses()
{
    QFETCH(double, xx);
    QFETCH(double, xy);
    QFETCH(double, yy);
    const Ellipse found = ellipseOf({xx, xy, yy}, 2.0);
    QTEST(found.longer, "longer");
    QTEST(found.shorter, "shorter");
    QTEST(found.degrees, "degrees");
}

void AssistantViewTest::namesAreThinned()
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

void AssistantViewTest::arrowsToOutside_data()
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

void AssistantViewTest::arrowsToOutside()
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

void AssistantViewTest::redThemeHasOnlyRed()
{
    const Theme &red = theme(true);
    for (const QColor &colour : {red.well, red.window, red.panel, red.control, red.border, red.text,
                                 red.quiet, red.disabled, red.accent, red.lit, red.onAccent,
                                 red.good, red.warning, red.pole, red.axis, red.star, red.grid})
        QVERIFY2(colour.green() == 0 && colour.blue() == 0, qPrintable(colour.name()));
    QVERIFY(red.text.red() > 150);
    QVERIFY(theme(false).pole.blue() > 0);
}

void AssistantViewTest::reddenedKeepsBrightness()
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

void AssistantViewTest::brightSkyStays()
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

void AssistantViewTest::greyIsBrightenedLikeColour()
{
    QImage grey(67, 41, QImage::Format_Grayscale8);
    for (int y = 0; y < grey.height(); ++y)
        for (int x = 0; x < grey.width(); ++x)
            grey.scanLine(y)[x] = uchar(x % 9 == 0 ? 3 * y : 12);
    const QImage bright = brightened(grey);
    QCOMPARE(bright.format(), QImage::Format_RGB888);
    QCOMPARE(bright, brightened(grey.convertToFormat(QImage::Format_RGB888)));
}

void AssistantViewTest::overviewLeavesTheAxisFree_data()
{
    QTest::addColumn<QPointF>("axis");
    QTest::addColumn<bool>("isRight");
    QTest::newRow("middle") << QPointF(200, 150) << true;
    QTest::newRow("upper right") << QPointF(320, 60) << false;
    QTest::newRow("upper left") << QPointF(80, 60) << true;
    QTest::newRow("lower right") << QPointF(320, 240) << true;
    QTest::newRow("above") << QPointF(203, 30) << true;
}

void AssistantViewTest::overviewLeavesTheAxisFree()
{
    QFETCH(QPointF, axis);
    const QRectF bounds(0, 0, 400, 300);
    const QRectF box = overviewBox({1280, 960}, bounds, axis);
    QTEST(box.center().x() > 200.0, "isRight");
    QVERIFY(bounds.contains(box) && !box.contains(axis));
    QVERIFY(box.width() > 100.0);
    QCOMPARE(box.width() / box.height(), 4.0 / 3.0);
}

void AssistantViewTest::scaleBars_data()
{
    QTest::addColumn<double>("pixelScale");
    QTest::addColumn<QString>("text");
    QTest::newRow("a minute of 100 pixels") << 0.6 << "1′";
    QTest::newRow("half of it just fits") << 0.3 << "30″";
    QTest::newRow("far") << 10.0 << "5′";
    QTest::newRow("very near") << 0.01 << "1″";
    QTest::newRow("too near") << 0.001 << "";
    QTest::newRow("no scale") << 0.0 << "";
}

void AssistantViewTest::scaleBars()
{
    QFETCH(double, pixelScale);
    const ScaleBar bar = scaleBar(pixelScale, 100.0);
    QTEST(bar.text, "text");
    QVERIFY(bar.pixels <= 100.0);
    if (!bar.text.isEmpty())
        QCOMPARE(bar.pixels * pixelScale, bar.arcseconds);
}

QTEST_MAIN(AssistantViewTest)
#include "tst_assistantview.moc"
