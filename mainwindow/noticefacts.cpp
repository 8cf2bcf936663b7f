// SPDX-License-Identifier: MIT
// Which facts do the notices depend on, and where is the notice shown?
#include "mainwindow/mainwindow.h"

#include "camera/session.h"
#include "core/settingsfile.h"
#include "dialogs/poletrackingdialog.h"
#include "geometry/starcatalogue.h"
#include "mainwindow/notice.h"
#include "mainwindow/noticelabel.h"
#include "mainwindow/wizardtable.h"
#include "ui_mainwindow.h"
#include "widgets/magnifierwidget.h"

#include <QDial>
#include <QLabel>
#include <QStatusBar>
#include <QTabWidget>
#include <QtMath>
#include <cmath>

namespace
{
/// Half the side of the search area of a reference star, frame pixels.
constexpr double searchHalf = 20.0;
/// Radius of the rotating ring, frame pixels.
constexpr double ringRadius = 10.0;

QRectF searchArea(QPointF centre)
{
    return {centre - QPointF(searchHalf, searchHalf), QSizeF(2 * searchHalf, 2 * searchHalf)};
}

double direction(QPointF way)
{
    return qRadiansToDegrees(std::atan2(way.y(), way.x()));
}

/// The placement of the template that both reference stars imply.
TemplatePlace placeThrough(QPointF starA, QPointF starB, const StarCatalogue &catalogue, bool south)
{
    const QPointF onTemplate(catalogue.starAX - catalogue.starBX,
                             catalogue.starAY - catalogue.starBY);
    return {starB, direction(starA - starB) - direction(onTemplate), south};
}

/// A message such as F1's is painted left of the notice, which leaves it half of the bar, or all of
/// it while there is nothing to notice.
void shareWithMessage(NoticeLabel &notice, const QStatusBar &bar)
{
    const int besideMessage = notice.text().isEmpty() ? 0 : bar.width() / 2;
    notice.setMaximumWidth(bar.currentMessage().isEmpty() ? QWIDGETSIZE_MAX : besideMessage);
}
} // namespace

void MainWindow::buildNotice()
{
    noticeLabel = new NoticeLabel(ui->statusBar);
    noticeLabel->setObjectName(QStringLiteral("label_notice"));
    ui->statusBar->addPermanentWidget(noticeLabel, 1);
    connect(ui->statusBar, &QStatusBar::messageChanged, noticeLabel,
            [this] { shareWithMessage(*noticeLabel, *ui->statusBar); });
}

void MainWindow::showNotice()
{
    if (!session.camera.cameraConnected)
        sinceLastPicture.start();
    const auto notice = noticeFor(noticeFacts());
    noticeLabel->showSentence(notice ? noticeText(*notice) : QString());
    shareWithMessage(*noticeLabel, *ui->statusBar);
}

NoticeFacts MainWindow::noticeFacts() const
{
    NoticeFacts facts;
    facts.libraryUsable = session.camera.sdkReady;
    facts.connected = session.camera.cameraConnected;
    facts.pageShown = !tipTabs->isHidden();
    facts.secondsWithoutPicture = double(sinceLastPicture.elapsed()) / 1000.0;
    facts.zoomFactor = zoomFactor;
    facts.saveTrouble = saveTrouble(settingsFilePath());
    facts.step = currentStep;
    facts.monitoring = session.overlayFlags.monitorTracking;
    facts.hasAxis = session.alignmentPoints.savedAxisCenter.load() != QPointF(0, 0);
    facts.monitorPrepared = progress.monitorPrepared();
    facts.templateShown = !ui->label_templateImg->isHidden();
    facts.poleStarPicked = progress.poleStarPicked();
    facts.poleStarOnStar = progress.poleStarOnStar();
    facts.emptyPick = progress.emptyPick();
    facts.movedPixels = progress.movedPixels();
    if (progress.turns())
        facts.turnDegrees = progress.turns()->turnDegrees;
    facts.fitAtStart = progress.fitAtStart();
    facts.dialDegrees = trackingDialAngle();
    facts.dialAtStart = progress.dialAtStart();
    facts.ringUnderMagnifier = currentStep == MoveBolts && isRingUnderMagnifier();
    if (facts.connected &&
        (facts.monitoring || (showsTemplate(currentStep) && facts.templateShown)))
        lookAtFrame(facts);
    return facts;
}

/// Fills in the facts that need the stars of the latest frame; takes some milliseconds.
void MainWindow::lookAtFrame(NoticeFacts &facts) const
{
    const cv::Mat frame = session.latestFrame.copy();
    if (!facts.monitoring) {
        facts.fit = fitOfTemplate(frame);
        return;
    }
    const std::vector<FieldStar> stars = findStars(frame);
    const auto starA = brightestIn(stars, searchArea(session.monitorPositions.starASearch));
    const auto starB = brightestIn(stars, searchArea(session.monitorPositions.starBSearch));
    facts.starAFound = starA.has_value();
    facts.starBFound = starB.has_value();
    if (starA && starB)
        facts.fit = fitTemplate(placeThrough(*starA, *starB, regionCatalogue(), isSouth()),
                                regionCatalogue(), stars, {frame.cols, frame.rows});
}

TemplateFit MainWindow::fitOfTemplate(const cv::Mat &frame) const
{
    return fitTemplate({templateCenter, double(rotateValue), isSouth()}, regionCatalogue(),
                       findStars(frame), {frame.cols, frame.rows});
}

bool MainWindow::isRingUnderMagnifier() const
{
    const QPointF target = session.alignmentPoints.polarisTarget.load() * double(zoomFactor);
    const QPointF place = ui->label_showImg->mapTo(ui->scrollArea_showImg, target.toPoint());
    const QRectF lens = magnifier->geometry();
    const QPointF way = place - lens.center();
    return std::hypot(way.x(), way.y()) < lens.width() / 2 + ringRadius * double(zoomFactor);
}

int MainWindow::trackingDialAngle() const
{
    return trackingDialog->findChild<QDial *>(QStringLiteral("dial_tracking"))->value();
}
