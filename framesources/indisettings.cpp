// SPDX-License-Identifier: MIT
// Binning, region, gain and exposure of a device.
#include "framesources/indisettings.h"

#include <algorithm>
#include <cmath>

#include "pictures/fitting.h"
#include "virtualcamera/frame.h"

namespace framesources
{
namespace
{
constexpr double fullGain = 100.0; // end of the program's slider

// The part of a side that is read out: even, around the centre, and a multiple of the binning.
std::pair<int, int> part(int side, double wanted, int binning)
{
    const int step = 2 * binning;
    const int length = std::min(side / step, int(std::ceil(wanted / step))) * step;
    if (length < step)
        return {0, side};
    return {(side - length) / 2 / 2 * 2, length};
}
} // namespace

Readout planReadout(cv::Size sensor, int maxBinning, double scale, bool whole)
{
    using virtualsky::sensorHeight;
    using virtualsky::sensorWidth;
    const double times =
        std::min(double(sensor.width) / sensorWidth, double(sensor.height) / sensorHeight);
    double binning = std::floor(times + 0.5);
    // Binned pixels are at most as coarse as the program's.
    if (scale > 0.0)
        binning = std::floor(pictures::programScale / scale);
    Readout readout;
    readout.binning = int(std::clamp(binning, 1.0, double(std::max(maxBinning, 1))));
    // The sensor's pixels that fill one of the program's.
    const double pixel =
        scale > 0.0 ? std::max(pictures::programScale / scale, 1.0 / pictures::maxEnlargement)
                    : readout.binning;
    const bool all = whole || (scale > 0.0 && pixel * sensorWidth >= sensor.width &&
                               pixel * sensorHeight >= sensor.height);
    const auto [x, width] =
        part(sensor.width, all ? sensor.width : pixel * sensorWidth, readout.binning);
    const auto [y, height] =
        part(sensor.height, all ? sensor.height : pixel * sensorHeight, readout.binning);
    readout.region = cv::Rect(x, y, width, height);
    return readout;
}

int binningOf(const Readout &readout, cv::Size frame)
{
    const auto fits = [](int sensor, int pixels, int binning) {
        return std::abs(sensor / binning - pixels) <= 1;
    };
    for (const int binning : {readout.binning, 1, 2, 3, 4})
        if (fits(readout.region.width, frame.width, binning) &&
            fits(readout.region.height, frame.height, binning))
            return binning;
    return 1;
}

double deviceGain(double programGain, double least, double most)
{
    return least + (most - least) * std::clamp(programGain / fullGain, 0.0, 1.0);
}

double withinLimits(double value, double least, double most)
{
    return most > least ? std::clamp(value, least, most) : value;
}
} // namespace framesources
