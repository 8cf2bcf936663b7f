// SPDX-License-Identifier: MIT
// Tracks the reference stars, computes the pole and magnifies the pole star.
#include "camera/monitor.h"

#include "core/saturate.h"
#include "core/sharedstate.h"
#include "geometry/polecomputation.h"
#include "geometry/refraction.h"
#include "geometry/stardetection.h"

#include <algorithm>
#include <opencv2/imgproc.hpp>

namespace
{
/// Distances from the star at which its ticks begin and end, pixels of the enlarged picture.
constexpr int tickInner = 6;
constexpr int tickOuter = 11;

/// Enlarged coordinates, truncated to whole pixels and clamped so that adding offsets cannot
/// overflow int.
cv::Point enlargedPoint(QPointF star)
{
    constexpr int limit = 1 << 24;
    return {std::clamp(saturatingInt(enlargement * star.x()), -limit, limit),
            std::clamp(saturatingInt(enlargement * star.y()), -limit, limit)};
}

void drawTicks(cv::Mat &picture, cv::Point centre, const cv::Scalar &colour)
{
    for (const cv::Point &direction :
         {cv::Point(-1, 0), cv::Point(1, 0), cv::Point(0, -1), cv::Point(0, 1)})
        cv::line(picture, centre + direction * tickInner, centre + direction * tickOuter, colour, 1,
                 cv::LINE_8);
}

void markStarA(cv::Mat &picture, cv::Point centre, bool monoStyle)
{
    const cv::Scalar colour = monoStyle ? cv::Scalar(255, 248, 248) : cv::Scalar(255, 0, 0);
    cv::circle(picture, centre, 1, colour, cv::FILLED, cv::LINE_AA);
    cv::circle(picture, centre, 8, colour, 1, cv::LINE_AA);
    drawTicks(picture, centre, colour);
}

void markStarB(cv::Mat &picture, cv::Point centre)
{
    const cv::Scalar green(0, 255, 0);
    cv::circle(picture, centre, 2, green, cv::FILLED, cv::LINE_AA);
    drawTicks(picture, centre, green);
}

/// The frame pixels from which `area` (enlarged pixels) is interpolated.
cv::Rect sourceOf(const cv::Rect &area, cv::Size frame)
{
    const int left = std::max(area.x / enlargement - 2, 0);
    const int top = std::max(area.y / enlargement - 2, 0);
    const int right = std::min((area.x + area.width) / enlargement + 3, frame.width);
    const int bottom = std::min((area.y + area.height) / enlargement + 3, frame.height);
    return {left, top, right - left, bottom - top};
}

cv::Rect enlarged(const cv::Rect &r)
{
    return {r.x * enlargement, r.y * enlargement, r.width * enlargement, r.height * enlargement};
}

/// Enlarges `source` (frame pixels) into its place in the two large matrices.
void enlarge(const cv::Mat &frame, const cv::Rect &source, FrameMatrices &matrices)
{
    const cv::Size whole(frame.cols * enlargement, frame.rows * enlargement);
    matrices.enlargedGrey.create(whole, CV_8UC1);
    matrices.enlargedColour.create(whole, CV_8UC3);
    cv::Mat grey = frame(source);
    if (frame.channels() == 3)
        cv::cvtColor(frame(source), grey, cv::COLOR_BGR2GRAY);
    const cv::Rect place = enlarged(source);
    cv::Mat largeGrey = matrices.enlargedGrey(place);
    cv::Mat largeColour = matrices.enlargedColour(place);
    cv::resize(grey, largeGrey, place.size(), 0, 0, cv::INTER_LINEAR);
    cv::cvtColor(largeGrey, largeColour, cv::COLOR_GRAY2BGR);
}
} // namespace

QPointF starNear(const cv::Mat &frame, QPointF expected)
{
    double x = 0, y = 0;
    if (GetPreciseStarPos(&frame, expected.x(), expected.y(), x, y) != 0)
        return expected;
    return {x, y};
}

ReferenceStars trackReferenceStars(const cv::Mat &frame, const MonitorPositions &search)
{
    return {starNear(frame, search.starASearch), starNear(frame, search.starBSearch)};
}

void updatePole(ReferenceStars stars, const RefractionSettings &refraction,
                const AlignmentPoints &points, MonitorPositions &found)
{
    auto &[a, b] = stars;
    if (refraction.enabledCorrect) {
        // A tenth of the entered pressure is used, whatever its unit.
        const double pressure = double(refraction.P) / 10.0;
        const double latitude = double(refraction.latitude);
        const double temperature = double(refraction.T);
        for (QPointF *star : {&a, &b})
            CorrectRefraction(star->y(), latitude, pressure, temperature, star->ry());
    }
    found.starACurrent = a;
    found.starBCurrent = b;
    const QPointF axis = points.savedAxisCenter;
    double poleX = 0, poleY = 0;
    const int status = CalcPoleCOOR(a.x(), a.y(), points.angleBAP, b.x(), b.y(), points.angleABP,
                                    axis.x(), axis.y(), poleX, poleY);
    if (status == 0)
        found.poleCurrent = QPointF(poleX, poleY);
    found.poleValid = status == 0;
}

void cropAroundStarB(const cv::Mat &frame, QPointF starA, QPointF starB, bool monoStyle,
                     FrameMatrices &matrices)
{
    const cv::Point centreA = enlargedPoint(starA);
    const cv::Point centreB = enlargedPoint(starB);
    const cv::Rect crop(centreB.x - cropSide / 2, centreB.y - cropSide / 2, cropSide, cropSide);
    const cv::Rect inside =
        crop & cv::Rect(0, 0, frame.cols * enlargement, frame.rows * enlargement);
    matrices.magnifierCrop.create(cropSide, cropSide, CV_8UC3);
    if (inside.size() != crop.size())
        matrices.magnifierCrop.setTo(cv::Scalar::all(0));
    if (inside.empty())
        return;
    enlarge(frame, sourceOf(inside, frame.size()), matrices);
    // Drawn at their positions in the full picture, so that clipping does not change the marks.
    markStarA(matrices.enlargedColour, centreA, monoStyle);
    markStarB(matrices.enlargedColour, centreB);
    matrices.enlargedColour(inside).copyTo(matrices.magnifierCrop(inside - crop.tl()));
}
