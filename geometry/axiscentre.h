// SPDX-License-Identifier: MIT
// About which point of the frame does the field rotate, and where does a rotation move a point?
#pragma once

// Positions are pixels of any one image, x to the right and y downwards.

/// Centre of the circle through three positions of one star, and its radius in whole pixels
/// (truncated; the largest int if it exceeds int, 0 if it is NaN).
/// Returns 0 and logs the centre at debug level. Returns -1, with unchanged outputs, for points on
/// a straight line, with a critical log line, and, without one, if the first and second or the
/// second and third point are on the same row. All comparisons are exact.
int CenterOfCircle(double x1, double y1, double x2, double y2, double x3, double y3,
                   double &centreX, double &centreY, int &radius);

/// Rotates (x, y) about (cx, cy) by an angle in degrees, positive clockwise on the screen.
void RotatePointByDegrees(double degrees, double x, double y, double cx, double cy,
                          double &rotatedX, double &rotatedY);

/// Rotates (x, y) about (cx, cy) by an angle in radians, positive counter-clockwise on the screen:
/// the opposite sense of RotatePointByDegrees.
void RotatePointByRadians(double radians, double x, double y, double cx, double cy,
                          double &rotatedX, double &rotatedY);
