// SPDX-License-Identifier: MIT
// The equatorial mount: bolts, RA axis, tracking, and the camera's position on it.
#include "virtualcamera/mount.h"

#include <cmath>

#include "virtualcamera/optics.h"

namespace virtualsky
{
namespace
{
struct Aim {
    double azimuth, altitude; // radians, azimuth from north through east
};

Aim axisAim(const SkyState &state)
{
    const double east = state.boltAzimuth * degree;
    return {isSouth(state) ? pi - east : east,
            (std::abs(state.latitude) + state.boltAltitude) * degree};
}

Vector3 horizonDirection(const Aim &aim)
{
    return {std::sin(aim.azimuth) * std::cos(aim.altitude),
            std::cos(aim.azimuth) * std::cos(aim.altitude), std::sin(aim.altitude)};
}

// (right, down, along the axis) for an observer who looks along the axis with the zenith up.
Matrix3 mountFromHorizon(const SkyState &state)
{
    const Aim aim = axisAim(state);
    const Vector3 axis = horizonDirection(aim);
    const Vector3 up = horizonDirection({aim.azimuth, aim.altitude + pi / 2.0});
    return {{cross(axis, up), scaled(up, -1.0), axis}};
}

// Radians, clockwise on the screen. The mount tracks westwards: seen along the axis it turns the
// camera counter-clockwise in the north, so that the picture turns clockwise.
double pictureTurn(const SkyState &state, double utcSeconds)
{
    const double tracked = 2.0 * pi * skyTurnsPerSecond * trackedSeconds(state, utcSeconds);
    const double turn = state.raAngle * degree + tracked;
    return state.roll * degree + (isSouth(state) ? -turn : turn);
}

Matrix3 turnAboutForward(double angle)
{
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return {{{{c, -s, 0.0}, {s, c, 0.0}, {0.0, 0.0, 1.0}}}};
}

// The shortest rotation from forward (0, 0, 1) to `to`.
Matrix3 tiltForwardTo(const Vector3 &to)
{
    const double k = 1.0 / (1.0 + to.z);
    return {{{{1.0 - k * to.x * to.x, -k * to.x * to.y, to.x},
              {-k * to.x * to.y, 1.0 - k * to.y * to.y, to.y},
              {-to.x, -to.y, to.z}}}};
}
} // namespace

bool isSouth(const SkyState &state)
{
    return state.latitude < 0.0;
}

double trackedSeconds(const SkyState &state, double utcSeconds)
{
    return state.tracking ? utcSeconds - state.trackingSince.value_or(utcSeconds) : 0.0;
}

Vector3 poleDirection(const SkyState &state)
{
    return horizonDirection({isSouth(state) ? pi : 0.0, std::abs(state.latitude) * degree});
}

Vector3 axisDirection(const SkyState &state)
{
    return horizonDirection(axisAim(state));
}

Matrix3 cameraFromHorizon(const SkyState &state, double utcSeconds)
{
    const Vector3 axisInCamera = unproject({centreX + state.axisX, centreY + state.axisY});
    const Matrix3 cameraFromMount =
        product(tiltForwardTo(axisInCamera), turnAboutForward(pictureTurn(state, utcSeconds)));
    return product(cameraFromMount, mountFromHorizon(state));
}
} // namespace virtualsky
