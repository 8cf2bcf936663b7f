// SPDX-License-Identifier: MIT
// Paints frames and shows them to the guide.
#include "bench/assistant/mountonsky.h"

#include <ctime>
#include <opencv2/imgproc.hpp>

namespace
{
constexpr double gain = 50.0;
constexpr double readOut = 0.0133; // seconds

double cpuSeconds()
{
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + 1e-9 * double(now.tv_nsec);
}

/// Along x alone.
void drawOut(cv::Mat &frame, double sigma)
{
    const cv::Mat along = cv::getGaussianKernel(31, sigma).t();
    const cv::Mat across = cv::Mat::ones(1, 1, CV_64F);
    cv::sepFilter2D(frame, frame, -1, along, across);
}
} // namespace

PaintedMount::PaintedMount(const virtualsky::SkyState &start, const assistant::Settings &settings)
    : state(start), engine(settings)
{
    if (state.tracking && !state.trackingSince)
        state.trackingSince = state.date;
}

double PaintedMount::utc() const
{
    return *state.date + elapsed;
}

virtualsky::Truth PaintedMount::truth() const
{
    return virtualsky::truth(state, utc());
}

assistant::Status PaintedMount::next()
{
    if (const auto wanted = engine.wantedExposure())
        exposure = *wanted;
    elapsed += exposure * 1e-6 + readOut;
    const int type = state.channels == 3 ? CV_8UC3 : CV_8UC1;
    frame.create(virtualsky::sensorHeight, virtualsky::sensorWidth, type);
    sensor.render(state, scene.starsAt(state, utc()), {}, {exposure * 1e-6, gain, ++number},
                  frame.data);
    if (trail > 0.0)
        drawOut(frame, trail);
    if (state.picture == virtualsky::Picture::Black)
        frame.setTo(cv::Scalar::all(0));
    if (state.picture == virtualsky::Picture::Saturated)
        frame.setTo(cv::Scalar::all(255));
    const double before = cpuSeconds();
    assistant::Status status = engine.observe({frame, utc() + clockError, elapsed, exposure,
                                               clockSynchronised && !clockBehind, clockBehind});
    latency = cpuSeconds() - before;
    return status;
}

assistant::Status PaintedMount::silence()
{
    elapsed += 1.0;
    return engine.observe({{}, utc() + clockError, elapsed, exposure, true});
}
