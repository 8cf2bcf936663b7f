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

/// What the advice means for the figures, one more sentence; empty for most.
QString reasonText(assistant::AdviceCode code);

/// Whether the user may put the advice away for the run: it may be true all night, and hinders
/// nothing.
bool canBeDismissed(assistant::AdviceCode code);

/// The stage's short name, for its label.
QString stageText(assistant::Stage stage);

/// How the advice is coloured.
enum class AdviceMood { Calm, Warning, Good };
AdviceMood moodOf(assistant::AdviceCode code);
} // namespace assistantwindow
