// SPDX-License-Identifier: MIT
// What does a double click on the picture do in each step?
#include "geometry/axiscentre.h"
#include "geometry/starcatalogue.h"
#include "geometry/templateoverlay.h"
#include "mainwindow/pointtext.h"
#include "tests/support/logrecorder.h"
#include "tests/support/mainwindowprobe.h"
#include "tests/window/pickingwindow.h"

#include <QGraphicsEffect>
#include <QSlider>
#include <QTabWidget>

class PickingTest : public QObject
{
    Q_OBJECT

private slots:
    void stepsWithoutPick_data();
    void stepsWithoutPick();
    void templateOnThePoleStar_data();
    void templateOnThePoleStar();
    void poleStar_data();
    void poleStar();
    void pickGivesTheTarget_data();
    void pickGivesTheTarget();
    void threeStars_data();
    void threeStars();
    void threeOnALine();
    void twoOnARow_data();
    void twoOnARow();
    void emptyPatch_data();
    void emptyPatch();
    void emptyPatchChangesNothing_data() { emptyPatch_data(); }
    void emptyPatchChangesNothing();
    void nearTheEdge();
    void clicksOverAPageAreNoPicks();
    void scrolledClickFindsItsStar();
};

void PickingTest::stepsWithoutPick_data()
{
    QTest::addColumn<int>("step");
    for (const int step : {1, 4, 6, 8, 10, 12, 13})
        QTest::addRow("step %d", step) << step;
}

void PickingTest::stepsWithoutPick()
{
    QFETCH(int, step);
    const PickingWindow w;
    if (step == 4 || step == 6) {
        w.enterStep(step - 1);
        w.doubleClick(w.view(onCircle[0]));
    } else if (step == 8) {
        w.pickThree(onCircle);
    } else if (step != 1) {
        w.enterStep(step);
    }
    QCOMPARE(w.window->step(), step);
    const QRect place = w.child<QLabel>("label_templateImg").geometry();
    const QPointF axis = w.session().alignmentPoints.savedAxisCenter;
    const QString current = w.child<QLabel>("label_curPos").text();
    const BoxWatcher boxes;
    const LogRecorder log;
    w.doubleClick(w.view(onCircle[1]));
    QCOMPARE(w.window->step(), step);
    QCOMPARE(boxes.boxes(), QList<Box>());
    QCOMPARE(log.texts(QtDebugMsg), QStringList());
    QCOMPARE(w.child<QLabel>("label_templateImg").geometry(), place);
    QCOMPARE(w.child<QLabel>("label_curPos").text(), current);
    QCOMPARE(w.session().alignmentPoints.savedAxisCenter.load(), axis);
    w.doubleClick(w.view(empty));
    QCOMPARE(boxes.boxes(), QList<Box>{noStarBox});
    QCOMPARE(w.window->step(), step);
}

void PickingTest::templateOnThePoleStar_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<int>("angle");
    QTest::newRow("100") << 1.0 << 0;
    QTest::newRow("75") << 0.75 << 0;
    QTest::newRow("50") << 0.5 << 0;
    QTest::newRow("100, turned") << 1.0 << 90;
    QTest::newRow("50, turned askew") << 0.5 << 45;
}

