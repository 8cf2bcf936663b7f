// SPDX-License-Identifier: MIT
// The thread between a camera and the operations.
#include "framesources/threadedsource.h"

#include <atomic>
#include <chrono>
#include <cstring>
#include <exception>
#include <mutex>
#include <thread>

#include "framesources/lensfinder.h"
#include "framesources/preparation.h"

namespace framesources
{
namespace
{
using Clock = std::chrono::steady_clock;
constexpr auto fetchTimeout = std::chrono::seconds(2); // without a fetch, no frames are wanted
constexpr std::size_t longestSerial = 26;

void copyArea(const cv::Mat &frame, const virtualsky::Area &area, std::uint8_t *out)
{
    for (int y = 0; y < area.height; ++y)
        std::memcpy(out + std::size_t(y) * std::size_t(area.width), frame.ptr(area.y + y) + area.x,
                    std::size_t(area.width));
}
} // namespace

/// Shared by the operations' threads and the camera's, which may outlive the source.
struct ThreadedSource::Shared {
    std::mutex mutex; // guards everything up to the atomics
    Wish wish;
    Clock::time_point asked; // for the latest frame; before the first, long ago
    cv::Mat latest;          // empty = none that was not fetched
    std::atomic<bool> stop{false};
    std::atomic<bool> present{true};

    Wish currentWish()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        wish.wanted = Clock::now() - asked < fetchTimeout;
        return wish;
    }

    void deliver(cv::Mat frame)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        std::swap(latest, frame); // the old one is freed after the lock
    }

    void run(const SourceSettings &settings, const MakeCamera &makeCamera, const Report &report)
    {
        const std::unique_ptr<NativeCamera> camera = makeCamera();
        LensFinder finder(settings, report);
        while (!stop) {
            try {
                Wish now = currentWish();
                now.scale = finder.sensorScale();
                now.whole = finder.isSearching();
                const std::optional<NativeFrame> frame = camera->next(now);
                present.store(camera->isPresent(), std::memory_order_relaxed);
                if (frame && !frame->pixels.empty())
                    deliver(prepared(*frame, finder.lensFor(*frame)));
            } catch (const std::exception &error) {
                report(std::string("a frame is left out: ") + error.what());
                std::this_thread::sleep_for(std::chrono::milliseconds(100));
            }
        }
    }
};

std::string serialOf(const std::string &name)
{
    std::string serial = name.substr(0, longestSerial);
    for (char &c : serial) {
        const bool letter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        if (!letter && !(c >= '0' && c <= '9'))
            c = '_';
    }
    return serial.empty() ? "camera" : serial;
}

ThreadedSource::ThreadedSource(const SourceSettings &settings, MakeCamera makeCamera, Report report)
    : serial(serialOf(settings.address.source == virtualsky::Source::Files
                          ? "files"
                          : settings.address.device)),
      shared(std::make_shared<Shared>())
{
    shared->asked = Clock::now() - 2 * fetchTimeout;
    std::thread([state = shared, settings, makeCamera = std::move(makeCamera),
                 report = std::move(report)] {
        try {
            state->run(settings, makeCamera, report);
        } catch (const std::exception &error) {
            report(std::string("the camera cannot be used: ") + error.what());
            state->present = false;
        }
    }).detach();
}

ThreadedSource::~ThreadedSource()
{
    shared->stop = true;
}

virtualsky::Behaviour ThreadedSource::behaviour()
{
    virtualsky::Behaviour behaviour;
    behaviour.cameras = shared->present.load(std::memory_order_relaxed) ? 1 : 0;
    behaviour.unthrottled = true;
    return behaviour;
}

std::string ThreadedSource::serialNumber(unsigned)
{
    return serial;
}

void ThreadedSource::pause()
{
    const std::lock_guard<std::mutex> lock(shared->mutex);
    shared->asked = Clock::now() - 2 * fetchTimeout;
    shared->latest.release();
}

unsigned ThreadedSource::frame(const virtualsky::FrameRequest &request, std::uint8_t *out)
{
    cv::Mat frame;
    {
        const std::lock_guard<std::mutex> lock(shared->mutex);
        shared->wish.exposureSeconds = request.exposure.seconds;
        shared->wish.gain = request.exposure.gain;
        shared->asked = Clock::now();
        std::swap(frame, shared->latest);
    }
    if (frame.empty())
        return 0;
    copyArea(frame, request.area, out);
    return 1;
}
} // namespace framesources
