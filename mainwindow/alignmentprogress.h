// SPDX-License-Identifier: MIT
// Which of the user's actions in this alignment do the notices depend on?
#pragma once

#include "geometry/templaterings.h"

#include <QPointF>
#include <array>
#include <optional>

/// How far apart the three picks of one star are.
struct PickTurns {
    double movedPixels = 0; ///< smallest distance between two of the picks
    double turnDegrees = 0; ///< smallest angle between two of them as seen from the axis, 0 to 180
};

PickTurns turnsBetween(const std::array<QPointF, 3> &picks, QPointF axis);

/// Follows the wizard; is notified of every step that is entered and of every pick.
class AlignmentProgress
{
public:
    /// Enters a step; the steps that ask for a pick discard the earlier ones.
    void enter(int step);
    /// Records an accepted double click. @param onStar whether there is a star at `place`
    void pick(int step, QPointF place, bool onStar);
    /// Records that the axis was computed from the three picks.
    void fitAxis(QPointF axis);
    /// Records the search for the two reference stars. @param dialDegrees reading of the tracking
    /// dial
    void prepareMonitor(int dialDegrees, const TemplateFit &fit);

    bool poleStarPicked() const { return polePicked; }
    bool poleStarOnStar() const { return poleOnStar; }
    /// The first of the three picks, 1 to 3, that is not on a star; 0 if there is none.
    int emptyPick() const;
    /// The smallest distance between two consecutive picks; empty before the second pick.
    std::optional<double> movedPixels() const;
    /// For the three picks that gave the axis; empty if the axis comes from an earlier session.
    const std::optional<PickTurns> &turns() const { return axisTurns; }
    bool monitorPrepared() const { return prepared; }
    int dialAtStart() const { return dial; }
    const TemplateFit &fitAtStart() const { return fitConfirmed; }

private:
    struct Pick {
        QPointF place;
        bool onStar;
    };
    std::array<std::optional<Pick>, 3> picks;
    std::optional<PickTurns> axisTurns;
    bool polePicked = false; ///< in the last step that asked for it
    bool poleOnStar = true;
    bool prepared = false;
    int dial = 0; ///< degrees
    TemplateFit fitConfirmed;
};
