// SPDX-License-Identifier: MIT
// The tables of assistantreport and assistantwindowreport.
#pragma once

#include "bench/assistant/person.h"
#include "virtualcamera/skystate.h"

#include <functional>

/// Complete alignments from the first `count` random starts.
void reportStarts(int count,
                  const std::function<AlignmentResult(const virtualsky::SkyState &)> &align);

/// The RA axis' error at the end of the second stage of as many starts.
void reportAxis(int count, double degreesPerSecond);

/// Hours with the bolts at rest, the time running and frames in between.
void reportNight(double hours);

/// Processor time from frame to status.
void reportSpeed(int frames);
