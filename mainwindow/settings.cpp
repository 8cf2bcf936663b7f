// SPDX-License-Identifier: MIT
// How do the settings get from the file to their owners, and back?
#include "mainwindow/mainwindow.h"

#include "camera/session.h"
#include "core/savetrouble.h"
#include "core/settingsfile.h"

#include <QtDebug>

bool MainWindow::loadSettings()
{
    Settings settings;
    const QString path = settingsFilePath();
    if (const QString trouble = troubleText(saveTrouble(path)); !trouble.isEmpty())
        qWarning("the settings will not be saved in %s: %s", qPrintable(path), qPrintable(trouble));
    if (!readSettings(path, settings))
        return false;
    applySettings(settings);
    return true;
}

void MainWindow::applySettings(const Settings &settings)
{
    setStyleName(settings.styleName);
    languageCode = settings.languageCode;
    regionName = settings.regionName;
    zoomFactor = settings.zoomFactor;
    session.refraction.latitude = settings.latitude;
    session.refraction.longitude = settings.longitude;
    session.refraction.P = settings.P;
    session.refraction.T = settings.T;
    session.refraction.enabledCorrect = settings.enabledCorrect;
    session.refraction.P_unit = settings.P_unit;
    session.alignmentPoints.savedAxisCenter = QPointF(settings.axisX, settings.axisY);
}

Settings MainWindow::currentSettings() const
{
    Settings settings;
    settings.styleName = styleName;
    settings.languageCode = languageCode;
    settings.regionName = regionName;
    settings.zoomFactor = zoomFactor;
    settings.latitude = session.refraction.latitude;
    settings.longitude = session.refraction.longitude;
    settings.P = session.refraction.P;
    settings.T = session.refraction.T;
    settings.enabledCorrect = session.refraction.enabledCorrect;
    settings.P_unit = session.refraction.P_unit;
    settings.axisX = session.alignmentPoints.savedAxisCenter.x;
    settings.axisY = session.alignmentPoints.savedAxisCenter.y;
    return settings;
}

/// Called before each call into the camera library, which may not return.
void MainWindow::noteSettings()
{
    session.latestSettings.note(currentSettings());
}

void MainWindow::saveSettings()
{
    noteSettings();
    session.latestSettings.save(settingsFilePath());
}

/// Sets the name for the GUI and the mono flag for the capture thread.
void MainWindow::setStyleName(const QString &name)
{
    styleName = name;
    session.overlayFlags.monoStyle = name == QLatin1String("Mono");
}
