// SPDX-License-Identifier: MIT
// Writes a scratch file with QSettings, marks its end, and reads it back.
#include "core/scratchtext.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryFile>
#include <cstring>

namespace
{
/// The last section of a scratch file, to recognise one that was cut: QSettings does not notice if
/// its last write fails. It sorts sections by their names.
QString endKey()
{
    return QString(4, QChar(0xFFFF)) + QStringLiteral("/complete");
}
constexpr auto endText = "\n[%UFFFF%UFFFF%UFFFF%UFFFF]\ncomplete=true\n";

/// Puts the keys into the file at `place`, in the toolkit's format, and marks its end.
bool putAll(const QString &place, const std::function<void(QSettings &)> &put)
{
    QSettings file(place, QSettings::IniFormat);
    put(file);
    file.setValue(endKey(), true);
    file.sync();
    return file.status() != QSettings::AccessError; // a format error is the old text's
}
} // namespace

std::optional<QByteArray> iniTextWith(const QByteArray &old, const QString &scratchTemplate,
                                      const std::function<void(QSettings &)> &put, QString &reason)
{
    QTemporaryFile scratch(scratchTemplate);
    if (!scratch.open() || scratch.write(old) != old.size() || !scratch.flush()) {
        reason = scratch.errorString();
        return {};
    }
    if (!putAll(scratch.fileName(), put)) {
        reason = QStringLiteral("the toolkit cannot write it");
        return {};
    }
    QFile made(scratch.fileName()); // QSettings has replaced it
    const QByteArray text = made.open(QIODevice::ReadOnly) ? made.readAll() : QByteArray();
    if (text.endsWith(endText))
        return text.chopped(int(std::strlen(endText)));
    reason = QStringLiteral("there is no room for all of it");
    return {};
}
