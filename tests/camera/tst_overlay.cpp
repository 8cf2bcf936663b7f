// SPDX-License-Identifier: MIT
// Do the marks over a frame have the right shapes, places and colours?
#include "camera/overlay.h"
#include "camera/session.h"

#include <QPainter>
#include <QtTest>

Q_DECLARE_METATYPE(OverlayMarks)

namespace
{
OverlayMarks marksOf(const Session &session)
{
    return currentMarks(session.overlayFlags, session.alignmentPoints, session.monitorPositions);
}

const QSize frameSize(1280, 960);
const QColor white(255, 255, 255), red(255, 0, 0), green(0, 255, 0);

QImage sky()
{
    QImage picture(frameSize, QImage::Format_RGB888);
    picture.fill(QColor(12, 15, 20));
    return picture;
}

/// The expected marks, drawn shape by shape with plain coordinates.
class Drawing
{
public:
    explicit Drawing(QImage &picture) : p(&picture) { p.setRenderHint(QPainter::Antialiasing); }
    void pen(const QColor &colour)
    {
        QPen pen(colour);
        pen.setWidth(0);
        pen.setStyle(Qt::SolidLine);
        pen.setCapStyle(Qt::SquareCap);
        pen.setJoinStyle(Qt::MiterJoin);
        p.setPen(pen);
    }
    void line(double x1, double y1, double x2, double y2) { p.drawLine(QLineF(x1, y1, x2, y2)); }
    void axis(double x, double y)
    {
        p.drawEllipse(QRectF(x - 1, y - 1, 2, 2));
        p.drawEllipse(QRectF(x - 4, y - 4, 8, 8));
        line(x - 7, y, x - 3, y);
        line(x + 7, y, x + 3, y);
        line(x, y - 7, x, y - 3);
        line(x, y + 7, x, y + 3);
    }
    void circle(double x, double y, int r) { p.drawEllipse(QRectF(x - r, y - r, 2 * r, 2 * r)); }
    void arc(double x, double y, double a)
    {
        line(x - 3, y, x + 3, y);
        line(x, y - 3, x, y + 3);
        const QRectF ring(x - 10, y - 10, 20, 20);
        for (const double start : {a + 18, a + 108, a + 198, a + 288})
            p.drawArc(ring, int(start * 16), 864);
    }
    void star(double x, double y)
    {
        line(x - 5, y, x + 5, y);
        line(x, y - 5, x, y + 5);
        p.drawRect(QRectF(x - 20, y - 20, 40, 40));
    }
    void pole(double x, double y)
    {
        p.drawEllipse(QRectF(x - 1, y - 1, 2, 2));
        line(x - 8, y, x + 8, y);
        line(x, y - 8, x, y + 8);
        line(x - 6, y - 6, x - 3, y - 6);
        line(x - 6, y - 6, x - 6, y - 3);
        line(x - 6, y + 6, x - 3, y + 6);
        line(x - 6, y + 6, x - 6, y + 3);
        line(x + 6, y - 6, x + 3, y - 6);
        line(x + 6, y - 6, x + 6, y - 3);
        line(x + 6, y + 6, x + 3, y + 6);
        line(x + 6, y + 6, x + 6, y + 3);
    }

private:
    QPainter p;
};

QImage drawn(const OverlayMarks &m)
{
    QImage picture = sky();
    Drawing d(picture);
    if (m.showAxisMark) {
        d.pen(m.monoStyle ? white : red);
        d.axis(m.axisCenter.x(), m.axisCenter.y());
    }
    if (m.showStarCircle) {
        d.pen(m.monoStyle ? QColor(248, 248, 255) : QColor(224, 134, 26));
        d.circle(m.axisCenter.x(), m.axisCenter.y(), m.axisRadius);
    }
    if (m.showRotatingArc) {
        d.pen(white);
        d.arc(m.arcCenter.x(), m.arcCenter.y(), m.arcAngle);
    }
    if (m.showMonitorCross) {
        d.pen(white);
        d.star(m.starA.x(), m.starA.y());
        d.star(m.starB.x(), m.starB.y());
    }
    if (m.showPoleRect) {
        d.pen(m.monoStyle ? white : green);
        d.pole(m.pole.x(), m.pole.y());
    }
    return picture;
}

/// Every mark at a place of its own, none shown.
OverlayMarks hidden(bool monoStyle)
{
    OverlayMarks m;
    m.monoStyle = monoStyle;
    m.axisCenter = {700.5, 400.5};
    m.axisRadius = 120;
    m.arcCenter = {300.5, 200.5};
    m.arcAngle = 20;
    m.starA = {900.5, 600.5};
    m.starB = {100.5, 800.5};
    m.pole = {500.5, 500.5};
    return m;
}

OverlayMarks shown(const char *which, bool monoStyle)
{
    OverlayMarks m = hidden(monoStyle);
    const QString names(which);
    const bool all = names == QLatin1String("all");
    m.showAxisMark = all || names == QLatin1String("axis");
    m.showStarCircle = all || names == QLatin1String("circle");
    m.showRotatingArc = all || names == QLatin1String("arc");
    m.showMonitorCross = all || names == QLatin1String("stars");
    m.showPoleRect = all || names == QLatin1String("pole");
    return m;
}
} // namespace

