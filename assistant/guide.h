// SPDX-License-Identifier: MIT
// How do the frames of a session become stages, advice and figures?
#pragma once

#include "assistant/autoexposure.h"
#include "assistant/axistracker.h"
#include "assistant/beginning.h"
#include "assistant/clocks.h"
#include "assistant/settings.h"
#include "assistant/slipwatch.h"
#include "assistant/status.h"
#include "assistant/steadyfigures.h"
#include "recognition/follower.h"

#include <opencv2/core.hpp>
#include <optional>

namespace assistant
{
/// What the guide is fed: one frame, or the news that there is none.
struct Observation {
    cv::Mat frame;              ///< 8 or 16 bit, 1 or 3 channels; empty: no frame came
    double utcSeconds = 0.0;    ///< middle of the exposure by the computer's clock
    double steadySeconds = 0.0; ///< the same by a clock that nobody sets
    double exposureMicroseconds = 0.0;
    bool clockSynchronised = true; ///< the computer's clock, by `isClockSynchronised`
    /// By `isBehind`. Then there are no figures and no pole: without the date, nobody knows where
    /// among the stars the pole is, nor which way is up.
    bool clockBehind = false;
};

/// The three stages for one camera. Not for two threads at a time; no thread, no clock and no file
/// of its own, so the same frames give the same answers.
class Guide
{
public:
    explicit Guide(const Settings &settings);

    /// With another site or air the sky is recognised again; an axis that is known is kept, one
    /// that is being measured is begun again.
    void setSettings(const Settings &settings);
    /// From the first stage on.
    void startAgain();

    Status observe(const Observation &observation);

    void setAutomaticExposure(bool on) { exposure.setEnabled(on); }
    /// Microseconds for the next frames; nothing while the exposure is to stay as it is.
    std::optional<double> wantedExposure() const { return exposure.wanted(); }

private:
    void silence(const Observation &observation, Status &status);
    void forgetDirections();
    void noteClock(const Observation &observation);
    void recognise(const Observation &observation, Status &status);
    void searchForMore(const Observation &observation, recognition::Recognition &found);
    void useObserver(recognition::Hemisphere hemisphere);
    void advance(const Observation &observation, Status &status);
    void searchSky(Status &status);
    void measureAxis(const Observation &observation, Status &status);
    bool isSharp(const cv::Mat &frame) const;
    void turnBolts(const Observation &observation, Status &status);
    void measureAgain(AdviceCode why, double steadySeconds);
    void fillAxis(Status &status) const;
    void fillBeginning(Status &status) const;
    void advise(const Observation &observation, Status &status) const;
    void adviseStage(const Observation &observation, Status &status) const;
    void adviseEvents(double steadySeconds, Status &status) const;
    void adviseHints(const Observation &observation, Status &status) const;

    struct Event {
        Advice advice;
        double until; ///< steady seconds
    };

    Settings settings;
    recognition::Follower follower;
    std::optional<recognition::Observer> observerInUse; ///< by the follower
    Stage stage = Stage::Sky;
    AxisTracker tracker;
    SlipWatch slips;
    SteadyFigures steady;
    AutoExposure exposure;
    ClockWatch clock;
    std::optional<Event> event;     ///< of the axis
    std::optional<Event> clockStep; ///< of the clock
    Beginning beginning;
    std::uint64_t frames = 0;
    recognition::ExtractionStatus lost = recognition::ExtractionStatus::Ok; ///< of the last frame
    double searchedExposure = 0.0; ///< microseconds, of the last search of a whole frame
    double searchedAt = 0.0;       ///< steady seconds
    int recognisedInARow = 0;
    bool hadSky = false;
    bool boltsMoved = false;         ///< since the axis was known
    std::optional<double> lastFrame; ///< steady seconds
};
} // namespace assistant
