// SPDX-License-Identifier: MIT
// Where exactly does a double click search, and where is the template afterwards, at each zoom and
// in a scrolled picture?
#include "mainwindow/pointtext.h"
#include "tests/support/mainwindowprobe.h"
#include "tests/window/pickingwindow.h"

#include <QPushButton>

namespace
{
constexpr int searchSide = 40;

/// The middle of a search window, which is 40 pixels wide and high.
QPoint middleOf(QPoint corner)
{
    return corner + QPoint(searchSide / 2, searchSide / 2);
}

void fill(cv::Mat &frame, const QRect &area, int light)
{
    frame(cv::Rect(area.x(), area.y(), area.width(), area.height())).setTo(light);
}

/// A faint patch in the middle of the window with that corner, and bright bars just outside its
/// four sides: one row or column further, and a bar is found instead.
cv::Mat fencedFrame(QPoint corner)
{
    constexpr int thick = 5, gap = 5;
    cv::Mat frame(960, 1280, CV_8UC1, cv::Scalar(0));
    const QRect window(corner, QSize(searchSide, searchSide));
    const QRect inner = window.adjusted(gap, gap, -gap, -gap);
    fill(frame, {window.left() - thick, inner.top(), thick, inner.height()}, 250);
    fill(frame, {window.right() + 1, inner.top(), thick, inner.height()}, 250);
    fill(frame, {inner.left(), window.top() - thick, inner.width(), thick}, 250);
    fill(frame, {inner.left(), window.bottom() + 1, inner.width(), thick}, 250);
    const QPoint middle = middleOf(corner);
    fill(frame, {middle.x() - 2, middle.y() - 2, 5, 5}, 120);
    return frame;
}

QPoint middle(const QRect &r)
{
    return r.topLeft() + QPoint((r.width() - 1) / 2, (r.height() - 1) / 2);
}
} // namespace

class PickingPlacesTest : public QObject
{
    Q_OBJECT

private slots:
    void searchWindow_data();
    void searchWindow();
    void framesEdge_data();
    void framesEdge();
    void picks_data();
    void picks();
    void zoomAfterThePick_data();
    void zoomAfterThePick();
    void fitIsAccepted_data();
    void fitIsAccepted();
    void fitIsReset();
};

void PickingPlacesTest::searchWindow_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPoint>("view");
    QTest::addColumn<QString>("readOut");
    QTest::addColumn<QPoint>("corner"); ///< of the search window, frame pixels
    QTest::newRow("100") << 1.0 << QPoint(642, 480) << "642.0,480.0" << QPoint(622, 460);
    QTest::newRow("75") << 0.75 << QPoint(482, 362) << "642.7,482.7" << QPoint(622, 462);
    QTest::newRow("50") << 0.5 << QPoint(321, 240) << "642.0,480.0" << QPoint(622, 460);
}

void PickingPlacesTest::searchWindow()
{
    QFETCH(double, zoom);
    QFETCH(QPoint, view);
    QFETCH(QString, readOut);
    QFETCH(QPoint, corner);
    PickingWindow w(zoom);
    w.show(fencedFrame(corner));
    w.enterStep(3);
    const BoxWatcher boxes;
    w.doubleClick(view);
    QCOMPARE(boxes.boxes(), QList<Box>());
    QCOMPARE(w.position.text(), readOut);
    QCOMPARE(w.window->step(), 4);
    QCOMPARE(MainWindowProbe(*w.window).starPos1(), QPointF(middleOf(corner)));
}

void PickingPlacesTest::framesEdge_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPoint>("view");
    QTest::addColumn<bool>("found");
    const auto rows = [](const char *edge, double zoom, QPoint last, QPoint beyond) {
        QTest::addRow("%g, last at the %s", zoom * 100, edge) << zoom << last << true;
        QTest::addRow("%g, beyond the %s", zoom * 100, edge) << zoom << beyond << false;
    };
    rows("left", 1.0, {20, 480}, {19, 480});
    rows("left", 0.75, {15, 360}, {14, 360});
    rows("right", 0.75, {945, 360}, {946, 360});
    rows("bottom", 0.75, {480, 705}, {480, 706});
    rows("left", 0.5, {10, 240}, {9, 240});
    rows("right", 0.5, {630, 240}, {631, 240});
    rows("bottom", 0.5, {320, 470}, {320, 471});
}

/// The search needs all its 40 x 40 pixels: a star beyond the edge is there but is not searched
/// for.
void PickingPlacesTest::framesEdge()
{
    QFETCH(double, zoom);
    QFETCH(QPoint, view);
    QFETCH(bool, found);
    PickingWindow w(zoom);
    w.show(starFrame({{20, 480}, {1260, 480}, {640, 940}}));
    w.enterStep(3);
    const BoxWatcher boxes;
    w.doubleClick(view);
    QCOMPARE(boxes.boxes(), found ? QList<Box>() : QList<Box>{noStarBox});
    QCOMPARE(w.window->step(), found ? 4 : 3);
}

void PickingPlacesTest::picks_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPoint>("scroll");
    const struct {
        double zoom;
        QPoint scroll;
    } pictures[] = {{1.0, {}},        {0.75, {}},       {0.5, {}},
                    {1.0, {90, 120}}, {0.75, {90, 80}}, {0.5, {40, 30}}};
    for (const int step : {2, 9, 11})
        for (const auto &picture : pictures)
            QTest::addRow("step %d at %g%s", step, picture.zoom * 100,
                          picture.scroll.isNull() ? "" : ", scrolled")
                << step << picture.zoom << picture.scroll;
}

