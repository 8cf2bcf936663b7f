// SPDX-License-Identifier: MIT
// Which sentence tells the user what to do now?
#pragma once

#include "assistant/status.h"

#include <QLocale>
#include <QString>

namespace assistantwindow
{
/// @param hasBolts altitude and azimuth are known: the bolts' arrows are shown
QString adviceText(const assistant::Advice &advice, bool hasBolts, const QLocale &locale);

/// The stage's short name, for its label.
QString stageText(assistant::Stage stage);

/// How the advice is coloured.
enum class AdviceMood { Calm, Warning, Good };
AdviceMood moodOf(assistant::AdviceCode code);
} // namespace assistantwindow
