// SPDX-License-Identifier: MIT
// Where do the arrows over the picture begin and end, and when is there none?
#include "tests/assistantwindow/markedpicture.h"

using namespace assistantwindow;
using namespace markedpicture;
using drawing::Expected;
using drawing::light;

class AssistantArrowsTest : public QObject
{
    Q_OBJECT

private slots:
    void arrowFromPoleToAxis_data() { everyPicture(); }
    void arrowFromPoleToAxis();
    void earlyAxisHasNoArrow();
    void arrowToThePoleOutside_data();
    void arrowToThePoleOutside();
};

void AssistantArrowsTest::earlyAxisHasNoArrow()
{
    Picture picture(skyOf(false, false), enlargements[0]);
    picture.setEarlyAxis(enlargements[0].error, 0.6);
    const QImage image = picture.with(&Theme::axis);
    Expected expected(image);
    const QPointF unit(std::cos(0.6), std::sin(0.6));
    const QPointF axis =
        picture.pole() + unit * enlargements[0].error * picture.pixelsPerArcsecond();
    QVERIFY(light(image, axis) > 30);
    expected.allow({axis - QPointF(7, 7), QSizeF(14, 14)});
    QCOMPARE(expected.strays(), 0);
}

void AssistantArrowsTest::arrowFromPoleToAxis()
{
    QFETCH(bool, south);
    QFETCH(bool, mirrored);
    QFETCH(int, enlargement);
    for (const double angle : {0.6, 2.3, -2.9}) {
        Picture picture(skyOf(south, mirrored), enlargements[enlargement]);
        picture.setError(enlargements[enlargement].error, angle);
        const QImage image = picture.with(&Theme::axis);
        Expected expected(image);
        const QPointF pole = picture.pole();
        const QPointF unit(std::cos(angle), std::sin(angle)), across(-unit.y(), unit.x());
        const double length = enlargements[enlargement].error * picture.pixelsPerArcsecond();
        QVERIFY(length > 40.0);
        const QPointF axis = pole + unit * length;
        QVERIFY(expected.curve(drawing::segment(pole + unit * 7.0, axis - unit * 8.0), 7.0) > 0.99);
        // The head is at the axis, the tail at the pole.
        QVERIFY(light(image, axis - unit * 12.0 + across * 4.0) > 90);
        QVERIFY(light(image, axis - unit * 12.0 - across * 4.0) > 90);
        QVERIFY(light(image, pole + unit * 12.0 + across * 4.0) < 40);
        expected.allow({axis - QPointF(7, 7), QSizeF(14, 14)});
        QCOMPARE(expected.strays(), 0);
    }
}

void AssistantArrowsTest::arrowToThePoleOutside_data()
{
    QTest::addColumn<bool>("recognised");
    QTest::addColumn<double>("degrees"); // 0 up, positive clockwise
    QTest::newRow("pole in the stars, to the right") << true << 90.0;
    QTest::newRow("pole in the stars, down") << true << 180.0;
    QTest::newRow("advice, up") << false << 0.0;
    QTest::newRow("advice, left") << false << -90.0;
}

/// At the border that the pole is beyond, and nothing else in its colour.
void AssistantArrowsTest::arrowToThePoleOutside()
{
    QFETCH(bool, recognised);
    QFETCH(double, degrees);
    Picture picture(skyOf(false, false), enlargements[0]);
    const QPointF unit(std::sin(degrees * degree), -std::cos(degrees * degree));
    picture.status.error.reset();
    picture.status.axis = {};
    picture.status.pole.reset();
    if (recognised) {
        picture.status.pole = recognition::PixelPlace{virtualsky::centreX + 2000.0 * unit.x(),
                                                      virtualsky::centreY + 2000.0 * unit.y()};
    } else {
        picture.status.sky = std::make_shared<recognition::Recognition>();
        picture.status.advice = {{assistant::AdviceCode::PoleThatWay, 6.2, degrees, {}}};
    }
    const QImage image = picture.with(&Theme::pole);
    Expected expected(image);
    const QPointF centre(widgetSize.width() / 2.0, widgetSize.height() / 2.0);
    const double half = std::abs(unit.x()) > 0.5 ? centre.x() : centre.y();
    const QPointF tip = centre + unit * (half - 14.0);
    QVERIFY(expected.curve(drawing::segment(tip - unit * 2.0, tip - unit * 54.0), 25.0) > 0.99);
    const QPointF across(-unit.y(), unit.x());
    QVERIFY(light(image, tip - unit * 24.0 + across * 18.0) > 90); // the head is outwards
    QVERIFY(light(image, tip - unit * 48.0 + across * 18.0) < 40);
    QCOMPARE(expected.strays(), 0);
}

QTEST_MAIN(AssistantArrowsTest)
#include "tst_assistantarrows.moc"
