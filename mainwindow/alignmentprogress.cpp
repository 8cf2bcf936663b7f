// SPDX-License-Identifier: MIT
// Records the picks of an alignment and what follows from them.
#include "mainwindow/alignmentprogress.h"

#include "mainwindow/wizardtable.h"

#include <algorithm>
#include <cmath>

namespace
{
double distance(QPointF a, QPointF b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

/// The angle between two points as seen from a third point, degrees, 0 to 180.
double angleBetween(QPointF a, QPointF b, QPointF from)
{
    const QPointF u = a - from, v = b - from;
    constexpr double degrees = 180.0 / 3.14159265358979323846;
    return std::abs(std::atan2(u.x() * v.y() - u.y() * v.x(), QPointF::dotProduct(u, v))) * degrees;
}

/// Index of the pick (0 to 2) that a step asks for; -1 if it asks for none.
int pickIn(int step)
{
    return step == FirstPick ? 0 : step == SecondPick ? 1 : step == ThirdPick ? 2 : -1;
}
} // namespace

PickTurns turnsBetween(const std::array<QPointF, 3> &picks, QPointF axis)
{
    const auto &[a, b, c] = picks;
    return {
        std::min({distance(a, b), distance(b, c), distance(a, c)}),
        std::min({angleBetween(a, b, axis), angleBetween(b, c, axis), angleBetween(a, c, axis)})};
}

void AlignmentProgress::enter(int step)
{
    if (showsTemplate(step)) {
        polePicked = false;
        poleOnStar = true;
    }
    if (step <= FirstPick) {
        picks = {};
        axisTurns.reset();
    }
    if (step < StartMonitor)
        prepared = false;
}

void AlignmentProgress::pick(int step, QPointF place, bool onStar)
{
    const int number = pickIn(step);
    if (number >= 0)
        picks.at(std::size_t(number)) = Pick{place, onStar};
    if (!showsTemplate(step))
        return;
    polePicked = true;
    poleOnStar = onStar;
}

void AlignmentProgress::fitAxis(QPointF axis)
{
    const auto &[a, b, c] = picks;
    if (a && b && c)
        axisTurns = turnsBetween({a->place, b->place, c->place}, axis);
}

void AlignmentProgress::prepareMonitor(int dialDegrees, const TemplateFit &fit)
{
    prepared = true;
    dial = dialDegrees;
    fitConfirmed = fit;
}

int AlignmentProgress::emptyPick() const
{
    for (std::size_t i = 0; i < picks.size(); ++i)
        if (picks[i] && !picks[i]->onStar)
            return int(i) + 1;
    return 0;
}

std::optional<double> AlignmentProgress::movedPixels() const
{
    const auto &[a, b, c] = picks;
    if (!a || !b)
        return std::nullopt;
    const double first = distance(a->place, b->place);
    return c ? std::min(first, distance(b->place, c->place)) : first;
}
