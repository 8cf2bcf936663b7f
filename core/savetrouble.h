// SPDX-License-Identifier: MIT
// Can the settings be saved, and if not, why?
#pragma once

#include <QString>

/// Why the settings file cannot be replaced by a new one.
enum class SaveTrouble {
    None,
    FolderNotWritable, ///< or there is no such folder
    FileNotAccessible, ///< read-only, or of another user: it is neither read in full nor replaced
    NotAFile,          ///< a folder, a pipe or a device is in its place
    DiskFull,          ///< no room, or no directory entry, for a new file
};

/// What can be seen without writing, for this process's effective user. A link counts as its
/// target.
SaveTrouble saveTrouble(const QString &path);

/// What can be seen of a folder that new files are to be written to.
/// @param bytes that have to fit
SaveTrouble folderTrouble(const QString &folder, qint64 bytes);

/// For the log: the end of a sentence, not translated; empty for None.
QString troubleText(SaveTrouble trouble);
