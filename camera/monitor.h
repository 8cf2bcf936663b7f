// SPDX-License-Identifier: MIT
// Where are the two reference stars and the pole in this frame, and how does the pole star look
// enlarged?
#pragma once

#include "camera/frames.h"
#include "core/sharedstate.h"

#include <QPointF>

/// The star near `expected` (frame pixels) in `frame`, or `expected` itself if none is found.
QPointF starNear(const cv::Mat &frame, QPointF expected);

/// Frame pixels.
struct ReferenceStars {
    QPointF a, b;
};

/// Finds both reference stars near their search positions in `frame` (8 bits, one or three
/// channels); a star that is not found is reported at its search position.
ReferenceStars trackReferenceStars(const cv::Mat &frame, const MonitorPositions &search);

/// Computes the pole from the stars and writes both into `found`. If refraction correction is
/// enabled, the refraction at the pole is first subtracted from the stars' y.
void updatePole(ReferenceStars stars, const RefractionSettings &refraction,
                const AlignmentPoints &points, MonitorPositions &found);

/// Writes the surroundings of star B, enlarged five times and with both stars marked, to
/// matrices.magnifierCrop. Only the part of `frame` that the crop shows is enlarged. The crop is
/// bit-identical to one cut from the enlarged full frame, and black beyond the frame's edge.
/// @param starA, starB frame pixels
void cropAroundStarB(const cv::Mat &frame, QPointF starA, QPointF starB, bool monoStyle,
                     FrameMatrices &matrices);
