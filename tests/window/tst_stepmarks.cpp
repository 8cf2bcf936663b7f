// SPDX-License-Identifier: MIT
// Which marks are over the shown picture in each step of the alignment?
#include "camera/overlay.h"
#include "tests/support/mainwindowprobe.h"
#include "tests/window/camerawindow.h"

#include <QLabel>
#include <QtTest>

namespace
{
/// How entering each step changes the axis mark, the star circle, the rotating arc and the three
/// marks of monitor mode: '1' on, '0' off, '-' unchanged.
const char *const stepRows[] = {"0000", "----", "00--", "00--", "00--", "00--", "00--",
                                "11--", "101-", "101-", "100-", "----", "---1"};

bool after(char change, bool before)
{
    return change == '-' ? before : change == '1';
}
} // namespace

class StepMarksTest : public QObject
{
    Q_OBJECT

private slots:
    void marks_data();
    void marks();
};

void StepMarksTest::marks_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<bool>("before"); ///< whether everything was shown before
    for (int step = 1; step <= 13; ++step)
        for (const bool before : {false, true})
            QTest::addRow("step %d, %s before", step, before ? "all marks" : "no mark")
                << step << before;
}

/// From the step to the pixels on the screen. The marks do not overlap.
void StepMarksTest::marks()
{
    QFETCH(int, step);
    QFETCH(bool, before);
    const CameraWindow w;
    showFrame(starFrame({})); // black: the search positions stay
    w.connectCamera();
    MainWindowProbe probe(*w.window);
    probe.angleTimer().stop();
    OverlayFlags &flags = w.session().overlayFlags;
    for (Relaxed<bool> *const flag :
         {&flags.showAxisMark, &flags.showStarCircle, &flags.showRotatingArc,
          &flags.monitorTracking, &flags.showPoleRect, &flags.showMonitorCross})
        *flag = before;
    w.session().overlayFlags.arcAngle = 20;
    w.session().alignmentPoints.savedAxisCenter = QPointF(640.5, 480.5);
    w.session().alignmentPoints.savedAxisRadius = 90;
    w.session().alignmentPoints.polarisTarget = QPointF(300.5, 700.5);
    w.session().alignmentPoints.angleBAP = 40.0;
    w.session().alignmentPoints.angleABP = 60.0;
    w.session().monitorPositions.starASearch = QPointF(400.5, 300.5);
    w.session().monitorPositions.starBSearch = QPointF(800.5, 620.5);
    probe.switchStep(step);
    QVERIFY(w.waitForNewFrame());
    sdk().setFramesLeft(0);

    OverlayMarks marks;
    const char *const row = stepRows[step - 1];
    marks.showAxisMark = after(row[0], before);
    marks.showStarCircle = after(row[1], before);
    marks.showRotatingArc = after(row[2], before);
    marks.showMonitorCross = marks.showPoleRect = after(row[3], before);
    marks.axisCenter = QPointF(640.5, 480.5);
    marks.axisRadius = 90;
    marks.arcCenter = QPointF(300.5, 700.5);
    marks.arcAngle = 20;
    marks.starA = QPointF(400.5, 300.5);
    marks.starB = QPointF(800.5, 620.5);
    marks.pole = w.session().monitorPositions.poleCurrent;
    QImage expected(1280, 960, QImage::Format_RGB888);
    expected.fill(Qt::black);
    if (marks.showPoleRect)
        QVERIFY(expected.rect().adjusted(20, 20, -20, -20).contains(marks.pole.toPoint()));
    paintOverlay(expected, marks);
    const QImage picture = w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).toImage();
    QVERIFY(picture.convertToFormat(QImage::Format_RGB888) == expected);
}

QTEST_MAIN(StepMarksTest)
#include "tst_stepmarks.moc"