class OverlayTest : public QObject
{
    Q_OBJECT

private slots:
    void shapes_data();
    void shapes();
    void pixels_data();
    void pixels();
    void nothingShown();
    void currentState();
    void eachFlagDrawsItsMark_data();
    void eachFlagDrawsItsMark();
    void poleIsLeftOutWhileThereIsNone();
};

void OverlayTest::shapes_data()
{
    QTest::addColumn<OverlayMarks>("marks");
    for (const bool mono : {false, true}) {
        for (const char *const which : {"axis", "circle", "arc", "stars", "pole", "all"}) {
            const auto add = [&](const char *where, const OverlayMarks &marks) {
                QTest::addRow("%s, %s, %s", which, mono ? "mono" : "colour", where) << marks;
            };
            OverlayMarks m = shown(which, mono);
            add("pixel centres", m);
            m.axisCenter = m.arcCenter = m.starA = m.pole = {640, 480};
            m.starB = {650, 485};
            add("one over the other", m);
            m.axisCenter = m.arcCenter = m.starA = m.pole = {633.27, 411.81};
            m.starB = {12.34, 56.78};
            m.axisRadius = 0;
            add("fractions, no radius", m);
            m.axisCenter = m.arcCenter = m.starA = m.pole = {1279.5, -3.25};
            m.starB = {-4000, 1e6};
            m.axisRadius = 2000;
            add("over the edge", m);
        }
    }
}

void OverlayTest::shapes()
{
    QFETCH(OverlayMarks, marks);
    QImage picture = sky();
    paintOverlay(picture, marks);
    QVERIFY(picture == drawn(marks));
}

