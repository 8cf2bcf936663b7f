// SPDX-License-Identifier: MIT
// How do queued pictures and the frame rate reach the screen?
#include "mainwindow/mainwindow.h"

#include "camera/session.h"
#include "core/poolthread.h"
#include "core/saturate.h"
#include "mainwindow/pointtext.h"
#include "ui_mainwindow.h"
#include "widgets/magnifierwidget.h"

#include <QLabel>
#include <algorithm>
#include <optional>
#include <utility>

namespace
{
/// The largest side of a shown picture: a zoom factor that asks for more is held here.
constexpr int maxSide = 8192;

int scaledSide(int side, float zoomFactor)
{
    return std::min(saturatingInt(double(float(side) * zoomFactor)), maxSide);
}
} // namespace

void MainWindow::updateFPS()
{
    const FrameRate rate = session.frameRate.rate();
    fpsLabel->clear();
    fpsLabel->setText(QStringLiteral("FPS : %1.%2").arg(rate.whole).arg(rate.tenths));
}

void MainWindow::showImages()
{
    // The queue is locked only while the picture is taken, so scaling does not block the capture
    // thread.
    const QImage picture = session.frameQueue.takeOldest();
    if (!picture.isNull()) {
        sinceLastPicture.start();
        const QSize side(scaledSide(picture.width(), zoomFactor),
                         scaledSide(picture.height(), zoomFactor));
        displayImage = side == picture.size() ? picture : inPoolThread([&] {
            return picture.scaled(side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        });
        const QPixmap pixmap = QPixmap::fromImage(displayImage);
        ui->label_showImg->setPixmap(pixmap);
        if (const auto place = std::exchange(placeWithNextPicture, std::nullopt))
            scrollTo(*place);
        magnifier->setSource(pixmap);
        magnifier->update();
    }
    if (!session.overlayFlags.monitorTracking)
        return;
    const QImage enlarged = session.magnifierQueue.takeOldest();
    if (enlarged.isNull())
        return;
    ui->label_biggerImg->setPixmap(QPixmap::fromImage(enlarged));
    ui->label_refStarA_pos->setText(pointText(session.monitorPositions.starACurrent));
    ui->label_refStarB_pos->setText(pointText(session.monitorPositions.starBCurrent));
}
