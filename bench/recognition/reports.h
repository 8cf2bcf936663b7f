// SPDX-License-Identifier: MIT
// What recognitionreport can measure. Each prints a table for docs/recognition.md or lines of CSV,
// and returns whether what it measured reaches the bars that docs/recognition.md lists.
#pragma once

/// One CSV line for each of `count` skies from number `first`: the sky and what was found.
bool reportSkies(int first, int count);
/// The same for `count` of those skies that show 12 to 19 stars above 5 sigma.
bool reportSparseSkies(int first, int count);
/// The pole's error and the claimed ellipse, `count` skies for each pole and year.
bool reportPoles(int count);
/// The axis from three frames 30 degrees apart, `count` nights for each pole.
bool reportAxes(int count);
/// The pole's error and the claimed ellipse with few stars, `count` star lists a row.
bool reportFewStars(int count);
/// What part of `count` star lists is recognised, for each field of view and number of false stars.
bool reportFields(int count);
/// `count` frames in which nothing must be recognised; @return how many were
int reportFalseFrames(int first, int count);
/// Random star lists and small random frames, both numbered from `first`, so that runs add up.
/// @return whether nothing was recognised and all stars of the frames were possible ones
bool reportFuzz(int first, int lists, int frames);
/// Medians of the thread's own time over `count` frames.
bool reportSpeeds(int count);
enum class MemoryOf {
    Blind,
    SmallFrames, ///< blind too, the middle quarter of each frame: 640 x 480 pixels
    LargeFrames, ///< blind too, 1456 x 1088: nearly the largest that are searched unbinned
    Following
};
/// Memory before, during and after `count` frames.
bool reportMemory(int count, MemoryOf what);
/// Writes `count` frames of one date as PNG files into a folder, with their truth as truth.csv.
/// @return whether all were written
bool writeFrames(const char *folder, int count);
