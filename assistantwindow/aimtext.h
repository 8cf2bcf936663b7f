// SPDX-License-Identifier: MIT
// How does the window say which pole the figures refer to, and which air is assumed?
#pragma once

#include "assistant/report.h"

#include <QLocale>
#include <QString>

namespace assistantwindow
{
/// "true pole, refraction at 1013 hPa, 10 °C".
QString aimText(const assistant::Aim &aim, const QLocale &locale);
} // namespace assistantwindow
