// SPDX-License-Identifier: MIT
// How long does the capture thread need per frame, and what does monitor mode add?
#include "bench/plainforms.h"
#include "bench/skyframe.h"
#include "camera/capturethread.h"
#include "camera/picturemaker.h"
#include "camera/session.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <opencv2/imgproc.hpp>

/// Reaches the picture maker's own work.
class PictureMakerProbe
{
public:
    static void followStars(PictureMaker &maker, const cv::Mat &frame)
    {
        maker.followStars(frame, false);
    }
    static const FrameMatrices &matrices(const PictureMaker &maker) { return maker.matrices; }
};

/// Runs the capture thread's work on the calling thread.
class CaptureThreadProbe
{
public:
    explicit CaptureThreadProbe(Session &session) : maker(session), thread(session, maker) {}
    /// Processes one frame, with a grey frame of `size` in the fetch buffer.
    void handleFrame(cv::Size size)
    {
        thread.fetched = {std::uint32_t(size.width), std::uint32_t(size.height), 8, 1};
        thread.handleFrame();
    }
    void followStars() { PictureMakerProbe::followStars(maker, thread.rawFrame); }
    const cv::Mat &magnifierCrop() const
    {
        return PictureMakerProbe::matrices(maker).magnifierCrop;
    }

private:
    PictureMaker maker;
    CaptureThread thread;
};

namespace
{
QPointF found(const std::optional<virtualsky::Point> &place)
{
    return {place->x, place->y};
}

/// Sets the state after Connect, with the sky in both frame buffers.
void prepare(Session &session, bool marks, bool monitoring)
{
    const SkyFrame &frame = skyFrame();
    setCameraDefaults(session.camera);
    for (int buffer = 0; buffer < 2; ++buffer) {
        std::copy_n(frame.grey.data, frame.grey.total(), session.latestFrame.fetchBuffer());
        session.latestFrame.acceptFetched(
            {std::uint32_t(frame.grey.cols), std::uint32_t(frame.grey.rows), 8, 1});
    }
    session.alignmentPoints.savedAxisCenter = found(frame.truth.axis);
    session.alignmentPoints.savedAxisRadius = 80;
    session.alignmentPoints.polarisTarget = found(frame.truth.starB);
    session.alignmentPoints.angleBAP = 40.0;
    session.alignmentPoints.angleABP = 60.0;
    session.monitorPositions.starASearch = found(frame.truth.starA) + QPointF(4, -3);
    session.monitorPositions.starBSearch = found(frame.truth.starB) + QPointF(-5, 2);
    for (Relaxed<bool> *const flag :
         {&session.overlayFlags.showAxisMark, &session.overlayFlags.showStarCircle,
          &session.overlayFlags.showRotatingArc})
        *flag = marks;
    session.overlayFlags.monitorTracking = monitoring;
}

void capturePass(benchmark::State &state, bool marks)
{
    Session session;
    prepare(session, marks, false);
    CaptureThreadProbe capture(session);
    for (auto _ : state) {
        capture.handleFrame(skyFrame().grey.size());
        session.frameQueue.clear(); // the GUI takes each picture
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
    Session session;
    prepare(session, false, true);
    CaptureThreadProbe capture(session);
    capture.handleFrame(skyFrame().grey.size());
    for (auto _ : state) {
        session.magnifierQueue.clear();
        capture.followStars();
    }
}

/// Also compares the results of both implementations.
void monitoringPlain(benchmark::State &state)
{
    Session session;
    prepare(session, false, true);
    CaptureThreadProbe capture(session);
    capture.handleFrame(skyFrame().grey.size());
    const cv::Mat &grey = skyFrame().grey;
    QPointF starA, starB;
    PlainMagnifier magnifier;
    cv::Mat crop;
    for (auto _ : state) {
        starA = plainStar(grey, session.monitorPositions.starASearch);
        starB = plainStar(grey, session.monitorPositions.starBSearch);
        crop = magnifier.crop(grey, starA, starB);
        benchmark::DoNotOptimize(MatToQImage(&crop));
    }
    const QPointF foundA = session.monitorPositions.starACurrent,
                  foundB = session.monitorPositions.starBCurrent;
    if (starA.x() != foundA.x() || starA.y() != foundA.y() || starB.x() != foundB.x() ||
        starB.y() != foundB.y() || cv::norm(crop, capture.magnifierCrop(), cv::NORM_INF) != 0.0)
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
