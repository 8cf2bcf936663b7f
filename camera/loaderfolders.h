// SPDX-License-Identifier: MIT
// Which files may the dynamic loader mean by a library's name?
#pragma once

#include <QByteArray>
#include <QByteArrayList>

/// The folders that the loader searches for a library of the program: LD_LIBRARY_PATH, the
/// program's own, the system's. Those that its cache stands for are not among them.
QByteArrayList loaderFolders();

/// The folders that a file like /etc/ld.so.conf and the files that it includes name, in order.
QByteArrayList configuredFolders(const QByteArray &configurationFile);

/// What has the name of the library in the folders, readable or not: a file, a folder, a link to
/// nothing. \param name a file's name, or a path, which is looked at by itself
QByteArrayList filesOfName(const QByteArray &name, const QByteArrayList &folders);
