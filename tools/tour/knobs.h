// SPDX-License-Identifier: MIT
// How does a simulated user turn the mount's knobs, and what is the mount's true error?
#pragma once

#include "virtualcamera/skystate.h"
#include "virtualcamera/truth.h"

#include <QPointF>
#include <functional>
#include <string>

/// The sky file of the virtual camera, kept in memory and rewritten completely on every change.
class Knobs
{
public:
    /// @param path the sky file; its folder is created if it is missing
    Knobs(std::string path, const virtualsky::SkyState &initial);

    /// Turns the RA axis to an angle in degrees, positive as the mount tracks.
    void turnRaAxisTo(double degrees);
    /// Turns the RA axis of a mount that is not the sky file's alone; returns the angle at which it
    /// stops, degrees. Unset: the sky file's turns at once.
    std::function<double(double degrees)> turnOtherMount;
    /// Turns the bolts to the given positions in degrees: altitude, and azimuth about the vertical.
    void turnBoltsTo(double altitude, double azimuth);
    /// Turns the bolts so that star B moves by `step` in the picture, frame pixels.
    void nudgeStarB(QPointF step);
    /// Any other change: edit the state, then write it.
    virtualsky::SkyState &edit() { return state; }
    void write() const;

    /// Current positions in the picture, frame pixels.
    QPointF starA() const;
    QPointF starB() const;
    QPointF starD() const;
    QPointF axis() const;
    QPointF pole() const;
    /// The angle between the mount's axis and the true pole, arcseconds.
    double poleError() const;

private:
    virtualsky::Truth truth() const;
    QPointF starBWith(double altitude, double azimuth) const;

    std::string path;
    virtualsky::SkyState state;
};
