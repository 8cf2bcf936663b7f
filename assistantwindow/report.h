// SPDX-License-Identifier: MIT
// What does the report say, and what does its picture look like?
#pragma once

#include "assistantwindow/indicators.h"
#include "assistantwindow/instrument.h"

#include <QImage>
#include <QLocale>

class QPainter;

namespace assistantwindow
{
struct ReportRow {
    QString name, value;
};

/// "22/11/2026 14:40 (UTC+8:00)": local time.
QString momentText(double utcSeconds, const QLocale &locale);

/// Error before and after, the pole, what remains, time, date and site; a dash for altitude and
/// azimuth without a site.
std::vector<ReportRow> reportRows(const assistant::Report &report, const QLocale &locale);

/// Draws title and rows into `area`.
void paintReport(QPainter &painter, const QRectF &area, const assistant::Report &report,
                 const QLocale &locale, const Theme &theme);

/// The same as a picture of its own, 1000 x 640 pixels.
QImage reportPicture(const assistant::Report &report, const QLocale &locale);
} // namespace assistantwindow
