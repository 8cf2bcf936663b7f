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
/// channels); a star that is not found stands at its search position.
ReferenceStars trackReferenceStars(const cv::Mat &frame, const MonitorPositions &search);

/// Computes the pole from the stars that were found, after the refraction at the pole was
/// subtracted from their y where that is switched on; writes stars and pole into `found`.
void updatePole(ReferenceStars stars, const RefractionSettings &refraction,
                const AlignmentPoints &points, MonitorPositions &found);

/// Cuts the five-fold enlarged surroundings of star B, both stars marked, into
/// matrices.magnifierCrop. Only the part of `frame` that the crop shows is enlarged; the crop is
/// the same to the last bit as one cut from the whole frame's enlargement, and black beyond its
/// edge. @param starA, starB frame pixels
void cropAroundStarB(const cv::Mat &frame, QPointF starA, QPointF starB, bool monoStyle,
                     FrameMatrices &matrices);
