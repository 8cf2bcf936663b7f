// SPDX-License-Identifier: MIT
// Which values do the GUI thread and the capture thread share?
#pragma once

#include "core/relaxed.h"

#include <QString>

/// Written by the GUI thread (wizard, settings, style), read by the capture thread for every frame,
/// without a lock. A frame drawn during a change may show the old or the new mark.
struct OverlayFlags {
    Relaxed<bool> showAxisMark;     ///< a small mark at savedAxisCenter
    Relaxed<bool> showStarCircle;   ///< the circle through the three star picks
    Relaxed<bool> showRotatingArc;  ///< the broken ring around polarisTarget
    Relaxed<bool> monitorTracking;  ///< track the stars and compute the pole
    Relaxed<bool> showPoleRect;     ///< the pole target of monitor mode
    Relaxed<bool> showMonitorCross; ///< the marks of reference stars A and B
    Relaxed<bool> monoStyle;        ///< pale marks instead of coloured ones
    Relaxed<double> arcAngle;       ///< degrees, anticlockwise as QPainter counts them
};

/// What the marks and the pole are computed from; frame pixels. Written by the GUI thread.
struct AlignmentPoints {
    RelaxedPoint savedAxisCenter; ///< the RA axis of the last alignment; 0, 0 = none saved
    Relaxed<int> savedAxisRadius; ///< of the circle through the three picks
    RelaxedPoint polarisTarget;   ///< where the pole star must be moved to
    Relaxed<double> angleBAP;     ///< degrees at star A between B and the pole
    Relaxed<double> angleABP;     ///< degrees at star B between A and the pole
};

/// Monitor mode: the GUI thread writes the search positions, the capture thread the rest.
struct MonitorPositions {
    RelaxedPoint starASearch, starBSearch;   ///< where each frame's search starts
    RelaxedPoint starACurrent, starBCurrent; ///< the stars in the latest frame
    RelaxedPoint poleCurrent;                ///< the pole computed from them
    Relaxed<bool> poleValid;                 ///< false: no pole could be computed for the frame
};

/// The observer's refraction settings: the dialog writes, the capture thread reads the numbers.
struct RefractionSettings {
    Relaxed<float> latitude;  ///< degrees, used as the pole's altitude
    Relaxed<float> longitude; ///< degrees; not used in the computation
    Relaxed<float> P;         ///< air pressure; a tenth of it is used as kPa, whatever P_unit is
    Relaxed<float> T;         ///< degrees Celsius
    Relaxed<bool> enabledCorrect; ///< whether star positions are corrected
    QString P_unit;               ///< "kPa" or "hPa"; GUI thread only
};
