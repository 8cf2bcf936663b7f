// SPDX-License-Identifier: MIT
// What is heard: how fast do the pulses come, and what is said?
#pragma once

#include "assistant/settings.h"
#include "assistantwindow/bolts.h"

#include <QString>

namespace assistantwindow
{
struct Pulses {
    enum class Kind { Silent, Pulse, Steady } kind = Kind::Silent;
    int milliseconds = 0; ///< from one pulse to the next
};

/// Pulses come faster as the error shrinks: every 2 s at 1 degree or more, every 0.12 s just above
/// the goal, evenly in the logarithm; below the goal a steady tone. Silent without an error.
Pulses pulsesFor(const std::optional<assistant::ErrorFigures> &error, double goalArcseconds);

/// Silent unless the user asked for sound.
Pulses chosenPulses(const std::optional<assistant::ErrorFigures> &error,
                    const assistant::Settings &settings);

/// What the speaker says of the worse bolt, such as "up, 2 minutes"; "aligned" below the goal;
/// empty without altitude and azimuth.
/// @param latitude degrees, as for boltWays
QString spokenPhrase(const std::optional<assistant::ErrorFigures> &error, double latitude,
                     double goalArcseconds);

/// Empty unless the user asked for speech and there is a site.
QString chosenPhrase(const std::optional<assistant::ErrorFigures> &error,
                     const assistant::Settings &settings);
} // namespace assistantwindow
