// SPDX-License-Identifier: MIT
// Where is the celestial pole in a picture with two stars at known positions?
#pragma once

// The pole P and the stars A and B form a triangle whose angles at A and B are known from the
// catalogue; angles are degrees. Positions are pixels of one image, x to the right, y downwards.
// The triangle can lie on either side of the line A-B; the two functions differ in how they choose.
// They return 0, or -1 with both outputs 0. Stars on the same pixel column are rejected, since the
// construction divides by x2 - x1. If the two circles about A and B touch in one point, both
// outputs are that point's y.

/// The pole, selected by a third star D: the candidate whose angle at B between D and the pole is
/// closer to angleDBP. (x1, y1) is star A with the angle at A, (x2, y2) star B with the angle at B.
/// Every failure is logged at critical level.
int PoleFromTriangle(double x1, double y1, double angleA, double x2, double y2, double angleB,
                     double xd, double yd, double angleDBP, double &poleX, double &poleY);

/// The pole, selected by a reference point (xr, yr), the mount's axis centre: the candidate closer
/// to it, or at equal distance the one with the smaller y. Failures are logged at critical level,
/// except for NaN values.
int CalcPoleCOOR(double x1, double y1, double angleA, double x2, double y2, double angleB,
                 double xr, double yr, double &poleX, double &poleY);

/// Of two candidates for the pole, the one whose angle at B between the directions to D and to the
/// candidate is closer to angleDBP (degrees); the second one on a tie.
void CandidateByAngle(double firstX, double firstY, double secondX, double secondY, double xd,
                      double yd, double xb, double yb, double angleDBP, double &chosenX,
                      double &chosenY);
