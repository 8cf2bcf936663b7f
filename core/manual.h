// SPDX-License-Identifier: MIT
// Where is the manual?
#pragma once

#include <QUrl>

class QString;

/// The URL of the manual's first page: Chinese for exactly "ZH", otherwise English. Searches the
/// installed documents, then the source tree that the program was built from, so that the manual
/// opens without a network. If neither has it, returns the address of the web page.
QUrl manualUrl(const QString &languageCode);

/// The same for an executable in `applicationFolder`.
QUrl manualUrl(const QString &languageCode, const QString &applicationFolder);
