// SPDX-License-Identifier: MIT
// What is in the settings file's place, and beside it?
#pragma once

#include "core/settingsfile.h"
#include "tests/support/filetext.h"
#include "tests/support/ordinaryuser.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMetaType>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>

/// What a row does to the place before the window uses it.
using Arrange = std::function<void()>;
Q_DECLARE_METATYPE(Arrange)

inline void put(const QByteArray &bytes)
{
    QFile file(settingsFilePath());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        qFatal("the settings file cannot be written");
}

/// The files beside the settings file that keep what could not be read.
inline QStringList keptAside()
{
    const QFileInfo place(settingsFilePath());
    QStringList paths;
    for (const QFileInfo &file : place.dir().entryInfoList({place.fileName() + ".unread*"}))
        paths.append(file.filePath());
    return paths;
}

/// Removes whatever a row has put there and restores its permissions.
inline void clearPlace()
{
    const QByteArray path = settingsFilePath().toLocal8Bit();
    chmod(QCoreApplication::applicationDirPath().toLocal8Bit(), 0755);
    chmod(path, 0755);
    if (QFileInfo(path).isDir() && !QFileInfo(path).isSymLink())
        QDir(path).removeRecursively();
    else
        ::unlink(path);
    for (const QString &aside : keptAside())
        QFile::remove(aside);
}

/// Clears the place and gives its folder to OrdinaryUser; false if that fails.
inline bool givePlaceAway()
{
    clearPlace();
    const QByteArray folder = QCoreApplication::applicationDirPath().toLocal8Bit();
    return geteuid() != 0 || chown(folder, OrdinaryUser::number, gid_t(-1)) == 0;
}
