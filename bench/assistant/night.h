// SPDX-License-Identifier: MIT
// What do memory and figures do over hours in which nobody touches the bolts?
#pragma once

#include "virtualcamera/skystate.h"

struct NightResult {
    int frames = 0;
    int figures = 0;          ///< frames with a figure
    double worstDrift = 0.0;  ///< arcseconds, of altitude or azimuth (on the sky) against the truth
    double worstSigmas = 0.0; ///< the same in units of the claim
    double change = 0.0;      ///< arcseconds, of the total's mean, last tenth against the first
    double growthMebibytes = 0.0; ///< of resident memory, from a tenth of the time to the end
};

/// Measures the axis, then looks at a frame every `interval` seconds of the sky's time. The mount
/// tracks; the axis is turned back when it has tracked for six hours, as a mount must.
NightResult nightAtRest(const virtualsky::SkyState &sky, double hours, double interval);