void PickingTest::templateOnThePoleStar()
{
    QFETCH(double, zoom);
    QFETCH(int, angle);
    const PickingWindow w(zoom);
    w.enterStep(2);
    w.child<QSlider>("horizontalSlider_confirm_match").setValue(angle);
    auto &label = w.child<QLabel>("label_templateImg");
    QVERIFY(!label.isVisible());
    // Not on the star's middle: the template is where the click was.
    const QPoint click = w.view(onCircle[0]) + QPoint(3, -2);
    const BoxWatcher boxes;
    w.doubleClick(click);
    QVERIFY(label.isVisible());
    QCOMPARE(w.window->step(), 2);
    QCOMPARE(boxes.boxes(), QList<Box>());
    const QRect place = label.geometry();
    const int side = int(800 * zoom);
    if (angle % 90 == 0)
        QCOMPARE(place.size(), QSize(side, side));
    else
        QVERIFY(std::abs(place.width() - side * std::sqrt(2.0)) <= 2);
    QCOMPARE(place.topLeft(), click - QPoint((place.width() - 1) / 2, (place.height() - 1) / 2));
    QCOMPARE(label.pixmap(Qt::ReturnByValue).size(), place.size());
    // From now on the slider's glow blinks.
    QGraphicsEffect &glow = *w.child<QSlider>("horizontalSlider_confirm_match").graphicsEffect();
    const bool lit = glow.isEnabled();
    QTRY_VERIFY(glow.isEnabled() != lit);
    QTRY_VERIFY(glow.isEnabled() == lit);
}

void PickingTest::poleStar_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<double>("zoom");
    for (const int step : {9, 11})
        for (const double zoom : {1.0, 0.75, 0.5})
            QTest::addRow("step %d at %g", step, zoom) << step << zoom;
}

void PickingTest::poleStar()
{
    QFETCH(int, step);
    QFETCH(double, zoom);
    const PickingWindow w(zoom);
    w.enterStep(step);
    const QPoint click = w.view(onCircle[1]) + QPoint(-2, 2);
    const BoxWatcher boxes;
    w.doubleClick(click);
    QCOMPARE(w.window->step(), step);
    const QPointF star = w.starAt(click);
    QVERIFY(QLineF(star, onCircle[1]).length() < 0.1);
    QCOMPARE(w.child<QLabel>("label_curPos").text(), pointText(star));
    const QRect place = w.child<QLabel>("label_templateImg").geometry();
    QVERIFY(w.child<QLabel>("label_templateImg").isVisible());
    QCOMPARE(place.topLeft(), click - QPoint((place.width() - 1) / 2, (place.height() - 1) / 2));
    QGraphicsEffect &glow = *w.child<QSlider>("horizontalSlider_rough_match").graphicsEffect();
    const bool lit = glow.isEnabled();
    QTRY_VERIFY(glow.isEnabled() != lit);
    // A second pick replaces the first.
    w.doubleClick(w.view(onCircle[2]));
    QCOMPARE(w.child<QLabel>("label_curPos").text(), pointText(w.starAt(w.view(onCircle[2]))));
    QCOMPARE(boxes.boxes(), QList<Box>());
}

void PickingTest::pickGivesTheTarget_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("angle");
    for (const int step : {9, 11})
        for (const int angle : {0, 45})
            QTest::addRow("step %d, %d degrees", step, angle) << step << angle;
}

/// Each pick by itself: no slider is moved once the axis is known.
void PickingTest::pickGivesTheTarget()
{
    QFETCH(int, step);
    QFETCH(int, angle);
    const PickingWindow w;
    w.enterStep(step);
    w.child<QSlider>("horizontalSlider_rough_match").setValue(angle);
    w.session().alignmentPoints.savedAxisCenter = QPointF(612.5, 497.25);
    for (const QPointF &star : {onCircle[1], onLine[2]}) {
        w.doubleClick(w.view(star));
        const QPointF found = w.starAt(w.view(star));
        const QPointF pole = expectedPole(northCatalogue, angle, found);
        const QPointF target = polarisTarget(found, pole, {612.5, 497.25});
        QCOMPARE(w.child<QLabel>("label_eptPos").text(), pointText(target));
        QCOMPARE(w.session().alignmentPoints.polarisTarget.load(), target);
    }
}

void PickingTest::threeStars_data()
{
    QTest::addColumn<double>("zoom");
    QTest::newRow("100") << 1.0;
    QTest::newRow("75") << 0.75;
    QTest::newRow("50") << 0.5;
}

