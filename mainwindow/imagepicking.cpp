// SPDX-License-Identifier: MIT
// What does the mouse do over the picture and the instruction pages?
#include "mainwindow/mainwindow.h"

#include "camera/session.h"
#include "geometry/axiscentre.h"
#include "geometry/stardetection.h"
#include "geometry/starfinder.h"
#include "mainwindow/pointtext.h"
#include "mainwindow/wizardtable.h"
#include "ui_mainwindow.h"
#include "widgets/magnifierwidget.h"

#include <QLabel>
#include <QMessageBox>
#include <QMouseEvent>
#include <QTabWidget>
#include <QTimer>
#include <QtDebug>

namespace
{
/// The frame position of a view pixel, in single precision.
QPointF framePosition(QPoint view, float zoomFactor)
{
    return {double(float(view.x()) / zoomFactor), double(float(view.y()) / zoomFactor)};
}

/// How far a picked position may be from the star's own centroid, frame pixels: another star within
/// the centroid's window pulls the pick aside.
constexpr double pickReach = 5.0;

/// The event's position in whole pixels of its target widget; halves are rounded up.
QPoint positionOf(const QEvent *event)
{
    const QPointF position = static_cast<const QMouseEvent *>(event)->localPos();
    return {qRound(position.x()), qRound(position.y())};
}
} // namespace

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    const bool isMove = event->type() == QEvent::MouseMove;
    const bool isDoubleClick = event->type() == QEvent::MouseButtonDblClick;
    if (session.camera.cameraConnected) {
        if (watched == ui->label_showImg && (isMove || isDoubleClick))
            return imageEvent(event);
        if (watched != ui->label_showImg && isMove)
            return pageEvent(event);
    }
    return QMainWindow::eventFilter(watched, event);
}

bool MainWindow::imageEvent(QEvent *event)
{
    const QPoint view = positionOf(event);
    followPointer(view);
    if (event->type() == QEvent::MouseButtonDblClick &&
        !beganWith(buttonPress, *static_cast<QMouseEvent *>(event)))
        pickStar(view);
    return true;
}

/// The read-out over a page accounts only for the position of the tab widget; it is never used for
/// picking.
bool MainWindow::pageEvent(QEvent *event)
{
    followPointer(tipTabs->pos() + positionOf(event));
    return true;
}

/// Shows the pointer's frame position and magnifies what is under it.
void MainWindow::followPointer(QPoint view)
{
    positionLabel->setText(coordinateText(framePosition(view, zoomFactor)));
    const QPixmap picture = ui->label_showImg->pixmap(Qt::ReturnByValue);
    if (picture.isNull()) {
        qCritical("no pixmap has been set in the Label_showImg");
        return;
    }
    magnifier->setSource(picture);
    magnifier->setCentre(view);
    magnifier->update();
}

void MainWindow::pickStar(QPoint view)
{
    const QPointF start = framePosition(view, zoomFactor);
    const cv::Mat frame = session.latestFrame.copy();
    double x = 0, y = 0;
    if (GetPreciseStarPos(&frame, start.x(), start.y(), x, y) != 0) {
        QMessageBox::warning(this, tr("Warn"),
                             tr("Seems no star in this point, please try other point."),
                             QMessageBox::Ok);
        return;
    }
    const QPointF star(x, y);
    progress.pick(currentStep, star, isStarNear(findStars(frame), star, pickReach));
    switch (currentStep) {
    case MatchTemplate:
        placeTemplateAt(view);
        break;
    case FirstPick:
        starPos1 = star;
        qDebug() << "star pos1" << x << y;
        switchStep(wizardStep(FirstPick).afterPick.value());
        break;
    case SecondPick:
        starPos2 = star;
        qDebug() << "star pos2" << x << y;
        switchStep(wizardStep(SecondPick).afterPick.value());
        break;
    case ThirdPick:
        pickThirdStar(star);
        break;
    case ExpectedPosition:
    case CurrentPosition:
        pickPoleStar(view, star);
        break;
    default:
        break;
    }
    showNotice();
}

/// Centres the template on the click position, not on the star.
void MainWindow::placeTemplateAt(QPoint view)
{
    clickViewPos = view;
    templateCenter = framePosition(view, zoomFactor);
    QLabel &label = *ui->label_templateImg;
    label.move(view.x() - label.width() / 2, view.y() - label.height() / 2);
    label.show();
    rotateTemplate(rotateValue);
    effectTimer->start();
}

void MainWindow::pickPoleStar(QPoint view, QPointF star)
{
    placeTemplateAt(view);
    polarisPos = star;
    ui->label_curPos->setText(pointText(star));
    // Otherwise the target of an earlier pick would stay until the slider is moved.
    showPolarisTarget();
}

void MainWindow::pickThirdStar(QPointF star)
{
    starPos3 = star;
    qDebug() << "star pos3" << star.x() << star.y();
    double x = axisCenter.x(), y = axisCenter.y();
    if (CenterOfCircle(starPos1.x(), starPos1.y(), starPos2.x(), starPos2.y(), starPos3.x(),
                       starPos3.y(), x, y, axisRadius) != 0) {
        QMessageBox::warning(this, tr("Warn"),
                             tr("Can not get the Axis center, please click 'reset' to re-find it."),
                             QMessageBox::Ok);
        return;
    }
    axisCenter = QPointF(x, y);
    progress.fitAxis(axisCenter);
    qDebug() << "axis center" << x << y << axisRadius;
    session.alignmentPoints.savedAxisCenter = axisCenter;
    session.alignmentPoints.savedAxisRadius = axisRadius;
    switchStep(wizardStep(ThirdPick).afterPick.value());
}
