// SPDX-License-Identifier: MIT
// Writes and draws the report.
#include "assistantwindow/report.h"

#include "assistantwindow/aimtext.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QPainter>
#include <cmath>

namespace assistantwindow
{
namespace
{
QString reportText(const char *source)
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

/// "axis 2′10″ ± 1″ above the pole"; no direction for what is written as zero.
QString sidedText(const std::optional<recognition::Measured> &measured, const char *ifPositive,
                  const char *ifNegative, const QLocale &locale)
{
    const QString size = measuredText(measured, locale);
    if (!measured || size == dash() || std::round(measured->arcseconds * 10.0) == 0.0)
        return size;
    return reportText(measured->arcseconds > 0.0 ? ifPositive : ifNegative).arg(size);
}

QString perHour(double arcseconds, const QLocale &locale)
{
    const QString size = angleText(arcseconds, locale);
    return size == dash() ? size : reportText(QT_TRANSLATE_NOOP("Report", "%1 an hour")).arg(size);
}

/// Both rotations, "15.7″, 31.5″ an hour".
QString rotationText(double total, const QLocale &locale)
{
    const QString level = angleText(assistant::driftOf(total).rotation, locale);
    const double high = assistant::driftOf(total, assistant::highDeclination).rotation;
    if (level == dash())
        return level;
    const QString both = level + QStringLiteral(", ") + angleText(high, locale);
    return reportText(QT_TRANSLATE_NOOP("Report", "%1 an hour")).arg(both);
}

QString siteText(const astrometry::Site &site, const QLocale &locale)
{
    const auto side = [&locale](double degrees, const char *positive, const char *negative) {
        return locale.toString(std::abs(degrees), 'f', 3) + QString::fromUtf8("° ") +
               QLatin1String(degrees < 0.0 ? negative : positive);
    };
    return side(site.latitude, "N", "S") + QStringLiteral(", ") + side(site.longitude, "E", "W");
}
} // namespace

QString momentText(double utcSeconds, const QLocale &locale)
{
    const QDateTime moment = QDateTime::fromSecsSinceEpoch(std::llround(utcSeconds));
    const int minutes = moment.offsetFromUtc() / 60;
    const QLatin1Char zero('0');
    return locale.toString(moment, QLocale::ShortFormat) +
           QStringLiteral(" (UTC%1%2:%3)")
               .arg(minutes < 0 ? QStringLiteral("−") : QStringLiteral("+"))
               .arg(std::abs(minutes) / 60)
               .arg(std::abs(minutes) % 60, 2, 10, zero);
}

std::vector<ReportRow> reportRows(const assistant::Report &report, const QLocale &locale)
{
    const double total = report.after.total.arcseconds;
    std::vector<ReportRow> rows = {
        {reportText(QT_TRANSLATE_NOOP("Report", "Error before")),
         measuredText(report.before.total, locale)},
        {reportText(QT_TRANSLATE_NOOP("Report", "Error now")),
         measuredText(report.after.total, locale)},
        {reportText(QT_TRANSLATE_NOOP("Report", "in altitude")),
         sidedText(report.after.altitude, QT_TRANSLATE_NOOP("Report", "axis %1 above the pole"),
                   QT_TRANSLATE_NOOP("Report", "axis %1 below the pole"), locale)},
        {reportText(QT_TRANSLATE_NOOP("Report", "in azimuth")),
         sidedText(report.after.azimuth, QT_TRANSLATE_NOOP("Report", "axis %1 east of the pole"),
                   QT_TRANSLATE_NOOP("Report", "axis %1 west of the pole"), locale)},
        {reportText(QT_TRANSLATE_NOOP("Report", "Aimed at")), aimText(report.aim, locale)},
        {reportText(QT_TRANSLATE_NOOP("Report", "Drift in declination, anywhere, at most")),
         perHour(assistant::driftOf(total).declination, locale)},
        {reportText(QT_TRANSLATE_NOOP(
             "Report", "Angle of field rotation at most, at the equator and at declination 60°")),
         rotationText(total, locale)},
        {reportText(QT_TRANSLATE_NOOP("Report", "Time taken")), durationText(report.seconds)},
        {reportText(QT_TRANSLATE_NOOP("Report", "Date and site")),
         momentText(report.utcSeconds, locale)},
    };
    if (report.site)
        rows.back().value += QStringLiteral("; ") + siteText(*report.site, locale);
    return rows;
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
        font.setPixelSize(int(rowHeight * (isMain ? 0.56 : 0.46)));
        font.setBold(isMain);
        painter.setFont(font);
        const QRectF box(area.left() + 16.0, top, area.width() - 32.0, rowHeight);
        const double valueWidth = QFontMetricsF(font).horizontalAdvance(row.value) + 12.0;
        painter.setPen(isMain ? theme.lit : theme.text);
        painter.drawText(box, Qt::AlignRight | Qt::AlignVCenter, row.value);
        font.setBold(false);
        font.setPixelSize(int(rowHeight * 0.42));
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
                     reportText(QT_TRANSLATE_NOOP("Report", "Polar alignment")));
    paintReport(painter, QRectF(24, 90, 952, 530), report, locale, colours);
    return picture;
}
} // namespace assistantwindow
