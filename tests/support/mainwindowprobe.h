// SPDX-License-Identifier: MIT
// What state does the window hold that no widget shows? Lets a test read it and enter any step.
#pragma once

#include "mainwindow/mainwindow.h"

#include <QTimer>

/// A view of one window's private members; valid as long as the window.
class MainWindowProbe
{
public:
    explicit MainWindowProbe(MainWindow &probed) : window(probed) {}

    void switchStep(int step) { window.switchStep(step); }
    void switchStepBare(int step) { window.currentStep = step; } ///< the number alone

    QPoint clickViewPos() const { return window.clickViewPos; }
    QPointF templateCenter() const { return window.templateCenter; }
    QPointF starPos1() const { return window.starPos1; }
    QPointF starPos3() const { return window.starPos3; }
    QPointF axisCenter() const { return window.axisCenter; }
    void setAxisCenter(QPointF centre) { window.axisCenter = centre; }
    int axisRadius() const { return window.axisRadius; }
    float zoomFactor() const { return window.zoomFactor; }
    int rotateValue() const { return window.rotateValue; }
    QString regionName() const { return window.regionName; }
    QString languageCode() const { return window.languageCode; }
    QString styleName() const { return window.styleName; }
    QTimer &frameTimer() const { return *window.frameTimer; }
    QTimer &fpsTimer() const { return *window.fpsTimer; }
    QTimer &angleTimer() const { return *window.angleTimer; }
    QTimer &effectTimer() const { return *window.effectTimer; }
    QTranslator &translator() const { return *window.translator; }
    const QImage &blankImage() const { return window.blankImage; }
    const QImage &displayImage() const { return window.displayImage; }
    const CaptureThread &captureThread() const { return *window.captureThread; }
    const PictureMaker &pictureMaker() const { return *window.pictureMaker; }

private:
    MainWindow &window;
};
