// SPDX-License-Identifier: MIT
// The tables of assistantreport.
#pragma once

/// Whole alignments from random starts: with frames painted in this process, or on the camera
/// library in real time.
void reportStarts(int count, bool onLibrary);

/// Hours with the bolts at rest, the time running and frames in between.
void reportNight(double hours);

/// Processor time from frame to status.
void reportSpeed(int frames);
