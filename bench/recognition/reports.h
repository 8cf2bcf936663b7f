// SPDX-License-Identifier: MIT
// What recognitionreport can measure. Each prints a table for docs/recognition.md or lines of CSV.
#pragma once

/// One CSV line for each of `count` skies from number `first`: the sky and what was found.
void reportSkies(int first, int count);
/// The same for `count` of those skies that show 12 to 19 stars above 5 sigma.
void reportSparseSkies(int first, int count);
/// The pole's error and the claimed ellipse, `count` skies for each pole and year.
void reportPoles(int count);
/// The axis from three frames 30 degrees apart, `count` nights for each pole.
void reportAxes(int count);
/// The pole's error and the claimed ellipse with few stars, `count` star lists a row.
void reportFewStars(int count);
/// What part of `count` star lists is recognised, for each field of view and number of false stars.
void reportFields(int count);
/// `count` frames in which nothing must be recognised; @return how many were
int reportFalseFrames(int first, int count);
/// Random star lists and small random frames, both numbered from `first`, so that runs add up.
/// @return whether nothing was recognised and all stars of the frames were possible ones
bool reportFuzz(int first, int lists, int frames);
/// Medians of the thread's own time over `count` frames.
void reportSpeeds(int count);
enum class MemoryOf {
    Blind,
    SmallFrames, ///< blind too, the middle quarter of each frame: 640 x 480 pixels
    Following
};
/// Memory before, during and after `count` frames.
void reportMemory(int count, MemoryOf what);
/// Writes `count` frames of one date as PNG files into a folder, with their truth as truth.csv.
/// @return whether all were written
bool writeFrames(const char *folder, int count);
