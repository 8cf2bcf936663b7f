// SPDX-License-Identifier: MIT
// Which files can the dynamic loader find under a library's name?
#pragma once

#include <QByteArray>
#include <QByteArrayList>

/// The folders in which the loader searches for the program's libraries: LD_LIBRARY_PATH, the
/// program's run path, the system's folders. Folders known only from the loader's cache are
/// missing.
QByteArrayList loaderFolders();

/// The folders listed in a file like /etc/ld.so.conf and in the files that it includes, in order.
QByteArrayList configuredFolders(const QByteArray &configurationFile);

/// Everything with the library's name in the folders, readable or not: a file, a folder, a dangling
/// link.
/// @param name a file name, or a path, which is checked as it is
QByteArrayList filesOfName(const QByteArray &name, const QByteArrayList &folders);
