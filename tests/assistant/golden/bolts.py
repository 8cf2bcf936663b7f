# SPDX-License-Identifier: MIT
"""What do the bolts read, and how surely, for an axis that they turned? Reference for the figures.

    /usr/bin/python3 bolts.py > bolts.csv

The axis is the horizontal direction on the pole's side, tilted up by latitude and altitude bolt and
turned about the vertical by the azimuth bolt, with rotation matrices. A camera looks along it,
turned by a roll, 30 arcseconds a pixel; the axis' pixel has an elongated normal error. Standard
errors are taken from 400 points round the ellipse of one hundredth sigma: twice the mean square of
the change of each angle.
Columns: latitude, bolt altitude, bolt azimuth (degrees, up and east positive); the axis (east,
north, up); the picture's right (east, north, up); covariance of the pixel (xx, xy, yy, pixels
squared); expected altitude, azimuth and total error and their standard errors, arcseconds.
"""
import numpy as np

SCALE = np.radians(30.0 / 3600.0)
LATITUDES = (0.0, 5.0, 20.0, 40.0, 60.0, 80.0, 89.0, -5.0, -34.0, -65.0, -80.0)
BOLTS = ((0.0, 0.0), (0.01, -0.02), (0.5, 0.5), (1.0, -1.0), (3.0, 3.0), (-3.0, 5.0), (5.0, -5.0),
         (-5.0, -4.0))
LONG, SHORT = 0.3, 0.03  # standard errors of the pixel along and across the ellipse, pixels


def about(axis, angle):
    """Rodrigues: the rotation about a unit vector."""
    k = np.array([[0, -axis[2], axis[1]], [axis[2], 0, -axis[0]], [-axis[1], axis[0], 0]])
    return np.eye(3) + np.sin(angle) * k + (1 - np.cos(angle)) * (k @ k)


def pole_side(latitude):
    return np.array([0.0, -1.0 if latitude < 0 else 1.0, 0.0])


def turned(latitude, altitude, azimuth):
    """The direction of an axis and the matrix that brought the level one there."""
    south = latitude < 0
    tilt = about(np.array([-1.0 if south else 1.0, 0, 0]), np.radians(abs(latitude) + altitude))
    swing = about(np.array([0, 0, 1.0]), np.radians(azimuth if south else -azimuth))
    return swing @ tilt @ pole_side(latitude), swing @ tilt


def readings(latitude, axis):
    """Altitude, azimuth and total error, arcseconds."""
    pole, _ = turned(latitude, 0.0, 0.0)
    altitude = np.degrees(np.arcsin(axis[2])) - abs(latitude)
    level = axis * [1, 1, 0] / np.hypot(axis[0], axis[1])
    azimuth = np.degrees(np.arctan2(level[0], level @ pole_side(latitude)))
    total = np.degrees(2 * np.arcsin(np.linalg.norm(axis - pole) / 2))
    return np.array([altitude, azimuth, total]) * 3600


def row(number, latitude, altitude, azimuth):
    axis, frame = turned(latitude, altitude, azimuth)
    right = about(axis, np.radians(37.0 * number)) @ frame @ np.array([1.0, 0, 0])
    down = np.cross(axis, right)
    way = np.radians(11.0 + 53.0 * number)
    spin = np.array([[np.cos(way), -np.sin(way)], [np.sin(way), np.cos(way)]])
    covariance = spin @ np.diag([LONG ** 2, SHORT ** 2]) @ spin.T
    middle = readings(latitude, axis)
    sums = np.zeros(3)
    phases = np.arange(400) * 2 * np.pi / 400
    for phase in phases:
        x, y = 0.01 * SCALE * (spin @ [LONG * np.cos(phase), SHORT * np.sin(phase)])
        seen = axis + x * right + y * down
        sums += (readings(latitude, seen / np.linalg.norm(seen)) - middle) ** 2
    sigmas = 100 * np.sqrt(2 * sums / len(phases))
    values = [latitude, altitude, azimuth, *axis, *right, covariance[0, 0], covariance[0, 1],
              covariance[1, 1], *middle, *sigmas]
    print(",".join("%.13g" % (value + 0.0) for value in values))


def main():
    number = 0
    for latitude in LATITUDES:
        for altitude, azimuth in BOLTS:
            if abs(latitude) + altitude < 89.5:
                row(number, latitude, altitude, azimuth)
                number += 1


if __name__ == "__main__":
    main()
