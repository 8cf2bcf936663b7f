// SPDX-License-Identifier: MIT
// With few stars, how far off is the pole, and how honest is the claim?
//
// No picture is drawn: pinhole cameras at random, with and without distortion, the brightest stars
// of the catalogue in each frame, and centroid errors as their signal-to-noise has them.
#pragma once

struct FewStarsCase {
    double distortion; ///< of the places, relative, in the frame's corners
    int least, most;   ///< stars
};

struct FewStarsTally {
    int frames = 0; ///< recognised
    int lost = 0;
    int inside = 0;   ///< the two-sigma ellipse
    double rms = 0.0; ///< arcseconds
};

/// Until `frames` were recognised.
FewStarsTally tallyFewStars(const FewStarsCase &which, int frames);
