// SPDX-License-Identifier: MIT
// Opens the manual and shows where it is.
#include "widgets/openmanual.h"

#include <QDesktopServices>
#include <QStatusBar>
#include <QUrl>
#include <QtDebug>

void openManual(const QUrl &page, const QString &title, QStatusBar &bar)
{
    constexpr int shownFor = 30000; // milliseconds: long enough to copy it by hand
    const QString place = page.toDisplayString(QUrl::PreferLocalFile);
    if (!QDesktopServices::openUrl(page))
        qWarning() << "no program opens the manual; it lies at" << place;
    bar.showMessage(title + QLatin1String(": ") + place, shownFor);
}