void OverlayTest::pixels_data()
{
    QTest::addColumn<QString>("mark");
    QTest::addColumn<bool>("mono");
    QTest::addColumn<double>("share"); ///< of the mark's colour in its lit pixels, at least
    QTest::addColumn<QList<QPoint>>("lit");
    QTest::addColumn<QList<QPoint>>("dark"); ///< not drawn on
    QTest::addColumn<QColor>("colour");
    // The mark's centre is the middle of a pixel, so that upright lines fill whole pixels.
    const QList<QPoint> axisLit{{693, 400}, {696, 400}, {704, 400}, {707, 400},
                                {700, 393}, {700, 396}, {700, 404}, {700, 407}};
    const QList<QPoint> axisDark{{691, 400}, {709, 400}, {698, 400}, {702, 400},
                                 {700, 398}, {700, 391}, {700, 409}, {700, 400}};
    const QList<QPoint> arcLit{{297, 200}, {300, 200}, {303, 200}, {300, 197}, {300, 203}};
    // At 20 degrees the gaps of the ring are around 20 degrees and every quarter turn from there.
    const QList<QPoint> arcDark{{295, 200}, {305, 200}, {300, 195}, {300, 205},
                                {309, 197}, {297, 191}, {291, 203}, {303, 209}};
    const QList<QPoint> starLit{{895, 600}, {905, 600}, {900, 595}, {900, 605}, {900, 580},
                                {900, 620}, {880, 600}, {920, 600}, {882, 580}, {920, 618},
                                {95, 800},  {105, 800}, {80, 800},  {120, 800}};
    const QList<QPoint> starDark{{893, 600}, {907, 600}, {900, 593}, {900, 607}, {878, 600},
                                 {922, 600}, {881, 581}, {919, 619}, {78, 800},  {122, 800}};
    const QList<QPoint> poleLit{{492, 500}, {508, 500}, {500, 492}, {500, 508},
                                {494, 494}, {497, 494}, {494, 497}, {506, 494},
                                {503, 494}, {506, 497}, {494, 506}, {497, 506},
                                {494, 503}, {506, 506}, {503, 506}, {506, 503}};
    const QList<QPoint> poleDark{{490, 500}, {510, 500}, {500, 490}, {500, 510}, {499, 494},
                                 {494, 499}, {492, 494}, {508, 506}, {506, 499}, {502, 506}};
    const QList<QPoint> circleDark{{700, 400}, {700, 278}, {700, 283}, {578, 400}, {822, 400}};
    QTest::newRow("axis") << "axis" << false << 0.98 << axisLit << axisDark << red;
    QTest::newRow("axis, mono") << "axis" << true << 0.98 << axisLit << axisDark << white;
    QTest::newRow("arc") << "arc" << false << 0.98 << arcLit << arcDark << white;
    QTest::newRow("arc, mono") << "arc" << true << 0.98 << arcLit << arcDark << white;
    QTest::newRow("stars") << "stars" << false << 0.98 << starLit << starDark << white;
    QTest::newRow("stars, mono") << "stars" << true << 0.98 << starLit << starDark << white;
    QTest::newRow("pole") << "pole" << false << 0.98 << poleLit << poleDark << green;
    QTest::newRow("pole, mono") << "pole" << true << 0.98 << poleLit << poleDark << white;
    // The rasteriser's polygon cuts some of the circle's outermost pixels.
    const QList<QPoint> circleLit{{700, 280}, {700, 520}, {580, 400}, {820, 400}};
    QTest::newRow("circle") << "circle" << false << 0.6 << circleLit << circleDark
                            << QColor(224, 134, 26);
    QTest::newRow("circle, mono") << "circle" << true << 0.6 << circleLit << circleDark
                                  << QColor(248, 248, 255);
}

void OverlayTest::pixels()
{
    QFETCH(QString, mark);
    QFETCH(bool, mono);
    QFETCH(double, share);
    QFETCH(QList<QPoint>, lit);
    QFETCH(QList<QPoint>, dark);
    QFETCH(QColor, colour);
    QImage picture = sky();
    paintOverlay(picture, shown(qPrintable(mark), mono));
    const QColor dim = sky().pixelColor(0, 0);
    const auto isLit = [&](QPoint point) {
        const QColor found = picture.pixelColor(point);
        const auto enough = [share](int value, int from, int to) {
            const double wanted = from + share * (to - from);
            return from < to ? value >= wanted && value <= to : value <= wanted && value >= to;
        };
        return enough(found.red(), dim.red(), colour.red()) &&
               enough(found.green(), dim.green(), colour.green()) &&
               enough(found.blue(), dim.blue(), colour.blue());
    };
    for (const QPoint &point : lit)
        QVERIFY2(isLit(point), qPrintable(QStringLiteral("lit %1,%2: %3")
                                              .arg(point.x())
                                              .arg(point.y())
                                              .arg(picture.pixelColor(point).name())));
    for (const QPoint &point : dark)
        QVERIFY2(picture.pixelColor(point) == sky().pixelColor(point),
                 qPrintable(QStringLiteral("dark %1,%2").arg(point.x()).arg(point.y())));
}

