// SPDX-License-Identifier: MIT
// When does a check write the lens' values into the sky file, and how?
#pragma once

#include <string>

#include "virtualcamera/cameraaddress.h"
#include "virtualcamera/skystate.h"

struct MeasuredLens {
    double scale = 0.0; ///< arcseconds a pixel of the sensor, unbinned
    bool mirrored = false;
    bool soften = false; ///< its stars are single pixels at the programs' scale
};

enum class LensWriting { WhereItCounts, Always, Never };

/// Why the sky file is left as it is; empty = the values are written. They count for cameras by
/// INDI and for files: neither the virtual sky nor the maker's library reads them. Photographs may
/// be of any lens: they do not replace another one's values, unless files are the camera that the
/// sky file chooses.
/// @param checked where the frame came from; Sky also stands for the maker's library
/// @param state of the sky file
std::string reasonToLeave(LensWriting writing, virtualsky::Source checked,
                          const virtualsky::SkyState &state, const MeasuredLens &lens);

/// Writes the keys `scale` and `mirrored`, and `soften` where it is needed or is there already, and
/// prints which lines were changed and what stood there.
/// @return false, with a message on standard error, if the file cannot be changed; it is as it was
bool writeLens(const std::string &skyFile, const MeasuredLens &lens);
