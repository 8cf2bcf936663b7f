// SPDX-License-Identifier: MIT
// The faults of a sky file. The camera's parser does not use Qt and reports them in English.
#include "virtualmount/faulttexts.h"

#include "virtualcamera/skyfile.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace virtualmount
{
namespace
{
const char *const patterns[] = {
    QT_TRANSLATE_NOOP("SkyFault", "the file is empty"),
    QT_TRANSLATE_NOOP("SkyFault", "the last line has no end: the file is half-written"),
    QT_TRANSLATE_NOOP("SkyFault", "the section's ] is missing"),
    QT_TRANSLATE_NOOP("SkyFault", "unknown section [%1]"),
    QT_TRANSLATE_NOOP("SkyFault", "not of the form key = value"),
    QT_TRANSLATE_NOOP("SkyFault", "stands before any section"),
    QT_TRANSLATE_NOOP("SkyFault", "unknown key in [%1]"),
    QT_TRANSLATE_NOOP("SkyFault", "duplicate key"),
    QT_TRANSLATE_NOOP("SkyFault", "must lie between %1 and %2"),
    QT_TRANSLATE_NOOP("SkyFault", "must be true or false"),
    QT_TRANSLATE_NOOP("SkyFault", "must be sky, black or saturated"),
    QT_TRANSLATE_NOOP("SkyFault", "unknown operation: \"%1\""),
    QT_TRANSLATE_NOOP("SkyFault", "must be %1 or a date from 1973 to 2100 like %2"),
    QT_TRANSLATE_NOOP("SkyFault", "must be a whole number"),
    QT_TRANSLATE_NOOP("SkyFault", "must be a number"),
    QT_TRANSLATE_NOOP("SkyFault", "must be 1 or 3"),
};

QString translated(const char *source)
{
    return QCoreApplication::translate("SkyFault", source);
}

/// Translates a fault that matches a known pattern; the parts at its placeholders are kept as they
/// are.
QString inLanguage(const QString &fault)
{
    static const QRegularExpression placeholder(QStringLiteral("%[12]"));
    for (const char *const pattern : patterns) {
        QStringList parts = QString::fromLatin1(pattern).split(placeholder);
        for (QString &part : parts)
            part = QRegularExpression::escape(part);
        const QRegularExpression form(
            QRegularExpression::anchoredPattern(parts.join(QStringLiteral("(.*)"))));
        const QRegularExpressionMatch match = form.match(fault);
        if (!match.hasMatch())
            continue;
        QString text = translated(pattern);
        if (match.lastCapturedIndex() == 1)
            text = text.arg(match.captured(1));
        else if (match.lastCapturedIndex() == 2)
            text = text.arg(match.captured(1), match.captured(2));
        return text;
    }
    return fault;
}
} // namespace

QString faultText(const virtualsky::SkyFileError &error)
{
    // "line 3: clouds: must be a number"; line and key are absent for some faults.
    QString fault = QString::fromUtf8(error.what());
    if (error.line() > 0)
        fault.remove(0, QStringLiteral("line %1: ").arg(error.line()).size());
    const QString key = QString::fromStdString(error.key());
    if (!key.isEmpty())
        fault.remove(0, key.size() + 2);
    QString text = inLanguage(fault);
    if (!key.isEmpty())
        text = translated(QT_TRANSLATE_NOOP("SkyFault", "%1: %2")).arg(key, text);
    if (error.line() > 0)
        text = translated(QT_TRANSLATE_NOOP("SkyFault", "line %1: %2"))
                   .arg(QString::number(error.line()), text);
    return text;
}
} // namespace virtualmount
