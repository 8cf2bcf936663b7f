// SPDX-License-Identifier: MIT
// What is at the path of the settings file, and how is content kept that saving would lose?
#pragma once

#include <QString>
#include <functional>

/// Size limit in bytes; our own file has less than a thousandth of it. A larger file is read for
/// its keys, and moved aside when the settings are saved.
constexpr qint64 largestSettingsFile = 1 << 20;

/// False for a folder, a pipe or a device: these are neither read, which might never end, nor
/// replaced.
bool isFileOrNothing(const QString &path);

/// Prepares the file at `path` for `write`, which adds our keys to a file with Qt's INI writer.
/// Content that would be lost, or that would exceed the limit, is first kept beside the file as
/// "Quorvandel.ini.unread". Entries that Qt must not read are removed. False if something would be
/// lost: then nothing may be saved.
bool makeReadyToSave(const QString &path, const std::function<void(const QString &)> &write);
