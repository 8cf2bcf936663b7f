// SPDX-License-Identifier: MIT
// Looks at the settings file, its folder and its file system.
#include "core/savetrouble.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace
{
/// Bytes that a save needs at least: the new file, the copy that it is made from, their entries in
/// the folder.
constexpr qint64 smallestRoom = 1 << 14;

/// QFileInfo asks for the real user instead.
bool isPermitted(const QString &path, int access)
{
    return faccessat(AT_FDCWD, QFile::encodeName(path).constData(), access, AT_EACCESS) == 0;
}

/// Whether the file system has no room for them. False where it does not know.
bool isFull(const QString &folder, qint64 bytes)
{
    struct statvfs disk = {};
    if (statvfs(QFile::encodeName(folder).constData(), &disk) != 0 || disk.f_blocks == 0)
        return false;
    // Reserved blocks are root's.
    const auto blocks = geteuid() == 0 ? disk.f_bfree : disk.f_bavail;
    const auto entries = geteuid() == 0 ? disk.f_ffree : disk.f_favail;
    const auto needed = (quint64(bytes) + disk.f_frsize - 1) / std::max(disk.f_frsize, 1UL);
    return blocks < needed || (disk.f_files > 0 && entries == 0);
}
} // namespace

SaveTrouble folderTrouble(const QString &folder, qint64 bytes)
{
    if (!QFileInfo(folder).isDir() || !isPermitted(folder, W_OK | X_OK))
        return SaveTrouble::FolderNotWritable;
    return isFull(folder, std::max(bytes, smallestRoom)) ? SaveTrouble::DiskFull
                                                         : SaveTrouble::None;
}

SaveTrouble saveTrouble(const QString &path)
{
    const QFileInfo named(path);
    const QFileInfo file(named.isSymLink() ? named.symLinkTarget() : path);
    if (file.exists() && !file.isFile())
        return SaveTrouble::NotAFile;
    const SaveTrouble trouble = folderTrouble(file.absolutePath(), 2 * file.size());
    if (trouble == SaveTrouble::FolderNotWritable)
        return trouble;
    if (file.exists() && !isPermitted(file.filePath(), R_OK | W_OK))
        return SaveTrouble::FileNotAccessible;
    return trouble;
}

QString troubleText(SaveTrouble trouble)
{
    switch (trouble) {
    case SaveTrouble::None:
        return {};
    case SaveTrouble::FolderNotWritable:
        return QStringLiteral("its folder cannot be written");
    case SaveTrouble::FileNotAccessible:
        return QStringLiteral("this user cannot read and write it");
    case SaveTrouble::NotAFile:
        return QStringLiteral("it is not a regular file");
    case SaveTrouble::DiskFull:
        return QStringLiteral("the disk is full");
    }
    return {};
}
