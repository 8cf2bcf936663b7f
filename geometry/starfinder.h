// SPDX-License-Identifier: MIT
// Which stars does a whole frame show?
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
    QPointF place; ///< frame pixels, to about half a pixel
    int peak;      ///< counts above black
};

/// All stars that clearly stand out from their surroundings; bright pixels alone (hot ones) do not
/// count. A frame has 8 bits and one channel or three; any other, and one smaller than 64 pixels on
/// a side, has none. Writes no log, keeps no state and never writes to the frame.
std::vector<FieldStar> findStars(const cv::Mat &frame);

/// Whether one of `stars` lies within `reach` pixels of `place`.
bool isStarNear(const std::vector<FieldStar> &stars, QPointF place, double reach);

/// The place of the star with the highest peak in `area`; nothing if none is there.
std::optional<QPointF> brightestIn(const std::vector<FieldStar> &stars, const QRectF &area);
