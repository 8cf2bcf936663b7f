// SPDX-License-Identifier: MIT
// What is said to an INDI device so that it gives the frames that are wanted?
#pragma once

#include <set>
#include <string>

#include "framesources/indiclient.h"
#include "framesources/indiframe.h"
#include "framesources/indisettings.h"

namespace framesources
{
/// Video off, pictures uncompressed to us. Each switch once, since a device may define them after
/// it is connected; what the device is not asked for stays as its owner set it.
/// @param switched the properties that were seen before
void requestSwitches(IndiClient &client, std::set<std::string> &switched);

/// @param gain in the program's units
/// @return whether the device has a gain
bool requestGain(IndiClient &client, double gain);

void requestReadout(IndiClient &client, const Readout &readout);

/// @param seconds of each frame
void requestStream(IndiClient &client, double seconds);

/// @return whether the device has exposures
bool requestExposure(IndiClient &client, double seconds);

void requestEnd(IndiClient &client, bool ofStream, bool ofExposure);

/// What the device says of its stream's frames.
StreamShape streamShape(const IndiClient &client, const Readout &readout);
} // namespace framesources
