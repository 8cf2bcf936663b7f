// SPDX-License-Identifier: MIT
// About which point of the frame does the field turn, and where does a turn take a point?
#pragma once

// Positions are pixels, x to the right and y downwards; any image will do.

/// Centre of the circle through three positions of one star, and its radius in whole pixels
/// (truncated; int's largest value where it is beyond int, 0 where it is not a number).
/// Returns 0 and logs the centre at debug level, or returns -1 and leaves the outputs as they
/// were: for points on a straight line, with a critical message, and, without one, where the first
/// and second or the second and third lie on one row. All comparisons are exact.
int CenterOfCircle(double x1, double y1, double x2, double y2, double x3, double y3,
                   double &centreX, double &centreY, int &radius);

/// Turns (x, y) about (cx, cy) by an angle in degrees, positive clockwise on the screen.
void RotatePointByDegrees(double degrees, double x, double y, double cx, double cy,
                          double &rotatedX, double &rotatedY);

/// Turns (x, y) about (cx, cy) by an angle in radians, positive counter-clockwise on the screen:
/// the opposite sense of RotatePointByDegrees.
void RotatePointByRadians(double radians, double x, double y, double cx, double cy,
                          double &rotatedX, double &rotatedY);
