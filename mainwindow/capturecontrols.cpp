// SPDX-License-Identifier: MIT
// What do the camera's sliders and edit boxes do?
#include "mainwindow/mainwindow.h"

#include "camera/session.h"
#include "ui_mainwindow.h"

#include <QLineEdit>
#include <QSlider>
#include <algorithm>
#include <limits>

/// One camera parameter with its two widgets.
struct MainWindow::Parameter {
    QSlider &slider;
    QLineEdit &edit;
    double &value;        ///< in CameraState
    double perSliderUnit; ///< camera units in one unit of the slider
    VeldixControl control;
};

namespace
{
constexpr double microsecondsPerMillisecond = 1000.0;

/// The value of `digits`; a number too large for int becomes the largest int.
int numberIn(const QString &digits)
{
    bool isNumber = false;
    const int number = digits.toInt(&isNumber);
    return isNumber || digits.isEmpty() ? number : std::numeric_limits<int>::max();
}
} // namespace

MainWindow::Parameter MainWindow::exposureParameter()
{
    return {*ui->sliderExpose, *ui->lineEditExpose, session.camera.exposure,
            microsecondsPerMillisecond, CONTROL_EXPOSURE};
}

MainWindow::Parameter MainWindow::gainParameter()
{
    return {*ui->sliderGain, *ui->lineEditGain, session.camera.gain, 1.0, CONTROL_GAIN};
}

MainWindow::Parameter MainWindow::trafficParameter()
{
    return {*ui->sliderTraffic, *ui->lineEditTraffic, session.camera.usbTraffic, 1.0,
            CONTROL_USBTRAFFIC};
}

MainWindow::Parameter MainWindow::speedParameter()
{
    return {*ui->sliderSpeed, *ui->lineEditSpeed, session.camera.speed, 1.0, CONTROL_SPEED};
}

/// A field without text, such as speed at start-up, shows the current value as grey placeholder.
void MainWindow::buildPlaceholders()
{
    const auto follow = [](QLineEdit *edit, const QSlider *slider) {
        const auto show = [edit, slider] {
            edit->setPlaceholderText(QString::number(slider->value()));
        };
        connect(edit, &QLineEdit::textChanged, slider, show);
        show();
    };
    follow(ui->lineEditExpose, ui->sliderExpose);
    follow(ui->lineEditGain, ui->sliderGain);
    follow(ui->lineEditTraffic, ui->sliderTraffic);
    follow(ui->lineEditSpeed, ui->sliderSpeed);
}

void MainWindow::parameterSliderMoved(const Parameter &parameter, int value)
{
    parameter.value = value * parameter.perSliderUnit;
    parameter.edit.setText(QString::number(value));
    noteSettings();
    SetVELDIXParam(session.handle.get(), parameter.control, parameter.value);
}

void MainWindow::parameterTyped(const Parameter &parameter)
{
    const int typed = numberIn(parameter.edit.text());
    const int kept = std::clamp(typed, parameter.slider.minimum(), parameter.slider.maximum());
    if (kept != typed)
        parameter.edit.setText(QString::number(kept));
    {
        const QSignalBlocker blocker(parameter.slider);
        parameter.slider.setValue(kept);
    }
    parameter.value = kept * parameter.perSliderUnit;
    noteSettings();
    SetVELDIXParam(session.handle.get(), parameter.control, parameter.value);
}

void MainWindow::on_sliderExpose_valueChanged(int value)
{
    parameterSliderMoved(exposureParameter(), value);
}

void MainWindow::on_lineEditExpose_returnPressed()
{
    parameterTyped(exposureParameter());
}

void MainWindow::on_sliderGain_valueChanged(int value)
{
    parameterSliderMoved(gainParameter(), value);
}

void MainWindow::on_lineEditGain_returnPressed()
{
    parameterTyped(gainParameter());
}

void MainWindow::on_sliderTraffic_valueChanged(int value)
{
    parameterSliderMoved(trafficParameter(), value);
}

void MainWindow::on_lineEditTraffic_returnPressed()
{
    parameterTyped(trafficParameter());
}

void MainWindow::on_sliderSpeed_valueChanged(int value)
{
    parameterSliderMoved(speedParameter(), value);
}

void MainWindow::on_lineEditSpeed_returnPressed()
{
    parameterTyped(speedParameter());
}
