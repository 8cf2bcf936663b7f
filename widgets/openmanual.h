// SPDX-License-Identifier: MIT
// How is the manual opened?
#pragma once

class QStatusBar;
class QString;
class QUrl;

/// Opens a page of the manual in the desktop's browser. If that fails, its location is logged and
/// shown in the status bar for a while, after `title`, the translated name of the menu entry.
void openManual(const QUrl &page, const QString &title, QStatusBar &bar);
