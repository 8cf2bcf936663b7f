// SPDX-License-Identifier: MIT
// Which marks does the capture side draw, and what does it follow? The values the two threads
// share.
#pragma once

#include "core/relaxed.h"

#include <QString>

/// Written by the GUI thread (wizard, settings, style), read by the capture thread for every frame,
/// without a lock: a frame drawn during a change may show the old or the new mark.
struct OverlayFlags {
    Relaxed<bool> showAxisMark;     ///< a small mark at savedAxisCenter
    Relaxed<bool> showStarCircle;   ///< the circle through the three star picks
    Relaxed<bool> showRotatingArc;  ///< the broken ring round polarisTarget
    Relaxed<bool> monitorTracking;  ///< the whole monitor branch
    Relaxed<bool> showPoleRect;     ///< the pole target of monitor mode
    Relaxed<bool> showMonitorCross; ///< the marks of reference stars A and B
    Relaxed<bool> monoStyle;        ///< pale marks instead of coloured ones
    Relaxed<double> arcAngle;       ///< degrees, anticlockwise as QPainter counts them
};

/// What the marks and the pole are computed from; frame pixels. Written by the GUI thread.
struct AlignmentPoints {
    RelaxedPoint savedAxisCenter; ///< the RA axis of the last alignment; 0, 0 = none is saved
    Relaxed<int> savedAxisRadius; ///< of the circle through the three picks
    RelaxedPoint polarisTarget;   ///< where the pole star must be placed
    Relaxed<double> angleBAP;     ///< degrees at star A between B and the pole
    Relaxed<double> angleABP;     ///< degrees at star B between A and the pole
};

/// Monitor mode: the GUI thread writes the search positions, the capture thread the rest.
struct MonitorPositions {
    RelaxedPoint starASearch, starBSearch;   ///< where each frame's search starts
    RelaxedPoint starACurrent, starBCurrent; ///< where the latest frame has the stars
    RelaxedPoint poleCurrent;                ///< the pole computed from them
    Relaxed<bool> poleValid;                 ///< false: no pole could be computed for the frame
};

/// The observer's refraction settings: the dialog writes, the capture thread reads the numbers.
struct RefractionSettings {
    Relaxed<float> latitude;  ///< degrees, taken for the pole's altitude
    Relaxed<float> longitude; ///< degrees; takes no part in the computation
    Relaxed<float> P; ///< air pressure; a tenth of it is taken for kPa, whatever P_unit says
    Relaxed<float> T; ///< degrees Celsius
    Relaxed<bool> enabledCorrect; ///< whether star positions are corrected
    QString P_unit;               ///< "kPa" or "hPa"; the GUI thread's alone
};
