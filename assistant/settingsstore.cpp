// SPDX-License-Identifier: MIT
// Reads and writes the settings from one table of their keys.
#include "assistant/settingsstore.h"

#include "core/iniscanner.h"
#include "core/savetrouble.h"
#include "core/scratchtext.h"
#include "core/settingsfile.h"
#include "core/settingsplace.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>
#include <QtDebug>
#include <cmath>
#include <functional>
#include <vector>

namespace assistant
{
namespace
{
constexpr auto group = "assistant/";
constexpr int longestEntry = 4096; // bytes
constexpr qint64 maxRead = 1 << 20;

struct Entry {
    const char *key;
    std::function<void(Settings &, const QString &)> read;
    std::function<QString(const Settings &)> write; // null: the key is left out
};

std::optional<double> numberIn(const QString &text, double least, double most)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber || !(number >= least && number <= most))
        return std::nullopt;
    return number;
}

QString numberText(double number)
{
    return QString::number(number, 'g', 12);
}

Entry numberEntry(const char *key, double Settings::*member, double least, double most)
{
    return {key,
            [=](Settings &settings, const QString &text) {
                settings.*member = numberIn(text, least, most).value_or(settings.*member);
            },
            [=](const Settings &settings) { return numberText(settings.*member); }};
}

Entry flagEntry(const char *key, bool Settings::*member)
{
    return {key,
            [=](Settings &settings, const QString &text) {
                if (text == QLatin1String("true") || text == QLatin1String("false"))
                    settings.*member = text == QLatin1String("true");
            },
            [=](const Settings &settings) {
                return QString(settings.*member ? QStringLiteral("true") : QStringLiteral("false"));
            }};
}

Entry textEntry(const char *key, QString Settings::*member)
{
    return {key, [=](Settings &settings, const QString &text) { settings.*member = text; },
            [=](const Settings &settings) { return settings.*member; }};
}

Entry targetEntry()
{
    return {"pole",
            [](Settings &settings, const QString &text) {
                if (text == QLatin1String("true") || text == QLatin1String("refracted"))
                    settings.target = text == QLatin1String("true")
                                          ? recognition::PoleTarget::True
                                          : recognition::PoleTarget::Refracted;
            },
            [](const Settings &settings) {
                return QString(settings.target == recognition::PoleTarget::True
                                   ? QStringLiteral("true")
                                   : QStringLiteral("refracted"));
            }};
}

Entry siteEntry()
{
    return {"site",
            [](Settings &settings, const QString &text) { settings.site = parseSite(text); },
            [](const Settings &settings) {
                return settings.site ? numberText(settings.site->latitude) + ',' +
                                           numberText(settings.site->longitude)
                                     : QString();
            }};
}

/// The ranges of pressure and temperature are those in which refraction is computed; no air at all
/// is one of them.
const std::vector<Entry> &entries()
{
    static const std::vector<Entry> all = {
        siteEntry(),
        targetEntry(),
        numberEntry("pressure", &Settings::pressure, 0.0, 1200.0),
        numberEntry("temperature", &Settings::temperature, -90.0, 60.0),
        textEntry("language", &Settings::language),
        flagEntry("redTheme", &Settings::redTheme),
        flagEntry("sound", &Settings::sound),
        flagEntry("speech", &Settings::speech),
        textEntry("camera", &Settings::cameraId),
        numberEntry("goal", &Settings::goalArcseconds, 1.0, 3600.0),
        flagEntry("recording", &Settings::recording),
        textEntry("recordingFolder", &Settings::recordingFolder),
        numberEntry("recordingLimit", &Settings::recordingLimitMegabytes, 1.0, 1e6),
    };
    return all;
}

/// A list came from a text with commas that was not quoted.
QString textOf(const IniEntry &entry)
{
    const QString text = entry.elements().join(',');
    return text.startsWith(QLatin1String("@@")) ? text.mid(1) : text;
}

void putAll(QSettings &file, const Settings &settings)
{
    for (const Entry &entry : entries())
        file.setValue(QLatin1String(group) + entry.key, entry.write(settings));
}
} // namespace

QString settingsPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/quorvandel-assistant.ini");
}

Settings loadSettings(const QString &path)
{
    Settings settings;
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return settings;
    IniScanner scanner(file, longestEntry);
    for (IniEntry found; file.pos() <= maxRead && scanner.next(found);) {
        if (found.kind != IniEntry::Key || !found.name.startsWith(QLatin1String(group)))
            continue;
        for (const Entry &entry : entries())
            if (found.name == QLatin1String(group) + entry.key &&
                !isSerialisedObject(found.elements().join(',')))
                entry.read(settings, textOf(found));
    }
    return settings;
}

bool saveSettings(const QString &path, const Settings &settings)
{
    QDir().mkpath(QFileInfo(path).absolutePath()); // whether it exists is looked at next
    const SaveTrouble trouble = saveTrouble(path);
    QString reason = troubleText(trouble);
    // A disk without room for all of it may still have room for this.
    if (trouble == SaveTrouble::None || trouble == SaveTrouble::DiskFull) {
        const QFileInfo named(path);
        const QString scratch = (named.isSymLink() ? named.symLinkTarget() : path) + ".XXXXXX";
        QString failure;
        // From nothing: QSettings reads no text of the old file.
        const auto text = iniTextWith(
            {}, scratch, [&](QSettings &file) { putAll(file, settings); }, failure);
        if (text && replaceFile(path, *text, failure))
            return true;
        if (reason.isEmpty())
            reason = failure;
    }
    qWarning("the settings are not saved in %s: %s", qPrintable(path), qPrintable(reason));
    return false;
}

std::optional<double> latitudeOfWizard(const QString &wizardSettings)
{
    ::Settings wizard;
    if (!readSettings(wizardSettings, wizard) || wizard.latitude == ::Settings().latitude ||
        !(std::abs(double(wizard.latitude)) <= 90.0))
        return std::nullopt;
    // As many digits as were entered: a float's own would be more.
    const double entered = QString::number(double(wizard.latitude), 'g', 7).toDouble();
    const bool southern = wizard.regionName == QLatin1String("South");
    return southern ? -std::abs(entered) : std::abs(entered);
}

std::optional<double> latitudeOfTheOtherProgram()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    for (const QString &folder :
         {data + QStringLiteral("/quorvandel/bin"), QCoreApplication::applicationDirPath()}) {
        const QString file = folder + QStringLiteral("/Quorvandel.ini");
        if (QFileInfo(file).isFile())
            return latitudeOfWizard(file);
    }
    return std::nullopt;
}

std::optional<astrometry::Site> parseSite(const QString &text)
{
    const QStringList parts = text.split(',');
    if (parts.size() != 2)
        return std::nullopt;
    const auto latitude = numberIn(parts[0].trimmed(), -90.0, 90.0);
    const auto longitude = numberIn(parts[1].trimmed(), -180.0, 180.0);
    if (!latitude || !longitude)
        return std::nullopt;
    return astrometry::Site{*latitude, *longitude};
}
} // namespace assistant
