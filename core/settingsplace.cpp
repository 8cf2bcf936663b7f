// SPDX-License-Identifier: MIT
// Replaces the settings file by a new one, and backs up what would be lost.
#include "core/settingsplace.h"

#include "core/iniscanner.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QtDebug>
#include <algorithm>

namespace
{
constexpr auto byteOrderMark = "\xEF\xBB\xBF";

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

/// An unused file name beside `path`.
QString freeNameBeside(const QString &path)
{
    QString name = path + QStringLiteral(".unread");
    for (int number = 2; QFileInfo::exists(name) || QFileInfo(name).isSymLink(); ++number)
        name = path + QStringLiteral(".unread-") + QString::number(number);
    return name;
}

/// How much of the old file the new one does not have.
enum class Loss { Nothing, Part, All };

/// What is to be done with the old file, and the new one's text.
struct Plan {
    Loss loss = Loss::Nothing;
    QByteArray text;
};

/// Null if no new text can be made.
std::optional<Plan> planFor(const QString &path, const MakeText &newText, QString &reason)
{
    Plan plan;
    QByteArray bytes;
    bool hadObjects = false;
    if (QFileInfo(path).size() > largestSettingsFile) {
        plan.loss = Loss::All;
    } else if (QFile file(path); file.exists()) {
        if (!file.open(QIODevice::ReadOnly)) {
            reason = file.errorString();
            return {};
        }
        bytes = file.read(largestSettingsFile);
    }
    const QByteArray kept = withoutObjects(bytes, hadObjects);
    if (plan.loss == Loss::Nothing && (hadObjects || hasLinesToLose(bytes)))
        plan.loss = Loss::Part;
    std::optional<QByteArray> text = newText(hadObjects ? kept : bytes, reason);
    if (text && text->size() > largestSettingsFile) { // the writer's escapes expand bytes
        plan.loss = Loss::All;
        text = newText({}, reason);
    }
    if (!text)
        return {};
    plan.text = *text;
    return plan;
}
} // namespace

bool isFileOrNothing(const QString &path)
{
    const QFileInfo info(path);
    return !info.exists() || info.isFile();
}

// QSaveFile::commit() alone would replace the old file by a truncated one if its last write fails.
bool replaceFile(const QString &path, const QByteArray &bytes, QString &reason)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() &&
        file.commit())
        return true;
    reason = file.errorString();
    return false;
}

bool replaceKeeping(const QString &path, const MakeText &newText, QString &reason)
{
    const std::optional<Plan> plan = planFor(path, newText, reason);
    if (!plan)
        return false;
    const bool moves = plan->loss == Loss::All;
    const QString aside = plan->loss == Loss::Nothing ? QString() : freeNameBeside(path);
    if (!aside.isEmpty() && !(moves ? QFile::rename(path, aside) : QFile::copy(path, aside))) {
        reason = QStringLiteral("its content cannot be kept in %1").arg(aside);
        return false;
    }
    if (!replaceFile(path, plan->text, reason)) {
        if (moves)
            QFile::rename(aside, path);
        else if (!aside.isEmpty())
            QFile::remove(aside);
        return false;
    }
    if (!aside.isEmpty())
        qWarning("what was not read of the settings file is kept in %s", qPrintable(aside));
    return true;
}
