// SPDX-License-Identifier: MIT
// Is each mark over the picture where the sky has it, in every enlargement and in a mirrored
// picture?
#include "assistantwindow/starlabel.h"
#include "tests/assistantwindow/markedpicture.h"

using namespace assistantwindow;
using namespace markedpicture;
using drawing::Expected;
using drawing::Points;
using recognition::Covariance;

namespace
{
/// What the virtual camera's lens makes of a circle about the pole.
Points declinationCircle(const Picture &picture, double degrees)
{
    using virtualsky::Vector3;
    const Vector3 pole = virtualsky::unproject(picture.sky.pole);
    const Vector3 aside = virtualsky::cross(pole, {1.0, 0.0, 0.0});
    const Vector3 first = virtualsky::scaled(aside, 1.0 / virtualsky::length(aside));
    const Vector3 second = virtualsky::cross(pole, first);
    Points points;
    for (int i = 0; i < 1440; ++i) {
        const double a = i * degree / 4.0, s = std::sin(degrees * degree);
        const double c = std::cos(degrees * degree), u = s * std::cos(a), v = s * std::sin(a);
        const Vector3 on{c * pole.x + u * first.x + v * second.x,
                         c * pole.y + u * first.y + v * second.y,
                         c * pole.z + u * first.z + v * second.z};
        if (const auto pixel = virtualsky::project(on))
            points.push_back(picture.placeOf(*pixel));
    }
    return points;
}
} // namespace

class AssistantMarksTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void grid_data() { everyPicture(); }
    void grid();
    void stars_data() { everyPicture(); }
    void stars();
    void names_data();
    void names();
    void rings_data() { everyPicture(); }
    void rings();
    void ellipses_data();
    void ellipses();
};

void AssistantMarksTest::initTestCase()
{
    for (const bool south : {false, true})
        for (const bool mirrored : {false, true}) {
            const Sky &sky = skyOf(south, mirrored);
            QVERIFY(sky.status.sky->status == recognition::RecognitionStatus::Recognised);
            QCOMPARE(sky.status.sky->mirrored, mirrored);
            const virtualsky::Point truth{
                mirrored ? virtualsky::sensorWidth - 1.0 - sky.pole.x : sky.pole.x, sky.pole.y};
            QVERIFY(skyframes::error(*sky.status.pole, truth) < 5.0);
        }
}

void AssistantMarksTest::grid()
{
    QFETCH(bool, south);
    QFETCH(bool, mirrored);
    QFETCH(int, enlargement);
    Picture picture(skyOf(south, mirrored), enlargements[enlargement]);
    const QImage image = picture.with(&Theme::grid);
    Expected expected(image);
    picture.hideContext(expected);
    const double step = enlargements[enlargement].gridStep;
    for (int k = 1; step > 0.0 && k <= 14; ++k) {
        const double share = expected.curve(declinationCircle(picture, k * step), 2.0, 60);
        QVERIFY2(share > 0.85, qPrintable(QStringLiteral("%1: %2").arg(k * step).arg(share)));
    }
    QCOMPARE(expected.points() > 300, step > 0.0);
    QCOMPARE(expected.strays(), 0);
}

void AssistantMarksTest::stars()
{
    QFETCH(bool, south);
    QFETCH(bool, mirrored);
    QFETCH(int, enlargement);
    Picture picture(skyOf(south, mirrored), enlargements[enlargement]);
    const QImage image = picture.with(&Theme::star);
    Expected expected(image);
    picture.hideContext(expected);
    picture.allowTexts(expected);
    const QPointF pole = picture.pole();
    int number = 0, ringed = 0, crossed = 0;
    for (const recognition::MatchedStar &match : picture.status.sky->matched) {
        const auto &star = picture.status.stars[match.detected];
        const QPointF at = picture.place(star.x, star.y);
        // Brightest first: forty have a ring, the others a dot.
        if (++number > 40) {
            expected.curve({at}, 3.0, 20);
            continue;
        }
        const double share = expected.curve(drawing::circle(at, 6.0));
        const QPointF off = at - pole;
        const bool isFree = std::hypot(off.x(), off.y()) > 40.0 && off.x() * off.y() != 0.0;
        const QRectF inside = QRectF(image.rect()).adjusted(12, 12, -12, -12);
        if (!inside.contains(at) || !isFree || enlargement > 0)
            continue;
        QVERIFY2(share > 0.75, qPrintable(QString::number(share)));
        // The star itself stays free, but for the ring of a neighbour.
        crossed += qGray(image.pixel(int(at.x()), int(at.y()))) < 60 ? 0 : 1;
        ++ringed;
    }
    QVERIFY(crossed <= ringed / 10);
    QCOMPARE(expected.strays(), 0);
    if (enlargement == 0)
        QVERIFY2(ringed >= 20, qPrintable(QString::number(ringed)));
}

void AssistantMarksTest::names_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("distance"); // from the pole of November 2026, degrees
    QTest::newRow("north") << false << false << "Polaris" << 0.62;
    QTest::newRow("north, mirrored") << false << true << "Polaris" << 0.62;
    QTest::newRow("south") << true << false << "σ Oct" << 1.16;
    QTest::newRow("south, mirrored") << true << true << "σ Oct" << 1.16;
}

