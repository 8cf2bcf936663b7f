// SPDX-License-Identifier: MIT
// How does QSettings write keys and values in an INI file?
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Decodes a key or section: '\' stands for '/', %XX and %UXXXX for characters.
QString decodedIniKey(const QByteArray &text);

/// Decodes a value: resolves escapes and quotation marks, and splits it at commas. Bytes are UTF-8
/// if `isUtf8`, otherwise Latin-1.
QStringList decodedIniValue(const QByteArray &text, bool isUtf8);
