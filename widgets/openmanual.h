// SPDX-License-Identifier: MIT
// How does a reader get to the manual?
#pragma once

class QStatusBar;
class QString;
class QUrl;

/// Opens a page of the manual in the desktop's browser. Where nothing opens it, the log and, for a
/// while, the status bar say where it lies: behind `title`, the translated name of the menu entry.
void openManual(const QUrl &page, const QString &title, QStatusBar &bar);
