// SPDX-License-Identifier: MIT
// How do frames get from the camera to their consumer?
#pragma once

#include "camera/frameformat.h"
#include "core/relaxed.h"

#include <QThread>
#include <climits>
#include <opencv2/core.hpp>
#include <optional>

class FrameConsumer;
struct CameraSession;

/// Fetches frames while a camera is connected and hands them to the consumer. The thread that
/// opened the camera stops the live mode.
class CaptureThread : public QThread
{
public:
    /// @param shared, frameConsumer must outlive the thread
    CaptureThread(CameraSession &shared, FrameConsumer &frameConsumer, QObject *parent = nullptr);
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

    CameraSession &session;
    FrameConsumer &consumer;
    Relaxed<bool> stopRequested;
    cv::Mat rawFrame;                   ///< header over the latest complete frame
    FrameFormat fetched;                ///< format of the frame in the fetch buffer
    std::optional<FrameFormat> refused; ///< the last format that could not be shown
};