void PickingPlacesTest::picks()
{
    QFETCH(int, step);
    QFETCH(double, zoom);
    QFETCH(QPoint, scroll);
    const PickingWindow w(zoom, scroll);
    w.enterStep(step);
    const QPoint click = w.view(onLine[2]) + QPoint(2, -3);
    w.doubleClick(click);
    QVERIFY(QLineF(w.starAt(click), onLine[2]).length() < 0.1);
    QCOMPARE(w.child<QLabel>("label_curPos").text(),
             step == 2 ? QString("(0,0)") : pointText(w.starAt(click)));
    auto &label = w.child<QLabel>("label_templateImg");
    QVERIFY(label.isVisible());
    const int side = int(800 * zoom);
    QCOMPARE(label.size(), QSize(side, side));
    // On the screen the template's middle is under the mouse, whatever the scroll position.
    QCOMPARE(label.mapTo(w.window.get(), middle(label.rect())), w.inWindow(click));
}

void PickingPlacesTest::zoomAfterThePick_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPoint>("click");
    QTest::addColumn<QString>("action");
    QTest::addColumn<QPoint>("view"); ///< where the clicked frame position is then
    for (const int step : {2, 9, 11}) {
        const auto row = [step](double zoom, QPoint click, const char *action, QPoint view) {
            QTest::addRow("step %d, %g, %s", step, zoom * 100, action)
                << step << zoom << click << action << view;
        };
        row(1.0, {601, 451}, "action75", {450, 338}); // 450.75, 338.25
        row(1.0, {601, 451}, "action50", {300, 225});
        row(0.75, {451, 338}, "action100", {601, 450}); // frame pixel 601.33, 450.67
        row(0.75, {451, 338}, "action50", {300, 225});
        row(0.5, {301, 226}, "action100", {602, 452});
        row(0.5, {301, 226}, "action75", {451, 339}); // 451.5
    }
}

void PickingPlacesTest::zoomAfterThePick()
{
    QFETCH(int, step);
    QFETCH(double, zoom);
    QFETCH(QPoint, click);
    QFETCH(QString, action);
    QFETCH(QPoint, view);
    const PickingWindow w(zoom);
    const MainWindowProbe probe(*w.window);
    w.enterStep(step);
    w.doubleClick(click);
    QCOMPARE(probe.clickViewPos(), click);
    const QPointF clicked = probe.templateCenter();
    QVERIFY(QLineF(clicked, QPointF(click) / zoom).length() < 1e-3);
    w.trigger(qPrintable(action));
    QCOMPARE(probe.templateCenter(), clicked);
    QCOMPARE(probe.clickViewPos(), view);
    const auto &label = w.child<QLabel>("label_templateImg");
    QVERIFY(label.isVisible());
    QCOMPARE(middle(label.geometry()), view);
}

void PickingPlacesTest::fitIsAccepted_data()
{
    QTest::addColumn<double>("zoom");
    QTest::newRow("100") << 1.0;
    QTest::newRow("75") << 0.75;
    QTest::newRow("50") << 0.5;
}

/// "Correct" takes the centre from the fit, whatever has happened to the saved one meanwhile.
void PickingPlacesTest::fitIsAccepted()
{
    QFETCH(double, zoom);
    const PickingWindow w(zoom);
    w.pickThree(onCircle);
    QCOMPARE(w.window->step(), 8);
    const QPointF fitted = w.session().alignmentPoints.savedAxisCenter;
    QVERIFY(QLineF(fitted, QPointF(640, 480)).length() < 1);
    QCOMPARE(MainWindowProbe(*w.window).axisCenter(), fitted);
    w.session().alignmentPoints.savedAxisCenter = QPointF(1, 2);
    QTest::mouseClick(&w.child<QPushButton>("pushButton_validateCenter_done"), Qt::LeftButton);
    QCOMPARE(w.window->step(), 9);
    QCOMPARE(w.session().alignmentPoints.savedAxisCenter.load(), fitted);
    QCOMPARE(w.child<QLabel>("label_axisPos").text(), pointText(fitted));
}

/// "Reset" keeps the fit, and three other stars give a new one.
void PickingPlacesTest::fitIsReset()
{
    const PickingWindow w;
    w.pickThree(onCircle);
    const QPointF fitted = w.session().alignmentPoints.savedAxisCenter;
    QTest::mouseClick(&w.child<QPushButton>("pushButton_validateCenter_reset"), Qt::LeftButton);
    QCOMPARE(w.window->step(), 3);
    const MainWindowProbe probe(*w.window);
    QCOMPARE(probe.axisCenter(), fitted);
    QCOMPARE(w.session().alignmentPoints.savedAxisCenter.load(), fitted);
    QCOMPARE(w.child<QLabel>("label_axisPos").text(), QString("(0,0)"));
    const QPointF others[] = {onLine[0], onCircle[1], onCircle[2]};
    w.pickThree(others);
    QCOMPARE(w.window->step(), 8);
    QVERIFY(probe.axisCenter() != fitted);
    QCOMPARE(w.session().alignmentPoints.savedAxisCenter.load(), probe.axisCenter());
}

QTEST_MAIN(PickingPlacesTest)
#include "tst_pickingplaces.moc"
