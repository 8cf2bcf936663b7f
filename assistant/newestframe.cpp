// SPDX-License-Identifier: MIT
// Hands frames from thread to thread.
#include "assistant/newestframe.h"

namespace assistant
{
bool NewestFrame::handle(const cv::Mat &frame, const Relaxed<bool> &stopped)
{
    const double exposed = exposure;
    const double half = 0.5e-6 * exposed;
    const double utc = clocks.utc() - half;
    const double steady = clocks.steady();
    lastCame = steady;
    if (stopped)
        return true;
    Taken next = {frame.clone(), utc, steady - half, exposed};
    {
        const std::lock_guard<std::mutex> lock(mutex);
        waiting = std::move(next);
    }
    came.notify_one();
    return true;
}

std::optional<NewestFrame::Taken> NewestFrame::take(std::chrono::milliseconds patience)
{
    std::unique_lock<std::mutex> lock(mutex);
    came.wait_for(lock, patience, [this] { return woken || waiting.has_value(); });
    woken = false;
    std::optional<Taken> taken = std::move(waiting);
    waiting.reset();
    return taken;
}

void NewestFrame::wake()
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        woken = true;
    }
    came.notify_one();
}

void NewestFrame::clear()
{
    const std::lock_guard<std::mutex> lock(mutex);
    waiting.reset();
}
} // namespace assistant
