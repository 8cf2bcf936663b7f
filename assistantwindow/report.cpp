// SPDX-License-Identifier: MIT
// Writes and draws the report.
#include "assistantwindow/report.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QPainter>

namespace assistantwindow
{
namespace
{
QString text(const char *source)
{
    return QCoreApplication::translate("Report", source);
}

QString measuredText(const std::optional<recognition::Measured> &measured, const QLocale &locale)
{
    if (!measured)
        return dash();
    return angleText(measured->arcseconds, locale) + QLatin1Char(' ') +
           uncertaintyText(measured->sigma, locale);
}

QString perHour(double arcseconds, const QLocale &locale)
{
    const QString size = angleText(arcseconds, locale);
    return size == dash() ? size : text(QT_TRANSLATE_NOOP("Report", "%1 an hour")).arg(size);
}

} // namespace

std::vector<ReportRow> reportRows(const assistant::Report &report, const QLocale &locale)
{
    const assistant::Drift drift = assistant::driftOf(report.after.total.arcseconds);
    return {
        {text(QT_TRANSLATE_NOOP("Report", "Error before")),
         measuredText(report.before.total, locale)},
        {text(QT_TRANSLATE_NOOP("Report", "Error now")), measuredText(report.after.total, locale)},
        {text(QT_TRANSLATE_NOOP("Report", "in altitude")),
         measuredText(report.after.altitude, locale)},
        {text(QT_TRANSLATE_NOOP("Report", "in azimuth")),
         measuredText(report.after.azimuth, locale)},
        {text(QT_TRANSLATE_NOOP("Report", "Time taken")), durationText(report.seconds)},
        {text(QT_TRANSLATE_NOOP("Report", "Drift in declination, at the equator, at most")),
         perHour(drift.declination, locale)},
        {text(QT_TRANSLATE_NOOP("Report", "Field rotation, at the equator, at most")),
         perHour(drift.rotation, locale)},
    };
}

void paintReport(QPainter &painter, const QRectF &area, const assistant::Report &report,
                 const QLocale &locale, const Theme &theme)
{
    const std::vector<ReportRow> rows = reportRows(report, locale);
    const double rowHeight = area.height() / (double(rows.size()) + 0.4);
    QFont font = painter.font();
    double top = area.top() + rowHeight * 0.2;
    for (const ReportRow &row : rows) {
        const bool isMain = top < area.top() + 2.0 * rowHeight;
        font.setPixelSize(int(rowHeight * (isMain ? 0.56 : 0.4)));
        font.setBold(isMain);
        painter.setFont(font);
        const QRectF box(area.left() + 16.0, top, area.width() - 32.0, rowHeight);
        const double valueWidth = QFontMetricsF(font).horizontalAdvance(row.value) + 12.0;
        painter.setPen(isMain ? theme.lit : theme.text);
        painter.drawText(box, Qt::AlignRight | Qt::AlignVCenter, row.value);
        font.setBold(false);
        font.setPixelSize(int(rowHeight * 0.38));
        painter.setFont(font);
        painter.setPen(theme.quiet);
        painter.drawText(box.adjusted(0, 0, -valueWidth, 0),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, row.name);
        top += rowHeight;
        painter.setPen(QPen(theme.border, 1.0));
        painter.drawLine(QPointF(box.left(), top), QPointF(box.right(), top));
    }
}

QImage reportPicture(const assistant::Report &report, const QLocale &locale)
{
    QImage picture(1000, 640, QImage::Format_RGB32);
    const Theme &colours = theme(false);
    picture.fill(colours.window);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont title = painter.font();
    title.setPixelSize(34);
    title.setBold(true);
    painter.setFont(title);
    painter.setPen(colours.text);
    painter.drawText(QRectF(40, 24, 920, 50), Qt::AlignLeft | Qt::AlignVCenter,
                     text(QT_TRANSLATE_NOOP("Report", "Polar alignment")));
    title.setPixelSize(20);
    title.setBold(false);
    painter.setFont(title);
    painter.setPen(colours.quiet);
    painter.drawText(QRectF(40, 24, 920, 50), Qt::AlignRight | Qt::AlignVCenter,
                     locale.toString(QDateTime::currentDateTime(), QLocale::ShortFormat));
    paintReport(painter, QRectF(24, 90, 952, 530), report, locale, colours);
    return picture;
}
} // namespace assistantwindow
