// SPDX-License-Identifier: MIT
// Where does the capture thread search for the reference stars?
#include "mainwindow/mainwindow.h"

#include "camera/monitor.h"
#include "camera/session.h"
#include "geometry/axiscentre.h"
#include "geometry/templateoverlay.h"
#include "mainwindow/pointtext.h"
#include "mainwindow/wizardtable.h"
#include "ui_mainwindow.h"

#include <QtDebug>

namespace
{
QPointF turned(QPointF point, QPointF centre, double degrees)
{
    double x = 0, y = 0;
    RotatePointByDegrees(degrees, point.x(), point.y(), centre.x(), centre.y(), x, y);
    return {x, y};
}
} // namespace

void MainWindow::pushbuttonGetCurPolarisDoneClicked()
{
    const cv::Mat frame = session.latestFrame.copy();
    starAStart = starNear(frame, predictedStarA(regionCatalogue(), rotateValue, polarisPos));
    session.monitorPositions.starASearch = starAStart;
    qDebug() << "current StarA point" << starAStart.x() << starAStart.y();
    starBStart = starNear(frame, polarisPos);
    session.monitorPositions.starBSearch = starBStart;
    qDebug() << "current StarB point" << starBStart.x() << starBStart.y();
    ui->label_refStarA_pos->setText(pointText(starAStart));
    ui->label_refStarB_pos->setText(pointText(starBStart));
    progress.prepareMonitor(trackingDialAngle(), fitOfTemplate(frame));
    switchStep(wizardPage(CurrentPosition).forward.target.value());
}

void MainWindow::on_pushButton_monitor_clicked()
{
    session.magnifierQueue.clear(); // left over from an earlier run
    switchStep(FineAdjustment);
}

/// Always starts from the initial star positions: successive turns do not add up.
void MainWindow::poleTracking(double degree)
{
    const QPointF axis = session.alignmentPoints.savedAxisCenter;
    const QPointF a = turned(starAStart, axis, degree);
    const QPointF b = turned(starBStart, axis, degree);
    session.monitorPositions.starASearch = a;
    session.monitorPositions.starBSearch = b;
    qDebug() << "StarA area" << a.x() << a.y();
    qDebug() << "StarB area" << b.x() << b.y();
}
