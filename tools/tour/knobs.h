// SPDX-License-Identifier: MIT
// How does the hand on the virtual mount turn its knobs, and how far off is the mount in truth?
#pragma once

#include "virtualcamera/skystate.h"
#include "virtualcamera/truth.h"

#include <QPointF>
#include <string>

/// The sky file of the virtual camera, held in memory and written whole at every change.
class Knobs
{
public:
    /// @param path the sky file; its folder is made where it is missing
    Knobs(std::string path, const virtualsky::SkyState &initial);

    /// Turns the RA axis to an angle in degrees, positive as the mount tracks.
    void turnRaAxisTo(double degrees);
    /// Turns the bolts to their readings in degrees: altitude, and azimuth about the vertical.
    void turnBoltsTo(double altitude, double azimuth);
    /// Turns the bolts so that the picture of star B moves by `step` frame pixels.
    void nudgeStarB(QPointF step);
    /// Any other change: edit the state, then write it.
    virtualsky::SkyState &edit() { return state; }
    void write() const;

    /// Places in the picture now, frame pixels.
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
