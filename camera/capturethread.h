// SPDX-License-Identifier: MIT
// How do frames get from the camera into the two picture queues?
#pragma once

#include "camera/frameformat.h"
#include "camera/frames.h"
#include "core/relaxed.h"

#include <QImage>
#include <QThread>
#include <climits>
#include <memory>
#include <optional>

struct Session;

/// Fetches frames while a camera is connected, draws the marks into them, tracks the reference
/// stars in monitor mode, and queues the pictures. It never waits for the GUI: if a queue is full,
/// the picture is dropped. The GUI thread stops the live mode.
class CaptureThread : public QThread
{
public:
    /// @param shared must outlive the thread
    explicit CaptureThread(Session &shared, QObject *parent = nullptr);
    /// Asks the loop to stop and waits for its current pass to end.
    ~CaptureThread() override;

    /// Starts the loop, after an earlier one has finished its last pass.
    void startCapture();
    /// Asks the loop to stop and returns at once.
    void stopCapture();
    /// Whether the loop has ended, or ends within the timeout; false if the camera library blocks
    /// it.
    bool waitForEnd(unsigned long milliseconds = ULONG_MAX);

protected:
    void run() override;

private:
    friend class CaptureThreadProbe; // runs single passes for the measurements

    enum class Fetch { NewFrame, NoFrameYet, Ended };

    bool beginLive();
    Fetch fetchFrame();
    bool handleFrame();
    bool acceptFrame();
    void refuseFrame();
    void followStars();

    Session &session;
    Relaxed<bool> stopRequested;
    FrameMatrices matrices;
    cv::Mat rawFrame;                       ///< header over the latest complete frame
    FrameFormat fetched;                    ///< format of the frame in the fetch buffer
    std::optional<FrameFormat> refused;     ///< the last format that could not be shown
    std::unique_ptr<QImage> frameImage;     ///< the latest display picture
    std::unique_ptr<QImage> magnifierImage; ///< the latest picture of the magnified star
};
