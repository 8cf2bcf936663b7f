// SPDX-License-Identifier: MIT
// What has the user done so far in this alignment, as far as the notices need it?
#pragma once

#include "geometry/templaterings.h"

#include <QPointF>
#include <array>
#include <optional>

/// How the three picks of one star lie to one another.
struct PickTurns {
    double movedPixels = 0; ///< the least distance between two of the picks
    double turnDegrees = 0; ///< the least angle between two of them as seen from the axis, 0 to 180
};

PickTurns turnsBetween(const std::array<QPointF, 3> &picks, QPointF axis);

/// Follows the wizard: told of every step that is entered and of every pick.
class AlignmentProgress
{
public:
    /// Begins a step; the steps that ask for a pick forget the earlier ones.
    void enter(int step);
    /// A double click was accepted in a step. \param onStar whether a star is there
    void pick(int step, QPointF place, bool onStar);
    /// The axis was computed from the three picks.
    void fitAxis(QPointF axis);
    /// The two reference stars were looked for. \param dialDegrees what the tracking dial showed
    void prepareMonitor(int dialDegrees, const TemplateFit &fit);

    bool poleStarPicked() const { return polePicked; }
    bool poleStarOnStar() const { return poleOnStar; }
    /// The first of the three picks, 1 to 3, that holds no star; 0 if there is none.
    int emptyPick() const;
    /// The least distance between two picks that follow one another; nothing before the second.
    std::optional<double> movedPixels() const;
    /// Of the three picks that gave the axis; nothing if the axis comes from an earlier night.
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
