// SPDX-License-Identifier: MIT
// How do the settings get from the file into their holders, and back?
#include "mainwindow/mainwindow.h"

#include "camera/sharedstate.h"
#include "dialogs/settingsfile.h"

bool MainWindow::loadSettings()
{
    Settings settings;
    if (!readSettings(settingsFilePath(), settings))
        return false;
    takeSettings(settings);
    return true;
}

void MainWindow::takeSettings(const Settings &settings)
{
    setStyleName(settings.styleName);
    languageCode = settings.languageCode;
    regionName = settings.regionName;
    zoomFactor = settings.zoomFactor;
    refractionSettings.latitude = settings.latitude;
    refractionSettings.longitude = settings.longitude;
    refractionSettings.P = settings.P;
    refractionSettings.T = settings.T;
    refractionSettings.enabledCorrect = settings.enabledCorrect;
    refractionSettings.P_unit = settings.P_unit;
    alignmentPoints.savedAxisCenter = QPointF(settings.axisX, settings.axisY);
}

void MainWindow::saveSettings() const
{
    Settings settings;
    settings.styleName = styleName;
    settings.languageCode = languageCode;
    settings.regionName = regionName;
    settings.zoomFactor = zoomFactor;
    settings.latitude = refractionSettings.latitude;
    settings.longitude = refractionSettings.longitude;
    settings.P = refractionSettings.P;
    settings.T = refractionSettings.T;
    settings.enabledCorrect = refractionSettings.enabledCorrect;
    settings.P_unit = refractionSettings.P_unit;
    settings.axisX = alignmentPoints.savedAxisCenter.x;
    settings.axisY = alignmentPoints.savedAxisCenter.y;
    writeSettings(settingsFilePath(), settings);
}

/// The name for the GUI; the capture thread is told what it needs to know of it.
void MainWindow::setStyleName(const QString &name)
{
    styleName = name;
    overlayFlags.monoStyle = name == QLatin1String("Mono");
}
