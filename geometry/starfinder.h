// SPDX-License-Identifier: MIT
// Which stars are visible in a frame?
#pragma once

#include <QPointF>
#include <QRectF>
#include <optional>
#include <vector>

namespace cv
{
class Mat;
}

struct FieldStar {
    QPointF place; ///< frame pixels, accurate to about half a pixel
    int peak;      ///< counts above black
};

/// All stars that clearly stand out from their surroundings; single bright (hot) pixels do not
/// count. Empty for a frame that is not 8-bit with one or three channels, or is smaller than 64
/// pixels on a side. Logs nothing, keeps no state and never writes to the frame.
std::vector<FieldStar> findStars(const cv::Mat &frame);

/// Whether one of `stars` is within `reach` pixels of `place`.
bool isStarNear(const std::vector<FieldStar> &stars, QPointF place, double reach);

/// The position of the star with the highest peak in `area`; nullopt if there is none.
std::optional<QPointF> brightestIn(const std::vector<FieldStar> &stars, const QRectF &area);
