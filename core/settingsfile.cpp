// SPDX-License-Identifier: MIT
// Reads and writes the settings file from one table of its keys.
#include "core/settingsfile.h"

#include "core/iniscanner.h"
#include "core/savetrouble.h"
#include "core/scratchtext.h"
#include "core/settingsplace.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QVariant>
#include <QtDebug>
#include <algorithm>
#include <array>
#include <optional>
#include <variant>

namespace
{
using Member =
    std::variant<QString Settings::*, float Settings::*, double Settings::*, bool Settings::*>;

struct Entry {
    const char *group;
    const char *key;
    Member member;
};

/// In the order in which the file is read and written.
const Entry entries[] = {
    {"STYLE", "style", &Settings::styleName},
    {"LANGUAGE", "lang", &Settings::languageCode},
    {"REGION", "region", &Settings::regionName},
    {"ZOOM", "factor", &Settings::zoomFactor},
    {"ASTRONOMICAL_REFRACTION", "latitude", &Settings::latitude},
    {"ASTRONOMICAL_REFRACTION", "longitude", &Settings::longitude},
    {"ASTRONOMICAL_REFRACTION", "P", &Settings::P},
    {"ASTRONOMICAL_REFRACTION", "T", &Settings::T},
    {"ASTRONOMICAL_REFRACTION", "enabledCorrect", &Settings::enabledCorrect},
    {"ASTRONOMICAL_REFRACTION", "P_unit", &Settings::P_unit},
    {"AXIS_CENTER", "x", &Settings::axisX},
    {"AXIS_CENTER", "y", &Settings::axisY},
};

/// At most this many bytes of a file are searched for keys.
constexpr qint64 maxRead = 1 << 25;

/// The texts of our keys in the file, in the order of the table; nullopt for a missing key.
using Texts = std::array<std::optional<QString>, std::size(entries)>;

/// The text of a value: empty for a list; nullopt for a serialised object, whose key then counts as
/// missing.
std::optional<QString> textOf(const QStringList &elements)
{
    if (elements.size() != 1)
        return QString();
    const QString &text = elements.constFirst();
    if (text.startsWith(QLatin1String("@@")))
        return text.mid(1);
    if (!text.startsWith('@') || !text.endsWith(')'))
        return isSerialisedObject(text) ? std::nullopt : std::optional(text);
    for (const char *const type : {"@ByteArray(", "@String("})
        if (const QLatin1String begin(type); text.startsWith(begin))
            return text.mid(begin.size()).chopped(1);
    return std::nullopt;
}

Texts textsIn(QFile &file)
{
    std::array<QString, std::size(entries)> names;
    for (std::size_t i = 0; i < names.size(); ++i)
        names[i] = QLatin1String(entries[i].group) + '/' + entries[i].key;
    Texts texts;
    IniScanner scanner(file, int(largestSettingsFile));
    for (IniEntry found; file.pos() <= maxRead && scanner.next(found);) {
        const auto name = std::find(names.begin(), names.end(), found.name);
        if (found.kind != IniEntry::Key || name == names.end())
            continue;
        if (const std::optional<QString> text = textOf(found.elements()))
            texts[std::size_t(name - names.begin())] = text;
        else
            qWarning("%s in the settings file is not read: it is no text", qPrintable(*name));
    }
    return texts;
}

QString decimalText(double value)
{
    return QString::number(value, 'g', 6);
}

/// Stores the value of one key, converted to the member's type.
struct Take {
    const QString &text;
    Settings &settings;

    void operator()(QString Settings::*member) const { settings.*member = text; }
    void operator()(float Settings::*member) const { settings.*member = QVariant(text).toFloat(); }
    void operator()(double Settings::*member) const // the file has single precision only
    {
        settings.*member = double(QVariant(text).toFloat());
    }
    void operator()(bool Settings::*member) const
    {
        // QVariant would convert any text except "", "0" and "false" to true.
        const QString truth = text.toLower();
        settings.*member = truth == QLatin1String("true") || truth == QLatin1String("1");
    }
};

/// Writes the value of one key.
struct Put {
    QSettings &file;
    const Entry &entry;
    const Settings &settings;

    void operator()(QString Settings::*member) const { file.setValue(entry.key, settings.*member); }
    void operator()(float Settings::*member) const
    {
        file.setValue(entry.key, decimalText(double(settings.*member)));
    }
    void operator()(double Settings::*member) const
    {
        file.setValue(entry.key, decimalText(settings.*member));
    }
    void operator()(bool Settings::*member) const { file.setValue(entry.key, settings.*member); }
};

/// Puts our keys into a file.
void putAll(QSettings &file, const Settings &settings)
{
    for (const Entry &entry : entries) {
        file.beginGroup(entry.group);
        std::visit(Put{file, entry, settings}, entry.member);
        file.endGroup();
    }
}
} // namespace

QString settingsFilePath()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath() +
                                    QStringLiteral("/Quorvandel.ini"));
}

bool readSettings(const QString &path, Settings &settings)
{
    if (!QFile::exists(path))
        return false;
    settings = Settings();
    if (!isFileOrNothing(path)) {
        qWarning("the settings file %s is not read: it is not a regular file", qPrintable(path));
        return true;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("the settings file %s is not read: %s", qPrintable(path),
                 qPrintable(file.errorString()));
        return true;
    }
    const Texts texts = textsIn(file);
    for (std::size_t i = 0; i < texts.size(); ++i)
        if (texts[i])
            std::visit(Take{*texts[i], settings}, entries[i].member);
    return true;
}

bool writeSettings(const QString &path, const Settings &settings)
{
    const SaveTrouble trouble = saveTrouble(path);
    QString reason = troubleText(trouble);
    // A disk without room for all of it may still have room for this.
    if (trouble == SaveTrouble::None || trouble == SaveTrouble::DiskFull) {
        const QFileInfo named(path);
        const QString scratch = (named.isSymLink() ? named.symLinkTarget() : path) + ".XXXXXX";
        const auto newText = [&](const QByteArray &old, QString &why) {
            return iniTextWith(
                old, scratch, [&](QSettings &file) { putAll(file, settings); }, why);
        };
        QString failure;
        if (replaceKeeping(path, newText, failure))
            return true;
        if (reason.isEmpty())
            reason = failure;
    }
    qWarning("the settings are not saved in %s: %s", qPrintable(path), qPrintable(reason));
    return false;
}