void PickingTest::threeStars()
{
    QFETCH(double, zoom);
    const PickingWindow w(zoom);
    const LogRecorder log;
    w.pickThree(onCircle);
    QCOMPARE(w.window->step(), 8);
    QPointF found[3];
    const auto pairText = [](QPointF p) {
        QString text;
        QDebug(&text).nospace() << p.x() << ' ' << p.y();
        return text;
    };
    for (int i = 0; i < 3; ++i) {
        found[i] = w.starAt(w.view(onCircle[i]));
        QVERIFY(QLineF(found[i], onCircle[i]).length() < 0.1);
        QVERIFY(log.contains(QtDebugMsg,
                             QStringLiteral("star pos%1 %2").arg(i + 1).arg(pairText(found[i]))));
    }
    double x = 0, y = 0;
    int radius = 0;
    QCOMPARE(CenterOfCircle(found[0].x(), found[0].y(), found[1].x(), found[1].y(), found[2].x(),
                            found[2].y(), x, y, radius),
             0);
    QVERIFY(QLineF(QPointF(x, y), QPointF(640, 480)).length() < 1);
    QCOMPARE(w.session().alignmentPoints.savedAxisCenter.load(), QPointF(x, y));
    QCOMPARE(w.session().alignmentPoints.savedAxisRadius.load(), radius);
    QVERIFY(log.contains(QtDebugMsg,
                         "axis center " + pairText({x, y}) + ' ' + QString::number(radius)));
}

/// After a failed fit the last one stays in effect; the pick is still the third star's.
void PickingTest::threeOnALine()
{
    const PickingWindow w;
    w.pickThree(onCircle);
    QCOMPARE(w.window->step(), 8);
    const QPointF before = w.session().alignmentPoints.savedAxisCenter;
    const int radius = w.session().alignmentPoints.savedAxisRadius;
    const MainWindowProbe probe(*w.window);
    const BoxWatcher boxes;
    const LogRecorder log;
    w.pickThree(onLine);
    QCOMPARE(boxes.boxes(), QList<Box>{noCentreBox});
    QCOMPARE(w.window->step(), 7);
    QCOMPARE(w.session().alignmentPoints.savedAxisCenter.load(), before);
    QCOMPARE(w.session().alignmentPoints.savedAxisRadius.load(), radius);
    QCOMPARE(probe.axisCenter(), before);
    QCOMPARE(probe.axisRadius(), radius);
    QCOMPARE(probe.starPos3(), w.starAt(w.view(onLine[2])));
    QVERIFY(log.texts(QtDebugMsg).filter("axis center").isEmpty());
    // Another third position, without a reset.
    w.doubleClick(w.view(onCircle[1]));
    QCOMPARE(boxes.boxes().size(), 1);
    QCOMPARE(w.window->step(), 8);
    QVERIFY(w.session().alignmentPoints.savedAxisCenter.load() != before);
    QCOMPARE(probe.axisCenter(), w.session().alignmentPoints.savedAxisCenter.load());
    QCOMPARE(probe.starPos3(), w.starAt(w.view(onCircle[1])));
}

void PickingTest::twoOnARow_data()
{
    QTest::addColumn<QList<int>>("rows"); ///< of the three picks in turn
    QTest::newRow("first and second") << QList<int>{350, 350, 450};
    QTest::newRow("second and third") << QList<int>{350, 450, 450};
}

/// No circle is fitted through them, which the window shows but the log does not.
void PickingTest::twoOnARow()
{
    QFETCH(QList<int>, rows);
    const QPointF stars[] = {
        {400, double(rows[0])}, {500, double(rows[1])}, {640, double(rows[2])}};
    PickingWindow w;
    w.show(starFrame({stars[0], stars[1], stars[2]}));
    const BoxWatcher boxes;
    const LogRecorder log;
    w.pickThree(stars);
    QCOMPARE(boxes.boxes(), QList<Box>{noCentreBox});
    QCOMPARE(w.window->step(), 7);
    QCOMPARE(log.texts(QtCriticalMsg), QStringList());
    QVERIFY(log.texts(QtDebugMsg).filter("cent").isEmpty());
}

