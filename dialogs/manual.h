// SPDX-License-Identifier: MIT
// Where is the manual, and how does a reader get there?
#pragma once

#include <QUrl>

class QStatusBar;
class QString;

/// The manual's first page: the Chinese one for exactly "ZH", else the English one. It is looked
/// for where the program is installed, then in the source tree that the program was built in, so
/// that it opens without a network; where it is in neither, the address of its web page is given.
QUrl manualUrl(const QString &languageCode);

/// The same for an executable that lies in `applicationFolder`.
QUrl manualUrl(const QString &languageCode, const QString &applicationFolder);

/// Opens a page of the manual in the desktop's browser. Where nothing opens it, the log and, for a
/// while, the status bar say where it lies: behind `title`, the translated name of the menu entry.
void openManual(const QUrl &page, const QString &title, QStatusBar &bar);
