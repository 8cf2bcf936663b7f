// SPDX-License-Identifier: MIT
// What lies where the settings are to be saved, and what becomes of what saving would lose?
#pragma once

#include <QString>
#include <functional>

/// Ours has less than a thousandth of that; a file with more bytes is read for its keys, and makes
/// room for a new one when the settings are saved.
constexpr qint64 largestSettingsFile = 1 << 20;

/// False for a folder, a pipe, a device: neither read, which might never end, nor replaced.
bool isFileOrNothing(const QString &path);

/// Makes the place ready for `write`, which adds our keys to the file of that name by the toolkit's
/// INI writer. What that would lose, or make larger than the limit, is kept beside it first, as
/// "Quorvandel.ini.unread"; entries that it must not read are taken out. False if something would
/// be lost: then nothing may be saved.
bool makeReadyToSave(const QString &path, const std::function<void(const QString &)> &write);
