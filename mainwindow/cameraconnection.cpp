// SPDX-License-Identifier: MIT
// How is the camera found, opened, set up and closed?
#include "mainwindow/mainwindow.h"

#include "camera/session.h"
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
#include <array>
#include <cstring>

namespace
{
constexpr auto modelName = "QUORVANDEL";
/// More cameras than can be connected. If a library reports more, the other IDs are not read.
constexpr std::int32_t maxCameras = 1024;

/// Milliseconds between two looks at a closing that takes its time.
constexpr int pollInterval = 20;

/// The model in an ID of the form model-serial; empty for an ID without '-'.
QString modelOf(const char *id)
{
    const QString text = QString::fromLatin1(id);
    const int dash = text.lastIndexOf('-');
    return dash < 0 ? QString() : text.left(dash);
}

/// The ID of camera `index` into `id`; false if the library has none, or one too long to be given
/// back as it is. The library is given far more room than its IDs need.
bool readId(int index, char (&id)[maxIdSize])
{
    std::array<char, 16384> buffer{};
    if (GetVELDIXId(index, buffer.data()) != 0)
        return false;
    buffer.back() = '\0';
    const std::size_t length = std::strlen(buffer.data());
    if (length >= sizeof id) {
        qCritical("camera %d is left out: its ID of %zu characters is too long", index, length);
        return false;
    }
    std::copy_n(buffer.begin(), length + 1, std::begin(id));
    return true;
}

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
    const std::int32_t count = std::min(ScanVELDIX(), maxCameras);
    for (std::int32_t index = 0; index < count; ++index)
        if (readId(index, session.camera.cameraId) && modelOf(session.camera.cameraId) == modelName)
            return true;
    return false;
}

/// Opens and initialises the chosen camera. If a step after opening fails, the camera stays open.
bool MainWindow::openCamera()
{
    void *const handle = OpenVELDIX(session.camera.cameraId);
    session.handle.set(handle);
    if (!handle) {
        qCritical("OpenVELDIX failure!");
        session.camera.cameraConnected = false;
        QMessageBox::critical(this, tr("Error"),
                              tr("Can not connect Quorvandel as OpenVELDIX error!"),
                              QMessageBox::Ok);
        return false;
    }
    if (SetVELDIXReadMode(handle, 0) == veldixError)
        qCritical("SetVELDIXReadMode 0 Failure");
    if (SetVELDIXStreamMode(handle, static_cast<std::uint8_t>(session.camera.streamMode)) != 0) {
        qCritical("SetVELDIXStreamMode 1 Failure");
        return false;
    }
    if (InitVELDIX(handle) != 0) {
        qCritical("InitVELDIX failure!");
        session.camera.cameraConnected = false;
        QMessageBox::critical(this, tr("Error"),
                              tr("Can not connect Quorvandel as InitVELDIX error!"),
                              QMessageBox::Ok);
        return false;
    }
    return true;
}

/// Sets frame format and transfer; a setting that the camera refuses stays unchanged.
void MainWindow::configureCamera()
{
    void *const handle = session.handle.get();
    const CameraState &s = session.camera;
    if (SetVELDIXBitsMode(handle, s.bits) == 0)
        qDebug() << "SetVELDIXBitsMode" << s.bits;
    if (SetVELDIXBinMode(handle, s.binX, s.binY) == 0)
        qDebug() << "SetVELDIXBinMode" << s.binX << s.binY;
    if (SetVELDIXResolution(handle, s.roiX, s.roiY, s.roiWidth, s.roiHeight) == 0)
        qDebug() << "SetVELDIXResolution" << s.roiX << s.roiY << s.roiWidth << s.roiHeight;
    readCameraParameters();
    if (SetVELDIXParam(handle, CONTROL_USBTRAFFIC, s.usbTraffic) == 0)
        qDebug() << "SetVELDIXParam CONTROL_USBTRAFFIC" << s.usbTraffic;
    if (SetVELDIXParam(handle, CONTROL_SPEED, s.speed) == 0)
        qDebug() << "SetVELDIXParam CONTROL_SPEED" << s.speed;
}

void MainWindow::readCameraParameters()
{
    void *const handle = session.handle.get();
    session.camera.exposure = GetVELDIXParam(handle, CONTROL_EXPOSURE);
    showParameter(*ui->sliderExpose, *ui->lineEditExpose,
                  saturatingInt(session.camera.exposure) / 1000);
    session.camera.gain = GetVELDIXParam(handle, CONTROL_GAIN);
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
    magnifier->setSource(QPixmap::fromImage(blankImage));
    magnifier->update();
}

/// How long to wait for a call of the capture thread, milliseconds; 0 once a call has exceeded that
/// time.
int MainWindow::sdkCallTimeout() const
{
    return libraryHangs ? 0 : closingPatience;
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
