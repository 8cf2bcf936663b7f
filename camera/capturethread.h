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

/// Fetches frames while a camera is connected, draws the marks into them, follows the reference
/// stars in monitor mode, and queues the pictures. It never waits for the GUI to show one: where a
/// queue is full the picture is dropped. Stopping the live mode is the GUI's business.
class CaptureThread : public QThread
{
public:
    /// @param shared outlives the thread
    explicit CaptureThread(Session &shared, QObject *parent = nullptr);
    /// Asks the loop to stop and waits for its current pass to end.
    ~CaptureThread() override;

    /// Starts the loop; where an earlier one is still in its last pass, after that has ended.
    void startCapture();
    /// Asks the loop to stop and returns at once.
    void stopCapture();
    /// Whether the loop has ended, or ends within that time; not if the camera library holds it.
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
    cv::Mat rawFrame;                       ///< header over the latest whole frame
    FrameFormat fetched;                    ///< of the frame in the fetch buffer
    std::optional<FrameFormat> refused;     ///< the last one that no picture could be made of
    std::unique_ptr<QImage> frameImage;     ///< the latest display picture
    std::unique_ptr<QImage> magnifierImage; ///< the latest picture of the magnified star
};
