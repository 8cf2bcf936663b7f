// SPDX-License-Identifier: MIT
// How is the camera found, opened, set up and closed?
#include "mainwindow/mainwindow.h"

#include "camera/camerastate.h"
#include "camera/frames.h"
#include "camera/locker.h"
#include "dialogs/magnifierwidget.h"
#include "geometry/saturate.h"
#include "mainwindow/wizardtable.h"
#include "ui_mainwindow.h"

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
/// More cameras than can be; a library that tells of more is not asked for the IDs of all.
constexpr std::int32_t mostCameras = 1024;

/// Milliseconds between two looks at a closing that takes its time.
constexpr int lookInterval = 20;

/// The model in an ID of the form model, '-', serial; empty for an ID without '-'.
QString modelOf(const char *id)
{
    const QString text = QString::fromLatin1(id);
    const int dash = text.lastIndexOf('-');
    return dash < 0 ? QString() : text.left(dash);
}

/// The ID of camera `index` into `id`; false if the library has none, or one too long to be given
/// back as it is. The library is given far more room than its IDs need.
bool readId(int index, char (&id)[longestIdSize])
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

/// Sets a slider and the edit box beside it to a number, both without their signals: what was just
/// read must not be written back to the camera.
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
    if (!cameraState.sdkReady || cameraClosing.isUnderWay())
        return;
    if (cameraState.cameraConnected)
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
    cameraState.cameraConnected = true;
    ui->actionConnect->setText(tr("Disconnect"));
    switchStep(SetExposure);
    showConnected(true);
    setWindowTitle(QStringLiteral("Quorvandel - ID:%1").arg(cameraState.cameraId));
    configureCamera();
    captureThread->startCapture();
}

void MainWindow::showNotFound()
{
    QMessageBox::information(this, tr("Info"), tr("Not Found VELDIX Quorvandel equipment!"),
                             QMessageBox::Ok);
}

/// Leaves the ID of the first camera of our model in cameraId; false if there is none.
bool MainWindow::chooseCamera()
{
    const std::int32_t count = std::min(ScanVELDIX(), mostCameras);
    for (std::int32_t index = 0; index < count; ++index)
        if (readId(index, cameraState.cameraId) && modelOf(cameraState.cameraId) == modelName)
            return true;
    return false;
}

/// Opens and initialises the chosen camera. After a failure past the opening it stays open.
bool MainWindow::openCamera()
{
    void *const handle = OpenVELDIX(cameraState.cameraId);
    cameraHandle = handle;
    if (!handle) {
        qCritical("OpenVELDIX failure!");
        cameraState.cameraConnected = false;
        QMessageBox::critical(this, tr("Error"),
                              tr("Can not connect Quorvandel as OpenVELDIX error!"),
                              QMessageBox::Ok);
        return false;
    }
    if (SetVELDIXReadMode(handle, 0) == veldixError)
        qCritical("SetVELDIXReadMode 0 Failure");
    if (SetVELDIXStreamMode(handle, static_cast<std::uint8_t>(cameraState.streamMode)) != 0) {
        qCritical("SetVELDIXStreamMode 1 Failure");
        return false;
    }
    if (InitVELDIX(handle) != 0) {
        qCritical("InitVELDIX failure!");
        cameraState.cameraConnected = false;
        QMessageBox::critical(this, tr("Error"),
                              tr("Can not connect Quorvandel as InitVELDIX error!"),
                              QMessageBox::Ok);
        return false;
    }
    return true;
}

/// Frame format and transfer; what the camera refuses is left as it is.
void MainWindow::configureCamera()
{
    void *const handle = cameraHandle;
    const CameraState &s = cameraState;
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
    void *const handle = cameraHandle;
    cameraState.exposure = GetVELDIXParam(handle, CONTROL_EXPOSURE);
    showParameter(*ui->sliderExpose, *ui->lineEditExpose,
                  saturatingInt(cameraState.exposure) / 1000);
    cameraState.gain = GetVELDIXParam(handle, CONTROL_GAIN);
    showParameter(*ui->sliderGain, *ui->lineEditGain, saturatingInt(cameraState.gain));
}

/// Enables what only works with a camera.
void MainWindow::showConnected(bool connected)
{
    for (QAction *const action : {ui->actionSave_As, ui->actionDisplay_Template,
                                  ui->actionAstronomical_Refraction, ui->actionManual_Trace})
        action->setEnabled(connected);
    ui->menuZoom->setEnabled(connected);
}

/// A camera whose library does not return at once is closed later, the window being usable until
/// then.
void MainWindow::disconnectCamera()
{
    captureThread->stopCapture();
    if (!cameraHandle)
        return;
    cameraClosing.begin(callPatience());
    showDisconnected(cameraClosing.look(std::min(callPatience(), stopPatience)));
}

/// Whoever answers a box or a dialog finds the wizard where it was.
void MainWindow::followClosing()
{
    if (cameraClosing.isUnderWay()) // else it has ended with the window's closing
        showDisconnected(QApplication::activeModalWidget() ? CameraClosing::State::UnderWay
                                                           : cameraClosing.look(0));
}

/// What comes after a look at the camera's closing.
void MainWindow::showDisconnected(CameraClosing::State state)
{
    if (state == CameraClosing::State::UnderWay) {
        QTimer::singleShot(lookInterval, this, [this] { followClosing(); });
        return;
    }
    libraryHangs = state == CameraClosing::State::Hanging;
    if (state == CameraClosing::State::Closed) {
        ui->actionConnect->setText(tr("Connect"));
        switchStep(wizardAtRest);
        showConnected(false);
    }
    positionLabel->clear();
    {
        const Locker lock(fpsMutex);
        cameraState.fpsWhole = 0;
        cameraState.fpsTenths = 0;
    }
    {
        const Locker lock(frameMutex);
        frameQueue.clear();
    }
    {
        const Locker lock(magnifierMutex);
        magnifierQueue.clear();
    }
    ui->label_showImg->clear();
    magnifier->setSource(QPixmap::fromImage(blankImage));
    magnifier->update();
}

/// What a call of the capture thread's is waited for, milliseconds: once it did not return in that
/// time it is waited for no longer.
int MainWindow::callPatience() const
{
    return libraryHangs ? 0 : longestCall;
}

bool MainWindow::captureEnds()
{
    captureThread->stopCapture();
    return captureThread->waitForEnd(static_cast<unsigned long>(callPatience())) &&
           cameraClosing.stopEnds(callPatience());
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    saveSettings();
    for (QTimer *const timer : {effectTimer, angleTimer, frameTimer})
        if (timer)
            timer->stop();
    captureThread->stopCapture();
    if (cameraState.cameraConnected && cameraHandle) {
        cameraClosing.begin(callPatience());
        const CameraClosing::State state = cameraClosing.finish();
        libraryHangs = state == CameraClosing::State::Hanging;
        if (state == CameraClosing::State::Closed && cameraState.sdkReady)
            qDebug("ReleaseVELDIXResource success");
    }
    cameraState.sdkReady = false;
    event->accept();
}
