// SPDX-License-Identifier: MIT
// Checks the settings file before it is saved, and backs up what would be lost.
#include "core/settingsplace.h"

#include "core/iniscanner.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryFile>
#include <QtDebug>
#include <algorithm>

namespace
{
constexpr auto byteOrderMark = "\xEF\xBB\xBF";
/// The INI writer expands one byte to four at most.
constexpr qint64 largestThatCannotOutgrow = largestSettingsFile / 8;

/// Whether there are lines that are neither a section nor a key; the INI writer drops them.
bool hasLinesToLose(QByteArray bytes)
{
    if (bytes.startsWith(byteOrderMark))
        bytes.remove(0, 3);
    const QList<QByteArray> lines = bytes.replace('\r', '\n').split('\n');
    return std::any_of(lines.begin(), lines.end(), [](const QByteArray &whole) {
        const QByteArray line = whole.trimmed();
        const bool isSection = line.startsWith('[') && line.endsWith(']');
        const bool isKey = line.indexOf('=') > 0 && !line.startsWith(';');
        return !line.isEmpty() && !isSection && !isKey;
    });
}

/// The file without the entries whose values QSettings would construct objects from.
QByteArray withoutObjects(QByteArray &bytes, bool &hadAny)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    IniScanner scanner(buffer, int(largestSettingsFile));
    QByteArray kept = bytes.startsWith(byteOrderMark) ? byteOrderMark : "";
    hadAny = false;
    for (IniEntry entry; scanner.next(entry);) {
        const QStringList elements = entry.kind == IniEntry::Key ? entry.elements() : QStringList();
        if (std::any_of(elements.begin(), elements.end(), isSerialisedObject))
            hadAny = true;
        else
            kept += entry.text + '\n';
    }
    return kept;
}

/// Whether `write` makes the file exceed the limit, tried on a copy; true if that is not possible.
bool outgrowsLimit(const QByteArray &bytes, const std::function<void(const QString &)> &write)
{
    if (bytes.size() <= largestThatCannotOutgrow)
        return false;
    QTemporaryFile copy;
    if (!copy.open() || copy.write(bytes) != bytes.size() || !copy.flush())
        return true;
    write(copy.fileName());
    return QFileInfo(copy.fileName()).size() > largestSettingsFile;
}

/// An unused file name beside `path`.
QString freeNameBeside(const QString &path)
{
    QString name = path + QStringLiteral(".unread");
    for (int number = 2; QFileInfo::exists(name) || QFileInfo(name).isSymLink(); ++number)
        name = path + QStringLiteral(".unread-") + QString::number(number);
    return name;
}

using Keep = bool (*)(const QString &from, const QString &to);

bool keepAside(const QString &path, Keep keep)
{
    if (!QFile(path).open(QIODevice::Append))
        return false;
    const QString name = freeNameBeside(path);
    if (!keep(path, name))
        return false;
    qWarning("what was not read of the settings file is kept in %s", qPrintable(name));
    return true;
}

/// Atomic: either the old or the new file is complete.
bool replaceFile(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}
} // namespace

bool isFileOrNothing(const QString &path)
{
    const QFileInfo info(path);
    return !info.exists() || info.isFile();
}

bool makeReadyToSave(const QString &path, const std::function<void(const QString &)> &write)
{
    if (QFileInfo(path).size() > largestSettingsFile)
        return keepAside(path, QFile::rename);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return true;
    QByteArray bytes = file.read(largestSettingsFile);
    file.close();
    bool hadObjects = false;
    const QByteArray kept = withoutObjects(bytes, hadObjects);
    if (outgrowsLimit(hadObjects ? kept : bytes, write))
        return keepAside(path, QFile::rename);
    if (!hadObjects && !hasLinesToLose(bytes))
        return true;
    return keepAside(path, QFile::copy) && (!hadObjects || replaceFile(path, kept));
}
