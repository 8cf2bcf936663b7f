// SPDX-License-Identifier: MIT
// How are keys and values written in an INI file of the toolkit's?
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// A key or section: '\' stands for '/', %XX and %UXXXX for characters.
QString decodedIniKey(const QByteArray &text);

/// A value: escapes, quotation marks and commas resolved. Bytes are Latin-1 unless told otherwise.
/// More than one element where commas divide it.
QStringList decodedIniValue(const QByteArray &text, bool isUtf8);
