// SPDX-License-Identifier: MIT
// How does a person align a mount who does what the assistant says?
#pragma once

#include "bench/assistant/mountonsky.h"

#include <optional>
#include <string>

/// How one alignment ended.
struct AlignmentResult {
    bool finished = false;
    std::string whyNot;              ///< if it did not finish
    double trueError = 0.0;          ///< arcseconds, by the camera's own truth
    double shown = 0.0, sigma = 0.0; ///< arcseconds, the last figure and its claim
    /// Whether the truth lies within two sigma of what was shown.
    bool inside = false;
    double seconds = 0.0;      ///< of camera time, from the first frame to the end
    double boltsSeconds = 0.0; ///< of it, while bolts were turned
};

/// Degrees a second. A bolt turns faster as long as the figure is above 10 arcminutes.
struct HandSpeeds {
    double axis = 3.0;
    double boltFar = 20.0 / 60.0, boltNear = 2.0 / 60.0;
};

/// Turns the RA axis while the assistant asks for it, then the bolts, until the figure is below
/// `goal` arcseconds or gets no better.
AlignmentResult alignAsTold(MountOnSky &mount, double goal = 2.0,
                            const HandSpeeds &speeds = HandSpeeds());

/// Only until the assistant asks for the bolts; false if it never does.
bool turnAxisAsTold(MountOnSky &mount, double degreesPerSecond = 3.0);

/// Looks at the next frames until they show a figure; nothing if none comes.
std::optional<assistant::Status> nextFigure(MountOnSky &mount, int frames = 50);
