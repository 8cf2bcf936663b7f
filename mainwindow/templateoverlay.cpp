// SPDX-License-Identifier: MIT
// Where is the template over the picture, and how does it follow the sliders and the zoom?
#include "mainwindow/mainwindow.h"

#include "camera/session.h"
#include "core/poolthread.h"
#include "core/saturate.h"
#include "geometry/starcatalogue.h"
#include "geometry/templateoverlay.h"
#include "geometry/templatepole.h"
#include "mainwindow/pointtext.h"
#include "mainwindow/wizardtable.h"
#include "ui_mainwindow.h"
#include "widgets/magnifierwidget.h"

#include <QCoreApplication>
#include <QLabel>
#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <algorithm>

namespace
{
/// Size of the arrow picture at full zoom, pixels.
const QSize arrowSize(238, 171);
/// Size limit of the arrow at any zoom factor, pixels.
constexpr int largestArrow = 4096;

void showPlaced(QLabel &label, const PlacedTemplate &placed)
{
    if (placed.image.isNull())
        return;
    label.setGeometry(placed.geometry);
    label.setPixmap(pixmapOf(placed.image));
}
} // namespace

/// The poles are marked in the masks themselves, so that the marks rotate and scale with them.
void MainWindow::computeTemplatePoles()
{
    if (!northMask.isNull())
        computeTemplatePole(northCatalogue, northMask, "north");
    if (!southMask.isNull())
        computeTemplatePole(southCatalogue, southMask, "south");
}

void MainWindow::rotateTemplate(int angle)
{
    if (ui->label_templateImg->isVisible())
        showPlaced(*ui->label_templateImg, inPoolThread([&] {
            return turnTemplate(regionMask(), angle, zoomFactor, clickViewPos);
        }));
    rotateValue = angle;
}

void MainWindow::showFlatTemplate()
{
    showPlaced(*ui->label_templateImg, inPoolThread([&] {
        return flatTemplate(regionMask(), zoomFactor, templateCenter);
    }));
}

/// Computes from the template's angle where the pole star must be placed, and shows it.
void MainWindow::showPolarisTarget()
{
    const QPointF pole = expectedPole(regionCatalogue(), rotateValue, polarisPos);
    const QPointF target = polarisTarget(polarisPos, pole, session.alignmentPoints.savedAxisCenter);
    session.alignmentPoints.polarisTarget = target;
    ui->label_eptPos->setText(pointText(target));
}

void MainWindow::scaleDirectionArrow()
{
    const auto side = [this](int full) {
        return std::min(saturatingInt(double(float(full) * zoomFactor)), largestArrow);
    };
    const QImage arrow = inPoolThread([&] {
        return QImage(QStringLiteral(":/images/direction.png"))
            .convertToFormat(QImage::Format_ARGB32_Premultiplied)
            .scaled(side(arrowSize.width()), side(arrowSize.height()), Qt::KeepAspectRatio,
                    Qt::SmoothTransformation);
    });
    directionArrow->setPixmap(QPixmap::fromImage(arrow));
    placeImageOverlays();
}

/// The picture position in the middle of its visible part, frame pixels.
QPointF MainWindow::placeInView() const
{
    const QPoint origin = ui->scrollAreaWidgetContents_showImg->pos();
    const QRect area = ui->scrollArea_showImg->viewport()->rect().translated(-origin);
    return QRectF(area & ui->label_showImg->geometry()).center() / double(zoomFactor);
}

/// Scrolls as far as possible until a picture position is in the middle. Pending size changes are
/// laid out first.
void MainWindow::scrollTo(QPointF framePosition)
{
    QWidget &contents = *ui->scrollAreaWidgetContents_showImg;
    contents.layout()->activate();
    contents.resize(contents.minimumSizeHint());
    // A posted event shows and hides the scroll bars, which changes the viewport's size.
    QCoreApplication::sendPostedEvents(ui->scrollArea_showImg, QEvent::MetaCall);
    const QPointF view = framePosition * double(zoomFactor);
    const QSizeF area = ui->scrollArea_showImg->viewport()->size();
    ui->scrollArea_showImg->horizontalScrollBar()->setValue(
        saturatingInt(view.x() - area.width() / 2));
    ui->scrollArea_showImg->verticalScrollBar()->setValue(
        saturatingInt(view.y() - area.height() / 2));
}

/// The middle of the view and of the magnifier stay on the same picture position.
void MainWindow::setZoom(float factor)
{
    if (zoomFactor > 0.0F && factor != zoomFactor) {
        if (!placeWithNextPicture) // a pending place stays: the view still has an older factor
            placeWithNextPicture = placeInView();
        const QPointF magnified =
            QPointF(magnifier->magnifiedCentre()) * double(factor / zoomFactor);
        magnifier->setCentre({saturatingInt(magnified.x()), saturatingInt(magnified.y())});
    }
    zoomFactor = factor;
    scaleDirectionArrow();
    showFlatTemplate();
    if (!showsTemplate(currentStep))
        return;
    clickViewPos = viewPosition(zoomFactor, templateCenter);
    rotateTemplate(rotateValue);
}

void MainWindow::on_action100_toggled(bool checked)
{
    if (checked)
        setZoom(1.0F);
}

void MainWindow::on_action75_toggled(bool checked)
{
    if (checked)
        setZoom(0.75F);
}

void MainWindow::on_action50_toggled(bool checked)
{
    if (checked)
        setZoom(0.5F);
}

void MainWindow::on_horizontalSlider_confirm_match_valueChanged(int value)
{
    rotateTemplate(value);
}

void MainWindow::on_horizontalSlider_rough_match_valueChanged(int value)
{
    rotateTemplate(value);
    showPolarisTarget();
}

/// Turns the shared angle by some degrees, within 0 to 360, and moves `slider` there.
/// @param turned the slider's slot; also called if the slider is already there, since the sliders
/// share the angle
void MainWindow::stepRotation(QSlider &slider, int degrees, void (MainWindow::*turned)(int))
{
    rotateValue = std::clamp(rotateValue + degrees, slider.minimum(), slider.maximum());
    {
        const QSignalBlocker blocker(slider);
        slider.setValue(rotateValue);
    }
    (this->*turned)(rotateValue);
}

void MainWindow::on_pushButton_confirm_minus_clicked()
{
    stepRotation(*ui->horizontalSlider_confirm_match, -1,
                 &MainWindow::on_horizontalSlider_confirm_match_valueChanged);
}

void MainWindow::on_pushButton_confirm_add_clicked()
{
    stepRotation(*ui->horizontalSlider_confirm_match, 1,
                 &MainWindow::on_horizontalSlider_confirm_match_valueChanged);
}

void MainWindow::on_pushButton_rough_minus_clicked()
{
    stepRotation(*ui->horizontalSlider_rough_match, -1,
                 &MainWindow::on_horizontalSlider_rough_match_valueChanged);
}

void MainWindow::on_pushButton_rough_add_clicked()
{
    stepRotation(*ui->horizontalSlider_rough_match, 1,
                 &MainWindow::on_horizontalSlider_rough_match_valueChanged);
}
