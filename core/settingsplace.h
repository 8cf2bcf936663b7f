// SPDX-License-Identifier: MIT
// What is at the path of the settings file, and how is content kept that saving would lose?
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <optional>

/// Size limit in bytes; our own file has less than a thousandth of it. A larger file is read for
/// its keys, and moved aside when the settings are saved.
constexpr qint64 largestSettingsFile = 1 << 20;

/// False for a folder, a pipe or a device: these are neither read, which might never end, nor
/// replaced.
bool isFileOrNothing(const QString &path);

/// Makes the text of a file with our keys in it from the text of the old one, as Qt's INI writer
/// writes it; nullopt, with a reason, if that fails.
using MakeText = std::function<std::optional<QByteArray>(const QByteArray &old, QString &reason)>;

/// Replaces the file at `path`, or the one that a link there names: either the old or the new one
/// is complete.
/// @param reason receives why it failed
bool replaceFile(const QString &path, const QByteArray &bytes, QString &reason);

/// Replaces the file at `path` by a new one. Entries that Qt must not read are removed. Content
/// that would be lost, or that would exceed the limit, is kept beside the file as
/// "Quorvandel.ini.unread", with a warning in the log. Either all of that is done, or the folder is
/// left as it was and the result is false.
/// @param reason receives why it failed
bool replaceKeeping(const QString &path, const MakeText &newText, QString &reason);
