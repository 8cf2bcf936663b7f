// SPDX-License-Identifier: MIT
// Reads angles with a sign or a letter, in decimals or in degrees, minutes and seconds.
#include "assistantwindow/siteentry.h"

#include <QStringList>
#include <QTimer>
#include <cmath>

namespace assistantwindow
{
namespace
{
bool isMark(QChar c)
{
    return c.isSpace() || QStringLiteral("°º'’′\"”″").contains(c);
}

/// Nothing unless `text` is a number without a sign below `limit`.
std::optional<double> partOf(const QString &text, double limit)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    const bool isPlain = !text.isEmpty() && (text[0].isDigit() || text[0] == QLatin1Char('.')) &&
                         !text.contains(QLatin1Char('e'), Qt::CaseInsensitive);
    if (!isNumber || !isPlain || !(number < limit))
        return {};
    return number;
}
} // namespace

std::optional<double> typedAngle(const QString &text, Sides sides, double most)
{
    QString rest;
    int letters = 0;
    double sign = 1.0;
    for (const QChar c : text) {
        if (c.toUpper() == sides.positive || c.toUpper() == sides.negative) {
            ++letters;
            sign = c.toUpper() == sides.negative ? -1.0 : 1.0;
        } else {
            rest += isMark(c) ? QLatin1Char(' ') : c == QLatin1Char(',') ? QLatin1Char('.') : c;
        }
    }
    rest = rest.trimmed();
    const bool isSigned = rest.startsWith(QLatin1Char('-')) || rest.startsWith(QChar(0x2212));
    if (letters + int(isSigned) > 1)
        return {};
    if (isSigned)
        sign = -1.0;
    if (isSigned || rest.startsWith(QLatin1Char('+')))
        rest.remove(0, 1);
    const QStringList parts = rest.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (parts.isEmpty() || parts.size() > 3)
        return {};
    double angle = 0.0, unit = 1.0;
    for (int i = 0; i < parts.size(); ++i, unit /= 60.0) {
        const auto part = partOf(parts[i], i == 0 ? 1000.0 : 60.0);
        const bool isLast = i + 1 == parts.size();
        if (!part || (!isLast && *part != std::floor(*part)))
            return {};
        angle += *part * unit;
    }
    if (angle > most)
        return {};
    return sign * angle;
}

SiteField::SiteField(Sides letters, double greatest) : sides(letters), most(greatest)
{
    setDecimals(4);
    setRange(-most - 1.0, most);
    setSpecialValueText(QStringLiteral("—"));
    setSuffix(QStringLiteral("°"));
    setValue(minimum());
    setKeyboardTracking(false);
}

QValidator::State SiteField::validate(QString &text, int &) const
{
    if (text == specialValueText() || typedAngle(text, sides, most))
        return QValidator::Acceptable;
    for (const QChar c : text)
        if (!c.isDigit() && !isMark(c) && !QStringLiteral("+-−.,").contains(c) &&
            c.toUpper() != sides.positive && c.toUpper() != sides.negative)
            return QValidator::Invalid;
    return QValidator::Intermediate;
}

double SiteField::valueFromText(const QString &text) const
{
    return text == specialValueText() ? minimum() : typedAngle(text, sides, most).value_or(value());
}

void SiteField::focusInEvent(QFocusEvent *event)
{
    QDoubleSpinBox::focusInEvent(event);
    QTimer::singleShot(0, this, &SiteField::selectAll); // after the click that gave the focus
}
} // namespace assistantwindow
