// SPDX-License-Identifier: MIT
// How does a frame become the picture with marks, and the picture of the magnified star?
#pragma once

#include "camera/frameconsumer.h"
#include "camera/frames.h"

#include <QImage>
#include <memory>

struct Session;

/// Draws the marks into the frames, tracks the reference stars in monitor mode, and queues the
/// pictures. It never waits for the GUI: if a queue is full, the picture is dropped.
class PictureMaker : public FrameConsumer
{
public:
    /// @param shared must outlive this object
    explicit PictureMaker(Session &shared);

    bool handle(const cv::Mat &frame, const Relaxed<bool> &stopped) override;

private:
    friend class PictureMakerProbe; // looks at the matrices

    void followStars(const cv::Mat &frame, const Relaxed<bool> &stopped);

    Session &session;
    FrameMatrices matrices;
    std::unique_ptr<QImage> frameImage;     ///< the latest display picture
    std::unique_ptr<QImage> magnifierImage; ///< the latest picture of the magnified star
};
