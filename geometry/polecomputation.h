// SPDX-License-Identifier: MIT
// Where is the celestial pole in a picture in which two stars' places are known?
#pragma once

// The pole P and the stars A and B form a triangle whose angles at A and B are known from the
// catalogue; angles are degrees. Positions are pixels of one image, x to the right, y downwards.
// The triangle can lie on either side of the line A-B; the two functions differ in how they choose.
// They return 0, or -1 with both outputs 0. Stars on one pixel column are rejected: the
// construction divides by x2 - x1. Where the two circles about A and B touch in one point, both
// outputs carry that point's y.

/// The pole by a third star D: the candidate whose angle at B between D and the pole is nearer to
/// angleDBP. (x1, y1) is star A with the angle at A, (x2, y2) star B with the angle at B.
/// Every failure is logged at critical level.
int PoleFromTriangle(double x1, double y1, double angleA, double x2, double y2, double angleB,
                     double xd, double yd, double angleDBP, double &poleX, double &poleY);

/// The pole by a reference point (xr, yr), the mount's axis centre: the candidate nearer to it,
/// and the one with the smaller y at equal distance. Failures are logged at critical level, except
/// for values that are not numbers.
int CalcPoleCOOR(double x1, double y1, double angleA, double x2, double y2, double angleB,
                 double xr, double yr, double &poleX, double &poleY);

/// Of two candidates for the pole, the one whose angle at B between the directions to D and to the
/// candidate is nearer to angleDBP (degrees); the second one on a tie.
void CandidateByAngle(double firstX, double firstY, double secondX, double secondY, double xd,
                      double yd, double xb, double yb, double angleDBP, double &chosenX,
                      double &chosenY);