void PickingTest::emptyPatch_data()
{
    QTest::addColumn<int>("step");
    for (const int step : {2, 3, 5, 7, 9, 11})
        QTest::addRow("step %d", step) << step;
}

void PickingTest::emptyPatch()
{
    QFETCH(int, step);
    const PickingWindow w(0.5);
    w.enterStep(step);
    const BoxWatcher boxes;
    w.doubleClick(w.view(empty));
    QCOMPARE(boxes.boxes(), QList<Box>{noStarBox});
    QCOMPARE(w.window->step(), step);
    QVERIFY(!w.child<QLabel>("label_templateImg").isVisible());
    QCOMPARE(w.position.text(), QStringLiteral("860.0,420.0"));
}

void PickingTest::emptyPatchChangesNothing()
{
    QFETCH(int, step);
    const PickingWindow w(0.5);
    const MainWindowProbe probe(*w.window);
    const auto text = [&w](const char *label) { return w.child<QLabel>(label).text(); };
    w.enterStep(9);
    w.doubleClick(w.view(onCircle[1])); // something to lose
    w.enterStep(3);                     // ends the blinking
    w.enterStep(step);
    w.session().alignmentPoints.savedAxisCenter =
        QPointF(601.5, 523.5); // a pick would give another target
    const QPoint view = probe.clickViewPos();
    const QPointF centre = probe.templateCenter();
    const QStringList texts{text("label_curPos"), text("label_eptPos"), text("label_axisPos")};
    const QPointF target = w.session().alignmentPoints.polarisTarget,
                  axis = w.session().alignmentPoints.savedAxisCenter;
    const QRect place = w.child<QLabel>("label_templateImg").geometry();
    QVERIFY(!probe.effectTimer().isActive());
    QVERIFY(texts[0] != "(0,0)");
    const BoxWatcher boxes;
    w.doubleClick(w.view(empty));
    QCOMPARE(boxes.boxes(), QList<Box>{noStarBox});
    QVERIFY(!probe.effectTimer().isActive());
    QCOMPARE(probe.clickViewPos(), view);
    QCOMPARE(probe.templateCenter(), centre);
    QCOMPARE(QStringList({text("label_curPos"), text("label_eptPos"), text("label_axisPos")}),
             texts);
    QCOMPARE(w.session().alignmentPoints.polarisTarget.load(), target);
    QCOMPARE(w.session().alignmentPoints.savedAxisCenter.load(), axis);
    QCOMPARE(w.child<QLabel>("label_templateImg").geometry(), place);
}

void PickingTest::nearTheEdge()
{
    const PickingWindow w;
    w.enterStep(3);
    const BoxWatcher boxes;
    w.doubleClick({10, 500}); // the search would leave the frame
    QCOMPARE(boxes.boxes(), QList<Box>{noStarBox});
    QCOMPARE(w.window->step(), 3);
}

void PickingTest::clicksOverAPageAreNoPicks()
{
    const PickingWindow w;
    w.enterStep(3);
    QWidget &page = *w.child<QTabWidget>("tabWidget_tipMsg").currentWidget();
    const BoxWatcher boxes;
    QTest::mouseDClick(w.window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       page.mapTo(w.window.get(), QPoint(20, 10)));
    QTest::qWait(30);
    QCOMPARE(boxes.boxes(), QList<Box>());
    QCOMPARE(w.window->step(), 3);
}

void PickingTest::scrolledClickFindsItsStar()
{
    const PickingWindow w(1.0, QPoint(90, 120));
    w.enterStep(9);
    w.doubleClick(w.view(onLine[0]));
    QCOMPARE(w.child<QLabel>("label_curPos").text(), pointText(w.starAt(w.view(onLine[0]))));
}

QTEST_MAIN(PickingTest)
#include "tst_picking.moc"
