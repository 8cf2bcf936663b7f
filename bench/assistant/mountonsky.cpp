// SPDX-License-Identifier: MIT
// Paints frames and shows them to the guide.
#include "bench/assistant/mountonsky.h"

#include <ctime>

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