void OverlayTest::nothingShown()
{
    QImage picture = sky();
    paintOverlay(picture, hidden(false));
    QVERIFY(picture == sky());
}

void OverlayTest::currentState()
{
    Session session;
    session.overlayFlags.showAxisMark = true;
    session.overlayFlags.showStarCircle = false;
    session.overlayFlags.showRotatingArc = true;
    session.overlayFlags.showMonitorCross = false;
    session.overlayFlags.showPoleRect = true;
    session.overlayFlags.monoStyle = true;
    session.overlayFlags.arcAngle = 30;
    session.alignmentPoints.savedAxisCenter = QPointF(1, 2);
    session.alignmentPoints.savedAxisRadius = 3;
    session.alignmentPoints.polarisTarget = QPointF(4, 5);
    session.monitorPositions.starACurrent = QPointF(6, 7);
    session.monitorPositions.starBCurrent = QPointF(8, 9);
    session.monitorPositions.poleCurrent = QPointF(10, 11);
    session.monitorPositions.poleValid = true;
    const OverlayMarks m = marksOf(session);
    QVERIFY(m.showAxisMark && !m.showStarCircle && m.showRotatingArc && !m.showMonitorCross);
    QVERIFY(m.showPoleRect && m.monoStyle);
    QCOMPARE(m.axisCenter, QPointF(1, 2));
    QCOMPARE(m.axisRadius, 3);
    QCOMPARE(m.arcCenter, QPointF(4, 5));
    QCOMPARE(m.arcAngle, 30.0);
    QCOMPARE(m.starA, QPointF(6, 7));
    QCOMPARE(m.starB, QPointF(8, 9));
    QCOMPARE(m.pole, QPointF(10, 11));
}

void OverlayTest::eachFlagDrawsItsMark_data()
{
    QTest::addColumn<QString>("mark");
    QTest::addColumn<bool>("mono");
    for (const char *const mark : {"none", "axis", "circle", "arc", "stars", "pole", "all"})
        for (const bool mono : {false, true})
            QTest::addRow("%s, %s", mark, mono ? "mono" : "colour") << mark << mono;
}

/// From the shared state to the pixels.
void OverlayTest::eachFlagDrawsItsMark()
{
    QFETCH(QString, mark);
    QFETCH(bool, mono);
    const OverlayMarks wanted = shown(qPrintable(mark), mono);
    const auto flag = [&mark](const char *name) { return mark == name || mark == "all"; };
    Session session;
    session.overlayFlags.showAxisMark = flag("axis");
    session.overlayFlags.showStarCircle = flag("circle");
    session.overlayFlags.showRotatingArc = flag("arc");
    session.overlayFlags.showMonitorCross = flag("stars");
    session.overlayFlags.showPoleRect = flag("pole");
    session.overlayFlags.monoStyle = mono;
    session.overlayFlags.arcAngle = wanted.arcAngle;
    session.alignmentPoints.savedAxisCenter = wanted.axisCenter;
    session.alignmentPoints.savedAxisRadius = wanted.axisRadius;
    session.alignmentPoints.polarisTarget = wanted.arcCenter;
    session.monitorPositions.starACurrent = wanted.starA;
    session.monitorPositions.starBCurrent = wanted.starB;
    session.monitorPositions.poleCurrent = wanted.pole;
    session.monitorPositions.poleValid = true;
    QImage picture = sky();
    paintOverlay(picture, marksOf(session));
    QVERIFY(picture == drawn(wanted));
    QCOMPARE(picture == sky(), mark == "none");
}

void OverlayTest::poleIsLeftOutWhileThereIsNone()
{
    Session session;
    session.overlayFlags.showPoleRect = true;
    session.overlayFlags.showMonitorCross = true;
    session.monitorPositions.poleValid = false;
    QVERIFY(!marksOf(session).showPoleRect);
    QVERIFY(marksOf(session).showMonitorCross);
    session.monitorPositions.poleValid = true;
    QVERIFY(marksOf(session).showPoleRect);
}

QTEST_GUILESS_MAIN(OverlayTest)
#include "tst_overlay.moc"
