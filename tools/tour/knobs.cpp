// SPDX-License-Identifier: MIT
// Writes the sky file as if a user turned the mount's knobs.
#include "tools/tour/knobs.h"

#include "virtualcamera/skyfile.h"

#include <QDateTime>
#include <cerrno>
#include <system_error>
#include <utility>

namespace
{
/// A star outside the picture gets a position far away from it.
QPointF toPointF(const std::optional<virtualsky::Point> &point)
{
    return point ? QPointF(point->x, point->y) : QPointF(-1e6, -1e6);
}
} // namespace

Knobs::Knobs(std::string skyFile, const virtualsky::SkyState &initial)
    : path(std::move(skyFile)), state(initial)
{
    write();
}

void Knobs::write() const
{
    if (!virtualsky::writeAtomically(path, virtualsky::format(state)))
        throw std::system_error(errno, std::generic_category(), path);
}

void Knobs::turnRaAxisTo(double degrees)
{
    state.raAngle = turnOtherMount ? turnOtherMount(degrees) : degrees;
    write();
}

void Knobs::turnBoltsTo(double altitude, double azimuth)
{
    state.boltAltitude = altitude;
    state.boltAzimuth = azimuth;
    write();
}

QPointF Knobs::starBWith(double altitude, double azimuth) const
{
    Knobs turned = *this;
    turned.state.boltAltitude = altitude;
    turned.state.boltAzimuth = azimuth;
    return turned.starB();
}

void Knobs::nudgeStarB(QPointF step)
{
    // The star's movement per degree of each bolt, from a small turn; then two equations in two
    // unknowns.
    constexpr double turn = 0.01;
    const QPointF here = starB();
    const QPointF up = (starBWith(state.boltAltitude + turn, state.boltAzimuth) - here) / turn;
    const QPointF east = (starBWith(state.boltAltitude, state.boltAzimuth + turn) - here) / turn;
    const double determinant = up.x() * east.y() - up.y() * east.x();
    const double altitude = (step.x() * east.y() - step.y() * east.x()) / determinant;
    const double azimuth = (up.x() * step.y() - up.y() * step.x()) / determinant;
    turnBoltsTo(state.boltAltitude + altitude, state.boltAzimuth + azimuth);
}

virtualsky::Truth Knobs::truth() const
{
    const double now = double(QDateTime::currentMSecsSinceEpoch()) / 1000.0;
    return virtualsky::truth(state, state.date.value_or(now));
}

QPointF Knobs::starA() const
{
    return toPointF(truth().starA);
}
QPointF Knobs::starB() const
{
    return toPointF(truth().starB);
}
QPointF Knobs::starD() const
{
    return toPointF(truth().starD);
}
QPointF Knobs::axis() const
{
    return toPointF(truth().axis);
}
QPointF Knobs::pole() const
{
    return toPointF(truth().pole);
}
double Knobs::poleError() const
{
    return truth().poleError;
}
