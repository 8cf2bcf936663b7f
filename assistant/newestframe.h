// SPDX-License-Identifier: MIT
// Which frame is looked at next? The newest one: the capture loop never waits for the guide.
#pragma once

#include "assistant/clocks.h"
#include "camera/frameconsumer.h"
#include "core/relaxed.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <opencv2/core.hpp>
#include <optional>

namespace assistant
{
/// One place for one frame, with its times: the capture thread fills it, the guide's thread takes
/// from it. A frame that was not taken gives way to the next.
class NewestFrame : public FrameConsumer
{
public:
    struct Taken {
        cv::Mat frame;           ///< pixels of its own
        double utcSeconds = 0.0; ///< middle of the exposure
        double steadySeconds = 0.0;
        double exposureMicroseconds = 0.0;
    };

    explicit NewestFrame(const Clocks &given) : clocks(given) {}

    bool handle(const cv::Mat &frame, const Relaxed<bool> &stopped) override;
    /// The frame that came since the last call; nothing if none comes in time or `wake` is called.
    std::optional<Taken> take(std::chrono::milliseconds patience);
    /// Ends a wait of `take`.
    void wake();
    /// Forgets a frame that waits.
    void clear();

    /// Of the frames that come, microseconds; set by the camera's thread.
    Relaxed<double> exposure;
    /// When the last frame came, steady seconds; 0: none yet.
    Relaxed<double> lastCame;

private:
    const Clocks &clocks;
    std::mutex mutex; // guards what follows
    std::condition_variable came;
    std::optional<Taken> waiting;
    bool woken = false;
};
} // namespace assistant
