// SPDX-License-Identifier: MIT
// How is the manual opened?
#pragma once

class QStatusBar;
class QString;
class QUrl;

/// Opens a page of the manual in the desktop's browser. Its location is shown in the status bar for
/// a while, after `title`, the translated name of the menu entry: a launcher that finds no browser
/// reports nothing. Without a launcher the location is logged too.
void openManual(const QUrl &page, const QString &title, QStatusBar &bar);
