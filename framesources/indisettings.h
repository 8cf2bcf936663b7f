// SPDX-License-Identifier: MIT
// Which settings of a device correspond to the program's?
#pragma once

#include <opencv2/core.hpp>

namespace framesources
{
/// What a device is to read out.
struct Readout {
    int binning = 1; ///< both ways
    cv::Rect region; ///< of the sensor, unbinned pixels

    bool operator==(const Readout &o) const { return binning == o.binning && region == o.region; }
    bool operator!=(const Readout &o) const { return !(*this == o); }
};

/// The region and the binning that come nearest to the program's frame.
/// @param sensor size in pixels
/// @param maxBinning of the device, 1 = none
/// @param scale arcseconds a pixel of the sensor; 0 = unknown, or of no interest
/// @param whole the whole sensor is wanted, so that its stars can be recognised
Readout planReadout(cv::Size sensor, int maxBinning, double scale, bool whole);

/// How often a frame that came is binned: drivers may refuse what they were asked for.
int binningOf(const Readout &readout, cv::Size frame);

/// A device's gain for the program's: 0 to 100 is its whole range, and more is as 100.
double deviceGain(double programGain, double least, double most);

/// Within a device's limits, if it has any.
double withinLimits(double value, double least, double most);
} // namespace framesources
