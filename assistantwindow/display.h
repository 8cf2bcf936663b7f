// SPDX-License-Identifier: MIT
// What does the window show of one status?
#pragma once

#include "assistant/axistracker.h"
#include "assistant/settings.h"
#include "assistantwindow/advicetexts.h"
#include "assistantwindow/bolts.h"
#include "assistantwindow/figures.h"

#include <QStringList>

namespace assistantwindow
{
/// A figure as text, and as the dynamic properties of its label.
struct Figure {
    QString text;  ///< a dash if there is no valid number
    QString sigma; ///< "± 3″"; empty if there is none
    std::optional<double> arcseconds, sigmaArcseconds;
};

struct Display {
    assistant::Stage stage = assistant::Stage::Connect;
    QString stageText, advice;
    QString hint;        ///< the second advice; empty if there is none
    QStringList further; ///< all but the first, most important first
    QString hintReason;  ///< what that means; may be empty
    bool hintCanBeDismissed = false;
    AdviceMood mood = AdviceMood::Calm;
    Figure total, altitude, azimuth;
    QString aim;         ///< which pole the figures refer to
    QString uncertainty; ///< of the axis while it is turned, then of the total error
    BoltWays ways;
    double altitudeArrow = 0.0, azimuthArrow = 0.0; ///< degrees, 0 up, positive clockwise
    bool aligned = false;                           ///< the guide says so
    bool hasBolts = false;                          ///< altitude and azimuth are known
    /// From the axis to the pole in the picture, degrees, 0 up, positive clockwise: where the
    /// bolts must move the axis.
    std::optional<double> pictureArrow;
    QString axisTurn;
    double axisShare = 0.0; ///< how full the ring is, 0 to 1
    bool axisEnough = false;
    QString stars; ///< "21 of 34 stars recognised"; empty if none
    QString focus; ///< the stars' width; empty without stars
};

/// How full the ring of the turn is, 0 to 1. It is full only when the turn is enough: 30 degrees
/// are not while the frames do not yet agree.
double turnShare(const assistant::AxisProgress &axis);
/// Where on the ring the turn may be enough at the earliest.
inline constexpr double earliestShare = recognition::minTurn / assistant::enoughTurn;

/// @param dismissed the user put away the advice that can be
Display displayOf(const assistant::Status &status, const assistant::Settings &settings,
                  const QLocale &locale, bool dismissed = false);
} // namespace assistantwindow
