// SPDX-License-Identifier: MIT
// Where is the manual?
#pragma once

#include <QUrl>

class QString;

/// The manual's first page: the Chinese one for exactly "ZH", else the English one. It is looked
/// for where the program is installed, then in the source tree that the program was built in, so
/// that it opens without a network; where it is in neither, the address of its web page is given.
QUrl manualUrl(const QString &languageCode);

/// The same for an executable that lies in `applicationFolder`.
QUrl manualUrl(const QString &languageCode, const QString &applicationFolder);
