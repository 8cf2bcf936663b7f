// SPDX-License-Identifier: MIT
// Reads and writes the settings file by one table of its keys.
#include "dialogs/settingsfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QtDebug>
#include <algorithm>
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

/// Ours has less than a thousandth of that; a file with more bytes is not one that we wrote.
constexpr qint64 largestFile = 1 << 20;

enum class Place {
    Usable,  ///< nothing, or a file that the INI reader can be given
    Partly,  ///< the same, but with lines that saving does not write back
    NoFile,  ///< a folder, a pipe, a device: neither read, which might never end, nor replaced
    NotOurs, ///< a file that is not read, and makes room when the settings are saved
};

/// Whether there are lines that are neither a section nor a key: the INI writer drops them.
bool hasLinesToLose(QByteArray bytes)
{
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes.remove(0, 3);
    const QList<QByteArray> lines = bytes.replace('\r', '\n').split('\n');
    return std::any_of(lines.begin(), lines.end(), [](const QByteArray &whole) {
        const QByteArray line = whole.trimmed();
        const bool isSection = line.startsWith('[') && line.endsWith(']');
        const bool isKey = line.indexOf('=') > 0 && !line.startsWith(';');
        return !line.isEmpty() && !isSection && !isKey;
    });
}

/// What lies at `path`, before the INI reader looks at it.
Place placeOf(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return Place::Usable;
    if (!info.isFile())
        return Place::NoFile;
    if (info.size() > largestFile)
        return Place::NotOurs;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Place::Usable;
    // The reader makes objects of these, as large as a damaged text says they are.
    const QByteArray bytes = file.read(largestFile);
    if (bytes.contains("@Variant(") || bytes.contains("@DateTime("))
        return Place::NotOurs;
    return hasLinesToLose(bytes) ? Place::Partly : Place::Usable;
}

/// A name beside `path` that is still free.
QString freeNameBeside(const QString &path)
{
    QString name = path + QStringLiteral(".unread");
    for (int number = 2; QFileInfo::exists(name) || QFileInfo(name).isSymLink(); ++number)
        name = path + QStringLiteral(".unread-") + QString::number(number);
    return name;
}

/// Saving would lose what could not be read, so that this is kept under another name first. False
/// if it can not be: then nothing may be saved.
bool keepWhatWasNotRead(const QString &path, Place place)
{
    if (place == Place::Usable)
        return true;
    if (!QFile(path).open(QIODevice::Append))
        return false;
    const QString name = freeNameBeside(path);
    // Of a damaged file the lines that can be read stay where they are, whatever they say.
    const bool kept = place == Place::NotOurs ? QFile::rename(path, name) : QFile::copy(path, name);
    if (kept)
        qWarning("what was not read of the settings file is kept in %s", qPrintable(name));
    return kept;
}

/// QSettings locks the file by another one beside it. One that is empty was left by a process that
/// was killed between making and filling it, and would be waited for half a minute.
void removeEmptyLock(const QString &path)
{
    const QFileInfo lock(path + QStringLiteral(".lock"));
    if (lock.isFile() && lock.size() == 0)
        QFile::remove(lock.filePath());
}

QString decimalText(double value)
{
    return QString::number(value, 'g', 6);
}

/// Takes the value of one key, converted to the member's type.
struct Take {
    const QSettings &file;
    const Entry &entry;
    Settings &settings;

    void operator()(QString Settings::*member) const
    {
        settings.*member = file.value(entry.key, settings.*member).toString();
    }
    void operator()(float Settings::*member) const
    {
        settings.*member = file.value(entry.key, settings.*member).toFloat();
    }
    void operator()(double Settings::*member) const // single precision is all the file promises
    {
        settings.*member = double(file.value(entry.key, settings.*member).toFloat());
    }
    void operator()(bool Settings::*member) const
    {
        // QVariant takes any other text for true.
        const QString text = file.value(entry.key, settings.*member).toString().toLower();
        settings.*member = text == QLatin1String("true") || text == QLatin1String("1");
    }
};

/// Gives one key its value.
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
} // namespace

QString settingsFilePath()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath() +
                                    QStringLiteral("/Quorvandel.ini"));
}

bool canWriteSettings(const QString &path)
{
    const QFileInfo file(path);
    return QFileInfo(file.absolutePath()).isWritable() &&
           (!file.exists() || (file.isFile() && file.isWritable()));
}

bool readSettings(const QString &path, Settings &settings)
{
    if (!QFile::exists(path))
        return false;
    Settings read;
    const Place place = placeOf(path);
    if (place == Place::NoFile || place == Place::NotOurs) {
        qWarning("the settings file %s is not read: it is not one of ours", qPrintable(path));
        settings = read;
        return true;
    }
    QSettings file(path, QSettings::IniFormat);
    for (const Entry &entry : entries) {
        file.beginGroup(entry.group);
        std::visit(Take{file, entry, read}, entry.member);
        file.endGroup();
    }
    settings = read;
    return true;
}

void writeSettings(const QString &path, const Settings &settings)
{
    const Place place = placeOf(path);
    if (place == Place::NoFile)
        return;
    removeEmptyLock(path);
    if (!keepWhatWasNotRead(path, place))
        return;
    QSettings file(path, QSettings::IniFormat);
    for (const Entry &entry : entries) {
        file.beginGroup(entry.group);
        std::visit(Put{file, entry, settings}, entry.member);
        file.endGroup();
    }
}