/// Each name is that of the star beside it, and the pole's own star is where it is known to be.
void AssistantMarksTest::names()
{
    QFETCH(bool, south);
    QFETCH(bool, mirrored);
    QFETCH(QString, name);
    QFETCH(double, distance);
    Picture picture(skyOf(south, mirrored), enlargements[0]);
    picture.with(&Theme::star);
    const QColor white(Qt::white);
    int named = 0;
    bool hasPolesStar = false;
    for (const PaintedText &text : picture.texts) {
        if (text.colour != white)
            continue;
        double nearest = 1e9;
        QPointF owner;
        for (const recognition::MatchedStar &match : picture.status.sky->matched) {
            if (starLabel(recognition::starName(match.catalogue)) != text.text)
                continue;
            const auto &star = picture.status.stars[match.detected];
            const QPointF at = picture.place(star.x, star.y);
            const double x = std::max({text.box.left() - at.x(), at.x() - text.box.right(), 0.0});
            const double y = std::max({text.box.top() - at.y(), at.y() - text.box.bottom(), 0.0});
            if (std::hypot(x, y) < nearest) {
                nearest = std::hypot(x, y);
                owner = at;
            }
        }
        QVERIFY2(nearest > 6.0 && nearest < 13.0, qPrintable(text.text));
        ++named;
        if (text.text != name)
            continue;
        hasPolesStar = true;
        const QPointF off = owner - picture.pole();
        const double shown = std::hypot(off.x(), off.y()) / picture.pixelsPerArcsecond() / 3600.0;
        QVERIFY2(std::abs(shown - distance) < 0.03, qPrintable(QString::number(shown)));
    }
    QVERIFY2(named >= 4 && named <= 8, qPrintable(QString::number(named)));
    QVERIFY(hasPolesStar);
    QVERIFY(cutTexts(picture.texts).isEmpty());
}

/// The rings about the pole and its cross; a covariance of nothing leaves the least ellipse.
void AssistantMarksTest::rings()
{
    QFETCH(bool, south);
    QFETCH(bool, mirrored);
    QFETCH(int, enlargement);
    Picture picture(skyOf(south, mirrored), enlargements[enlargement]);
    picture.status.poleCovariance = {};
    const QImage image = picture.with(&Theme::pole);
    Expected expected(image);
    picture.hideContext(expected);
    picture.allowTexts(expected);
    const QPointF pole = picture.pole();
    int seen = 0;
    for (const double arcseconds : {600.0, 300.0, 60.0, 20.0, 5.0}) {
        const double radius = arcseconds * picture.pixelsPerArcsecond();
        if (radius < 11.0 || radius > widgetSize.width())
            continue;
        const double share = expected.curve(drawing::circle(pole, radius));
        QVERIFY2(share > 0.85, qPrintable(QStringLiteral("%1: %2").arg(arcseconds).arg(share)));
        seen += radius < widgetSize.height() / 2.0 ? 1 : 0;
    }
    const int rings[] = {0, 2, 2, 2, 2, 2};
    QVERIFY2(seen >= rings[enlargement], qPrintable(QString::number(seen)));
    for (const QPointF &along : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)})
        QVERIFY(expected.curve(drawing::segment(pole + along * 9.0, pole + along * 17.0)) > 0.99);
    QVERIFY(expected.curve(drawing::circle(pole, 4.0)) > 0.9);
    expected.allow({pole - QPointF(6, 6), QSizeF(12, 12)});
    QCOMPARE(expected.strays(), 0);
}

void AssistantMarksTest::ellipses_data()
{
    QTest::addColumn<int>("enlargement");
    QTest::addColumn<double>("longer"); // of one sigma, widget pixels
    QTest::addColumn<double>("shorter");
    QTest::addColumn<double>("degrees"); // 0 right, positive clockwise
    for (int i = 0; i < int(std::size(enlargements)); ++i)
        QTest::addRow("%s", enlargements[i].name) << i << 30.0 << 14.0 << 25.0 + 40.0 * i;
    QTest::newRow("round") << 0 << 20.0 << 20.0 << 0.0;
    QTest::newRow("thin") << 0 << 40.0 << 0.0 << 70.0;
}

/// Two sigma of the covariance, of the pole and of the axis.
void AssistantMarksTest::ellipses()
{
    QFETCH(int, enlargement);
    QFETCH(double, longer);
    QFETCH(double, shorter);
    QFETCH(double, degrees);
    Picture picture(skyOf(false, false), enlargements[enlargement]);
    const double c = std::cos(degrees * degree), s = std::sin(degrees * degree);
    const double a = std::pow(longer / picture.scale, 2), b = std::pow(shorter / picture.scale, 2);
    const Covariance turned{a * c * c + b * s * s, (a - b) * c * s, a * s * s + b * c * c};
    for (const bool isPole : {true, false}) {
        picture.status.poleCovariance = isPole ? turned : Covariance();
        picture.status.axis.covariance = isPole ? Covariance() : turned;
        const QImage image = picture.with(isPole ? &Theme::pole : &Theme::axis);
        Expected expected(image);
        const QPointF at =
            isPole ? picture.pole()
                   : picture.place(picture.status.axis.place->x, picture.status.axis.place->y);
        const double share = expected.curve(
            drawing::ellipse(at, 2.0 * longer, std::max(4.0, 2.0 * shorter), degrees));
        QVERIFY2(share > 0.95, qPrintable(QString::number(share)));
        // Neither larger nor smaller.
        const auto crossing = [&](double along, double across) {
            const QPointF place = at + QPointF(along * c - across * s, along * s + across * c);
            return qGray(image.pixel(int(place.x()), int(place.y())));
        };
        if (QRectF(image.rect()).contains(at) && enlargement == 0)
            QVERIFY(crossing(2.0 * longer + 5.0, 0.0) < 40);
        if (shorter > 0.0 && isPole)
            QVERIFY2(crossing(2.0 * longer - 8.0, 0.0) < 120 &&
                         crossing(2.0 * longer - 8.0, 0.0) > 20,
                     "it is filled, and its middle seen through");
    }
}

QTEST_MAIN(AssistantMarksTest)
#include "tst_assistantmarks.moc"
