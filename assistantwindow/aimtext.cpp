// SPDX-License-Identifier: MIT
// One sentence for each pole.
#include "assistantwindow/aimtext.h"

#include <QCoreApplication>
#include <cmath>

namespace assistantwindow
{
QString aimText(const assistant::Aim &aim, const QLocale &locale)
{
    const auto text = [](const char *source) { return QCoreApplication::translate("Aim", source); };
    if (aim.pole == assistant::Aim::Pole::Seen)
        return text(QT_TRANSLATE_NOOP("Aim", "pole as the air shows it"));
    if (!(aim.pressure > 0.0))
        return text(QT_TRANSLATE_NOOP("Aim", "true pole, no refraction"));
    const bool isTrue = aim.pole == assistant::Aim::Pole::True;
    QString sentence =
        text(isTrue ? QT_TRANSLATE_NOOP("Aim", "true pole, refraction at %1 hPa, %2 °C")
                    : QT_TRANSLATE_NOOP("Aim", "refracted pole, at %1 hPa, %2 °C"))
            .arg(std::llround(aim.pressure))
            .arg(locale.toString(std::llround(aim.temperature)));
    // A number and its unit stay on one line.
    return sentence.replace(QStringLiteral(" °C"), QStringLiteral("\u00a0°C"));
}
} // namespace assistantwindow
