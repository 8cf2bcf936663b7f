// SPDX-License-Identifier: MIT
// What does the capture thread need for one frame, and what does monitor mode add?
#include "bench/plainforms.h"
#include "bench/skyframe.h"
#include "camera/camerastate.h"
#include "camera/capturethread.h"
#include "camera/frames.h"
#include "camera/sharedstate.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <opencv2/imgproc.hpp>

/// Runs the capture thread's work without its thread.
class CaptureThreadProbe
{
public:
    /// With a grey frame of `size` in the fetch buffer.
    void handleFrame(cv::Size size)
    {
        thread.fetched = {std::uint32_t(size.width), std::uint32_t(size.height), 8, 1};
        thread.handleFrame();
    }
    void followStars() { thread.followStars(); }

private:
    CaptureThread thread;
};

namespace
{
QPointF found(const std::optional<virtualsky::Point> &place)
{
    return {place->x, place->y};
}

/// The state as after Connect, with the sky in both frame buffers.
void prepare(bool marks, bool monitoring)
{
    const SkyFrame &frame = skyFrame();
    allocateFrameMatrices();
    setCameraDefaults(cameraState);
    for (auto *const buffer : {&cameraState.frameBuffer, &cameraState.latestBuffer})
        std::copy_n(frame.grey.data, frame.grey.total(), (*buffer)->data());
    alignmentPoints.savedAxisCenter = found(frame.truth.axis);
    alignmentPoints.savedAxisRadius = 80;
    alignmentPoints.polarisTarget = found(frame.truth.starB);
    alignmentPoints.angleBAP = 40.0;
    alignmentPoints.angleABP = 60.0;
    monitorPositions.starASearch = found(frame.truth.starA) + QPointF(4, -3);
    monitorPositions.starBSearch = found(frame.truth.starB) + QPointF(-5, 2);
    for (Relaxed<bool> *const flag :
         {&overlayFlags.showAxisMark, &overlayFlags.showStarCircle, &overlayFlags.showRotatingArc})
        *flag = marks;
    overlayFlags.monitorTracking = monitoring;
    frameQueue.clear();
    magnifierQueue.clear();
}

void capturePass(benchmark::State &state, bool marks)
{
    prepare(marks, false);
    CaptureThreadProbe capture;
    for (auto _ : state) {
        capture.handleFrame(skyFrame().grey.size());
        frameQueue.clear(); // as the GUI takes each picture
    }
}

void conversions(benchmark::State &state, bool newMemory)
{
    const cv::Mat &grey = skyFrame().grey;
    cv::Mat colour, channels;
    for (auto _ : state) {
        if (newMemory)
            channels.release();
        cv::cvtColor(grey, colour, cv::COLOR_GRAY2BGR);
        cv::cvtColor(colour, channels, cv::COLOR_BGR2RGB);
        benchmark::ClobberMemory();
    }
}

void monitoringAdded(benchmark::State &state)
{
    prepare(false, true);
    CaptureThreadProbe capture;
    capture.handleFrame(skyFrame().grey.size());
    for (auto _ : state) {
        magnifierQueue.clear();
        capture.followStars();
    }
}

/// Also holds the results of both forms against each other.
void monitoringPlain(benchmark::State &state)
{
    prepare(false, true);
    CaptureThreadProbe capture;
    capture.handleFrame(skyFrame().grey.size());
    const cv::Mat &grey = skyFrame().grey;
    QPointF starA, starB;
    PlainMagnifier magnifier;
    cv::Mat crop;
    for (auto _ : state) {
        starA = plainStar(grey, monitorPositions.starASearch);
        starB = plainStar(grey, monitorPositions.starBSearch);
        crop = magnifier.crop(grey, starA, starB);
        benchmark::DoNotOptimize(MatToQImage(&crop));
    }
    const QPointF foundA = monitorPositions.starACurrent, foundB = monitorPositions.starBCurrent;
    if (starA.x() != foundA.x() || starA.y() != foundA.y() || starB.x() != foundB.x() ||
        starB.y() != foundB.y() || cv::norm(crop, frameMatrices.magnifierCrop, cv::NORM_INF) != 0.0)
        state.SkipWithError("the plain form gives another result");
}
} // namespace

BENCHMARK_CAPTURE(capturePass, pass, false)->Name("capture/pass")->MeasureProcessCPUTime();
BENCHMARK_CAPTURE(capturePass, marks, true)
    ->Name("capture/pass with marks")
    ->MeasureProcessCPUTime();
BENCHMARK_CAPTURE(conversions, warm, false)->Name("capture/conversions")->MeasureProcessCPUTime();
BENCHMARK_CAPTURE(conversions, fresh, true)
    ->Name("capture/conversions into new memory")
    ->MeasureProcessCPUTime();
BENCHMARK(monitoringAdded)->Name("monitor/added")->MeasureProcessCPUTime();
BENCHMARK(monitoringPlain)->Name("monitor/plain")->MeasureProcessCPUTime();
