// SPDX-License-Identifier: MIT
// What is in a file?
#pragma once

#include <QFile>
#include <QStringList>

/// All its bytes; none if it cannot be read.
inline QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Its lines without their ends; instead of them a complaint if the last one has none.
inline QStringList linesOf(const QString &path)
{
    QStringList lines = QString::fromUtf8(bytesOf(path)).split('\n');
    if (!lines.takeLast().isEmpty())
        return {"the last line has no end"};
    return lines;
}
