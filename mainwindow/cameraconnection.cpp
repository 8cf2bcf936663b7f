// SPDX-License-Identifier: MIT
// How is the camera found, opened, set up and closed?
#include "mainwindow/mainwindow.h"

#include "camera/cameraopening.h"
#include "camera/session.h"
#include "core/poolthread.h"
#include "core/saturate.h"
#include "mainwindow/wizardtable.h"
#include "ui_mainwindow.h"
#include "widgets/magnifierwidget.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMessageBox>
#include <QTimer>
#include <QtDebug>
#include <algorithm>

namespace
{
/// Milliseconds between two looks at a closing that takes its time.
constexpr int pollInterval = 20;

/// Sets a slider and the edit box beside it without emitting signals: a value that was just read
/// must not be written back to the camera.
void showParameter(QSlider &slider, QLineEdit &edit, int value)
{
    const QSignalBlocker sliderBlocker(slider);
    const QSignalBlocker editBlocker(edit);
    slider.setValue(value);
    edit.setText(QString::number(value));
}
} // namespace

void MainWindow::on_actionConnect_triggered()
{
    if (!session.camera.sdkReady || cameraClosing.isUnderWay())
        return;
    noteSettings();
    if (session.camera.cameraConnected)
        disconnectCamera();
    else
        connectCamera();
}

void MainWindow::connectCamera()
{
    if (!chooseCamera()) {
        showNotFound();
        return;
    }
    if (!openCamera())
        return;
    session.camera.cameraConnected = true;
    ui->actionConnect->setText(tr("Disconnect"));
    switchStep(SetExposure);
    showConnected(true);
    setWindowTitle(QStringLiteral("Quorvandel - ID:%1").arg(session.camera.cameraId));
    configureCamera();
    placeWithNextPicture =
        QPointF(session.camera.roiWidth / 2.0, session.camera.roiHeight / 2.0); // its centre
    captureThread->startCapture();
}

void MainWindow::showNotFound()
{
    QMessageBox::information(this, tr("Info"), tr("Not Found VELDIX Quorvandel equipment!"),
                             QMessageBox::Ok);
}

/// Stores the ID of the first camera of our model in cameraId; false if there is none.
bool MainWindow::chooseCamera()
{
    const std::vector<std::string> found = findCameras(1);
    if (found.empty())
        return false;
    qstrncpy(session.camera.cameraId, found.front().c_str(), sizeof session.camera.cameraId);
    return true;
}

/// Opens and initialises the chosen camera. If a step after opening fails, the camera stays open.
bool MainWindow::openCamera()
{
    switch (::openCamera(session)) {
    case OpeningResult::Opened:
        return true;
    case OpeningResult::NoHandle:
        QMessageBox::critical(this, tr("Error"),
                              tr("Can not connect Quorvandel as OpenVELDIX error!"),
                              QMessageBox::Ok);
        break;
    case OpeningResult::StreamModeRefused:
        break;
    case OpeningResult::NotInitialised:
        QMessageBox::critical(this, tr("Error"),
                              tr("Can not connect Quorvandel as InitVELDIX error!"),
                              QMessageBox::Ok);
        break;
    }
    return false;
}

/// Sets frame format and transfer, and shows what the camera is set to.
void MainWindow::configureCamera()
{
    ::configureCamera(session);
    showCameraParameters();
}

void MainWindow::showCameraParameters()
{
    showParameter(*ui->sliderExpose, *ui->lineEditExpose,
                  saturatingInt(session.camera.exposure) / 1000);
    showParameter(*ui->sliderGain, *ui->lineEditGain, saturatingInt(session.camera.gain));
}

/// Enables the controls that need a camera.
void MainWindow::showConnected(bool connected)
{
    for (QAction *const action : {ui->actionSave_As, ui->actionDisplay_Template,
                                  ui->actionAstronomical_Refraction, ui->actionManual_Trace})
        action->setEnabled(connected);
    ui->menuZoom->setEnabled(connected);
}

/// If the camera library does not return at once, closing completes later and the window stays
/// usable in the meantime.
void MainWindow::disconnectCamera()
{
    captureThread->stopCapture();
    if (!session.handle.get())
        return;
    cameraClosing.begin(sdkCallTimeout());
    showDisconnected(cameraClosing.poll(std::min(sdkCallTimeout(), stopTimeout)));
}

/// Waits while a modal dialog is open, so that the wizard does not change behind it.
void MainWindow::followClosing()
{
    if (!cameraClosing.isUnderWay()) // it was completed when the window closed
        return;
    noteSettings();
    showDisconnected(QApplication::activeModalWidget() ? CameraClosing::State::UnderWay
                                                       : cameraClosing.poll(0));
}

/// Updates the window after a check of the close operation.
void MainWindow::showDisconnected(CameraClosing::State state)
{
    if (state == CameraClosing::State::UnderWay) {
        QTimer::singleShot(pollInterval, this, [this] { followClosing(); });
        return;
    }
    libraryHangs = state == CameraClosing::State::Hanging;
    if (state == CameraClosing::State::Closed) {
        ui->actionConnect->setText(tr("Connect"));
        switchStep(wizardAtRest);
        showConnected(false);
    }
    positionLabel->clear();
    session.frameRate.clear();
    session.frameQueue.clear();
    session.magnifierQueue.clear();
    ui->label_showImg->clear();
    magnifier->setSource(pixmapOf(blankImage));
    magnifier->update();
}

/// How long to wait for a call of the capture thread, milliseconds; 0 once a call has exceeded that
/// time.
int MainWindow::sdkCallTimeout() const
{
    return libraryHangs ? 0 : closingTimeout;
}

bool MainWindow::stopCaptureAndWait()
{
    captureThread->stopCapture();
    return captureThread->waitForEnd(static_cast<unsigned long>(sdkCallTimeout())) &&
           cameraClosing.stopEnds(sdkCallTimeout());
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    saveSettings();
    for (QTimer *const timer : {effectTimer, angleTimer, frameTimer})
        if (timer)
            timer->stop();
    captureThread->stopCapture();
    if (session.camera.cameraConnected && session.handle.get()) {
        cameraClosing.begin(sdkCallTimeout());
        const CameraClosing::State state = cameraClosing.finish();
        libraryHangs = state == CameraClosing::State::Hanging;
        if (state == CameraClosing::State::Closed && session.camera.sdkReady)
            qDebug("ReleaseVELDIXResource success");
    }
    session.camera.sdkReady = false;
    event->accept();
}
