// SPDX-License-Identifier: MIT
// How do the queued pictures and the frame rate come onto the screen?
#include "mainwindow/mainwindow.h"

#include "camera/camerastate.h"
#include "camera/frames.h"
#include "camera/locker.h"
#include "camera/sharedstate.h"
#include "dialogs/magnifierwidget.h"
#include "geometry/saturate.h"
#include "mainwindow/pointtext.h"
#include "ui_mainwindow.h"

#include <QLabel>
#include <algorithm>
#include <optional>
#include <utility>

namespace
{
/// The largest side of a shown picture: a zoom factor that asks for more is held here.
constexpr int largestSide = 8192;

int scaledSide(int side, float zoomFactor)
{
    return std::min(saturatingInt(double(float(side) * zoomFactor)), largestSide);
}

/// Takes the oldest picture out of `queue`; a null picture if there is none.
QImage takeOldest(QList<QImage> &queue, QMutex &mutex)
{
    const Locker lock(mutex);
    return queue.isEmpty() ? QImage() : queue.takeFirst();
}
} // namespace

void MainWindow::updateFPS()
{
    const Locker lock(fpsMutex);
    fpsLabel->clear();
    fpsLabel->setText(
        QStringLiteral("FPS : %1.%2").arg(cameraState.fpsWhole).arg(cameraState.fpsTenths));
}

void MainWindow::showImages()
{
    // The lock is held for the taking alone: the capture thread need not wait for the scaling.
    const QImage picture = takeOldest(frameQueue, frameMutex);
    if (!picture.isNull()) {
        sinceLastPicture.start();
        displayImage = picture.scaled(scaledSide(picture.width(), zoomFactor),
                                      scaledSide(picture.height(), zoomFactor), Qt::KeepAspectRatio,
                                      Qt::SmoothTransformation);
        const QPixmap pixmap = QPixmap::fromImage(displayImage);
        ui->label_showImg->setPixmap(pixmap);
        if (const auto place = std::exchange(placeAfterZoom, std::nullopt))
            scrollTo(*place);
        magnifier->setSource(pixmap);
        magnifier->update();
    }
    if (!overlayFlags.monitorTracking)
        return;
    const QImage enlarged = takeOldest(magnifierQueue, magnifierMutex);
    if (enlarged.isNull())
        return;
    ui->label_biggerImg->setPixmap(QPixmap::fromImage(enlarged));
    ui->label_refStarA_pos->setText(pointText(monitorPositions.starACurrent));
    ui->label_refStarB_pos->setText(pointText(monitorPositions.starBCurrent));
}
