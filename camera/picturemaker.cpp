// SPDX-License-Identifier: MIT
// Converts a frame, tracks the stars, draws the marks and queues the pictures.
#include "camera/picturemaker.h"

#include "camera/frameformat.h"
#include "camera/monitor.h"
#include "camera/overlay.h"
#include "camera/session.h"

#include <opencv2/imgproc.hpp>

PictureMaker::PictureMaker(Session &shared)
    : session(shared),
      frameImage(std::make_unique<QImage>(int(frameWidthDefault), int(frameHeightDefault),
                                          QImage::Format_RGB888)),
      magnifierImage(std::make_unique<QImage>(cropSide, cropSide, QImage::Format_RGB888))
{
}

void PictureMaker::followStars(const cv::Mat &frame, const Relaxed<bool> &stopped)
{
    const ReferenceStars stars = trackReferenceStars(frame, session.monitorPositions);
    cropAroundStarB(frame, stars.a, stars.b, session.overlayFlags.monoStyle, matrices);
    magnifierImage = MatToQImage(&matrices.magnifierCrop);
    // Before the picture is queued: the window updates its read-outs when it arrives.
    updatePole(stars, session.refraction, session.alignmentPoints, session.monitorPositions);
    if (magnifierImage)
        session.magnifierQueue.append(*magnifierImage, stopped);
}

bool PictureMaker::handle(const cv::Mat &frame, const Relaxed<bool> &stopped)
{
    if (frame.channels() == 3)
        frame.copyTo(matrices.colourFrame);
    else
        cv::cvtColor(frame, matrices.colourFrame, cv::COLOR_GRAY2BGR);
    if (session.overlayFlags.monitorTracking)
        followStars(frame, stopped);
    frameImage = MatToQImage(&matrices.colourFrame);
    if (!frameImage)
        return false;
    paintOverlay(*frameImage, currentMarks(session.overlayFlags, session.alignmentPoints,
                                           session.monitorPositions));
    session.frameQueue.append(*frameImage, stopped);
    return true;
}
