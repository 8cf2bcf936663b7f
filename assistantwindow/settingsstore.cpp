// SPDX-License-Identifier: MIT
// Reads and writes the assistant's settings.
#include "assistantwindow/settingsstore.h"

#include <QSettings>
#include <QStandardPaths>
#include <algorithm>
#include <cmath>

namespace assistantwindow
{
namespace
{
QString settingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/quorvandel-assistant.ini");
}

/// The number of a key; `fallback` if it is missing, not a number or out of range.
double number(const QSettings &file, const char *key, double least, double most, double fallback)
{
    bool isNumber = false;
    const double value = file.value(QLatin1String(key)).toDouble(&isNumber);
    return isNumber && value >= least && value <= most ? value : fallback;
}
} // namespace

assistant::Settings loadedSettings()
{
    const QSettings file(settingsFile(), QSettings::IniFormat);
    assistant::Settings settings;
    const double none = std::nan("");
    const astrometry::Site site{number(file, "site/latitude", -90.0, 90.0, none),
                                number(file, "site/longitude", -180.0, 180.0, none)};
    if (!std::isnan(site.latitude) && !std::isnan(site.longitude))
        settings.site = site;
    if (file.value(QStringLiteral("pole")).toString() == QLatin1String("refracted"))
        settings.target = recognition::PoleTarget::Refracted;
    settings.pressure = number(file, "pressure", 0.0, 1100.0, settings.pressure);
    settings.temperature = number(file, "temperature", -50.0, 50.0, settings.temperature);
    settings.language = file.value(QStringLiteral("language")).toString();
    settings.redTheme = file.value(QStringLiteral("red")).toBool();
    settings.sound = file.value(QStringLiteral("sound")).toBool();
    settings.speech = file.value(QStringLiteral("speech")).toBool();
    settings.cameraId = file.value(QStringLiteral("camera")).toString();
    settings.goalArcseconds = number(file, "goal", 5.0, 600.0, settings.goalArcseconds);
    settings.recording = file.value(QStringLiteral("recording/on")).toBool();
    settings.recordingFolder = file.value(QStringLiteral("recording/folder")).toString();
    settings.recordingLimitMegabytes = number(file, "recording/limitMegabytes", 100.0, 1e6,
                                              settings.recordingLimitMegabytes);
    if (settings.recordingFolder.isEmpty())
        settings.recordingFolder =
            QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) +
            QStringLiteral("/quorvandel");
    return settings;
}

void keepSettings(const assistant::Settings &settings)
{
    QSettings file(settingsFile(), QSettings::IniFormat);
    file.remove(QStringLiteral("site"));
    if (settings.site) {
        file.setValue(QStringLiteral("site/latitude"), settings.site->latitude);
        file.setValue(QStringLiteral("site/longitude"), settings.site->longitude);
    }
    const bool isTrue = settings.target == recognition::PoleTarget::True;
    file.setValue(QStringLiteral("pole"),
                  isTrue ? QStringLiteral("true") : QStringLiteral("refracted"));
    file.setValue(QStringLiteral("pressure"), settings.pressure);
    file.setValue(QStringLiteral("temperature"), settings.temperature);
    file.setValue(QStringLiteral("language"), settings.language);
    file.setValue(QStringLiteral("red"), settings.redTheme);
    file.setValue(QStringLiteral("sound"), settings.sound);
    file.setValue(QStringLiteral("speech"), settings.speech);
    file.setValue(QStringLiteral("camera"), settings.cameraId);
    file.setValue(QStringLiteral("goal"), settings.goalArcseconds);
    file.setValue(QStringLiteral("recording/on"), settings.recording);
    file.setValue(QStringLiteral("recording/folder"), settings.recordingFolder);
    file.setValue(QStringLiteral("recording/limitMegabytes"), settings.recordingLimitMegabytes);
}
} // namespace assistantwindow
