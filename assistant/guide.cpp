// SPDX-License-Identifier: MIT
// Runs the three stages.
#include "assistant/guide.h"

#include "assistant/advice.h"
#include "assistant/errorfigures.h"
#include "assistant/report.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace assistant
{
namespace
{
using recognition::ExtractionStatus;
using recognition::Recognition;
using recognition::RecognitionStatus;

constexpr int framesOfTheSky = 3;        // recognised in a row end the first stage
constexpr std::uint64_t firstFrames = 2; // that may still be exposed as before the connection
constexpr double eventSeconds = 20.0;    // for which a bump or slip is reported
const std::size_t maxFollowed = recognition::FollowerOptions().maxStars;
constexpr double searchInterval = 2.0; // seconds between searches for more stars
constexpr double enoughSeconds = 4.0;  // for which the end of the turning is reported
constexpr double clockSeconds = 60.0;  // for which a step of the clock is reported
constexpr double longClockStep = 20.0; // seconds: refraction would put the stars elsewhere
constexpr double longTrail = 1.5;      // length over width: the axis turned meanwhile
constexpr double wideStars = 7.0;      // pixels: recognised, but worth focusing

recognition::FollowerOptions followerOptions(std::optional<recognition::Observer> observer)
{
    recognition::FollowerOptions options;
    options.recognition.observer = observer;
    return options;
}

/// Whether the stars' places are refracted otherwise.
bool seesOtherwise(const Settings &a, const Settings &b)
{
    const bool sameSite = a.site.has_value() == b.site.has_value() &&
                          (!a.site || (a.site->latitude == b.site->latitude &&
                                       a.site->longitude == b.site->longitude));
    return !sameSite || a.pressure != b.pressure || a.temperature != b.temperature;
}

bool isSaid(const Status &status, AdviceCode code)
{
    return std::any_of(status.advice.begin(), status.advice.end(),
                       [code](const Advice &advice) { return advice.code == code; });
}

double medianWidth(const std::vector<recognition::DetectedStar> &stars)
{
    std::vector<double> widths;
    for (const recognition::DetectedStar &star : stars)
        if (star.fwhm > 0.0)
            widths.push_back(star.fwhm);
    if (widths.empty())
        return 0.0;
    const auto middle = widths.begin() + std::ptrdiff_t(widths.size() / 2);
    std::nth_element(widths.begin(), middle, widths.end());
    return *middle;
}
} // namespace

Guide::Guide(const Settings &given) : settings(given), follower(followerOptions(std::nullopt)) {}

void Guide::setSettings(const Settings &given)
{
    const bool otherSky = seesOtherwise(settings, given);
    const bool otherFigures = otherSky || settings.target != given.target;
    settings = given;
    if (otherFigures) {
        steady.reset();
        beginning.setSettings(settings);
    }
    if (!otherSky)
        return;
    follower = recognition::Follower(followerOptions(std::nullopt));
    observerInUse.reset();
    forgetDirections();
}

void Guide::startAgain()
{
    follower.reset();
    stage = Stage::Sky;
    tracker.reset();
    slips.reset();
    steady.reset();
    event.reset();
    beginning.reset();
    recognisedInARow = 0;
    hadSky = false;
    boltsMoved = false;
}

Status Guide::observe(const Observation &observation)
{
    Status status;
    status.sky = std::make_shared<Recognition>();
    status.stage = stage;
    status.utcSeconds = observation.utcSeconds;
    status.steadySeconds = observation.steadySeconds;
    status.exposureMicroseconds = observation.exposureMicroseconds;
    status.automaticExposure = exposure.isEnabled();
    noteClock(observation);
    if (observation.frame.empty()) {
        silence(observation, status);
        return status;
    }
    status.frame = ++frames;
    lastFrame = observation.steadySeconds;
    status.width = observation.frame.cols;
    status.height = observation.frame.rows;
    recognise(observation, status);
    if (status.sky->status == RecognitionStatus::Recognised)
        advance(observation, status);
    else
        recognisedInARow = 0;
    status.stage = stage;
    fillAxis(status);
    fillBeginning(status);
    advise(observation, status);
    return status;
}

void Guide::silence(const Observation &observation, Status &status)
{
    status.frame = frames;
    steady.reset();
    fillAxis(status);
    fillBeginning(status);
    if (!lastFrame)
        lastFrame = observation.steadySeconds;
    status.advice.push_back(
        {AdviceCode::CameraLost, std::max(observation.steadySeconds - *lastFrame, 0.0), 0.0, {}});
}

/// After a small step what was measured is as good as before, once its times are those of the new
/// clock. After a large one, frames from before and after it do not fit together.
void Guide::noteClock(const Observation &observation)
{
    const double step = clock.step(observation.utcSeconds, observation.steadySeconds);
    if (step == 0.0)
        return;
    clockStep =
        Event{{AdviceCode::ClockJumped, step, 0.0, {}}, observation.steadySeconds + clockSeconds};
    steady.reset();
    beginning.shiftClock(step);
    if (std::abs(step) <= longClockStep) {
        tracker.shiftClock(step);
        slips.shiftClock(step);
        return;
    }
    follower.reset();
    forgetDirections();
}

/// Frames from now on show other directions than those before. An axis that is known stays where it
/// is in the picture, since its frames agreed with each other.
void Guide::forgetDirections()
{
    slips.reset();
    boltsMoved = true;
    if (stage == Stage::Axis)
        tracker.reset();
}

void Guide::useObserver(recognition::Hemisphere hemisphere)
{
    const auto observer = observerOf(settings, hemisphere);
    if (observer.has_value() == observerInUse.has_value())
        return;
    follower = recognition::Follower(followerOptions(observer));
    observerInUse = observer;
}

/// The follower keeps to the stars that it found at first. After a longer exposure, or where the
/// bolts moved the field, there are others: the whole frame is searched, and what it gives is taken
/// if it is more.
void Guide::searchForMore(const Observation &observation, Recognition &found)
{
    const double now = observation.steadySeconds;
    const bool exposedOtherwise = observation.exposureMicroseconds != searchedExposure;
    if (!follower.followed() || found.matched.size() >= maxFollowed ||
        (!exposedOtherwise &&
         (found.matched.size() >= enoughStars || now - searchedAt < searchInterval)))
        return;
    searchedExposure = observation.exposureMicroseconds;
    searchedAt = now;
    recognition::Follower fresh(followerOptions(observerInUse));
    Recognition searched = fresh.follow(observation.frame, observation.utcSeconds);
    if (searched.status != RecognitionStatus::Recognised ||
        searched.matched.size() <= found.matched.size())
        return;
    follower = std::move(fresh);
    found = std::move(searched);
}

/// The sky is found without refraction first: only then is it known whether the site is on this
/// hemisphere.
void Guide::recognise(const Observation &observation, Status &status)
{
    Recognition found = follower.follow(observation.frame, observation.utcSeconds);
    if (found.status == RecognitionStatus::Recognised) {
        const bool before = observerInUse.has_value();
        useObserver(found.hemisphere);
        if (observerInUse.has_value() != before)
            found = follower.follow(observation.frame, observation.utcSeconds);
    }
    searchForMore(observation, found);
    lost = !follower.followed() ? follower.searched().status : ExtractionStatus::Ok;
    if (found.status == RecognitionStatus::Recognised && follower.followed() &&
        !isTrustworthy(found)) {
        found = Recognition();
        found.extracted = follower.stars().size();
        lost = ExtractionStatus::TooFewStars;
    }
    status.stars = follower.stars();
    status.fwhm = medianWidth(status.stars);
    const bool recognised = found.status == RecognitionStatus::Recognised;
    exposure.consider({observation.exposureMicroseconds, recognised,
                       recognised ? found.matched.size() : solidStars(status.stars), lost});
    status.sky = std::make_shared<const Recognition>(std::move(found));
    const auto pole = poleOf(*status.sky, settings);
    if (pole && !observation.clockBehind) {
        status.pole = pole->place;
        status.poleCovariance = pole->covariance;
    }
}

void Guide::advance(const Observation &observation, Status &status)
{
    hadSky = true;
    ++recognisedInARow;
    if (stage == Stage::Sky)
        searchSky(status);
    else if (stage == Stage::Axis)
        measureAxis(observation, status);
    // The frame that ends the second stage is the first of the third.
    if (stage == Stage::Bolts)
        turnBolts(observation, status);
}

void Guide::searchSky(Status &status)
{
    if (recognisedInARow < framesOfTheSky)
        return;
    stage = Stage::Axis;
    tracker.reset();
    tracker.add(*status.sky);
}

/// The follower's windows say nothing of how long the stars are drawn out.
bool Guide::isSharp(const cv::Mat &frame) const
{
    if (!follower.followed())
        return follower.searched().elongation < longTrail;
    return recognition::extractStars(frame).elongation < longTrail;
}

void Guide::measureAxis(const Observation &observation, Status &status)
{
    const Recognition &frame = *status.sky;
    if (tracker.wants(frame) && !isSharp(observation.frame))
        return;
    switch (tracker.add(frame)) {
    case AxisTracker::Event::Bumped:
        event = Event{{AdviceCode::Bumped, 0.0, 0.0, {}}, observation.steadySeconds + eventSeconds};
        return;
    case AxisTracker::Event::OtherCamera:
        stage = Stage::Sky;
        recognisedInARow = 0;
        return;
    case AxisTracker::Event::None:
        break;
    }
    if (!tracker.isEnough())
        return;
    stage = Stage::Bolts;
    beginning.fixAxis();
    event = Event{{AdviceCode::StopTurning, tracker.axis().sigmaArcseconds, 0.0, {}},
                  observation.steadySeconds + enoughSeconds};
    boltsMoved = false;
    slips.reset();
    steady.reset();
}

void Guide::measureAgain(AdviceCode why, double steadySeconds)
{
    stage = Stage::Axis;
    tracker.reset();
    slips.reset();
    steady.reset();
    event = Event{{why, 0.0, 0.0, {}}, steadySeconds + eventSeconds};
}

void Guide::turnBolts(const Observation &observation, Status &status)
{
    const Recognition &frame = *status.sky;
    if (slips.hasSlipped(frame, tracker.axis())) {
        measureAgain(AdviceCode::AxisSlipped, observation.steadySeconds);
        tracker.add(frame);
        return;
    }
    const auto departure = tracker.departure(frame);
    if (departure && *departure > tracker.allowedDeparture(frame))
        boltsMoved = true;
    // As long as nobody touched the bolts, further turning improves the axis.
    if (!boltsMoved && tracker.isNewAngle(frame) && isSharp(observation.frame)) {
        if (tracker.add(frame) != AxisTracker::Event::None) {
            measureAgain(AdviceCode::AxisSlipped, observation.steadySeconds);
            tracker.add(frame);
            return;
        }
        beginning.improveAxis(tracker.axis());
    }
    const auto error = frameErrorOf(frame, tracker.axis(), settings);
    if (!error || observation.clockBehind)
        return;
    status.error = figuresOf(steady.add(*error, observation.steadySeconds), settings.site);
    if (!beginning.isKnown())
        beginning.take(frame, status.stars, tracker.axis(), settings);
}

void Guide::fillBeginning(Status &status) const
{
    status.firstError = beginning.error();
    status.site = settings.site;
    status.aim = aimOf(settings, status.sky->hemisphere);
}

void Guide::fillAxis(Status &status) const
{
    AxisProgress &axis = status.axis;
    axis.turnedDegrees = tracker.turnedDegrees();
    axis.frames = tracker.frames();
    axis.enough = tracker.isEnough();
    axis.isEarly = tracker.axis().status != recognition::AxisStatus::Found;
    if (axis.isEarly && !tracker.earlyAxis())
        return;
    const recognition::Axis &shown = axis.isEarly ? *tracker.earlyAxis() : tracker.axis();
    axis.place = shown.place;
    axis.covariance = shown.covariance;
    axis.sigmaArcseconds = shown.sigmaArcseconds;
}

void Guide::adviseStage(const Observation &observation, Status &status) const
{
    if (stage == Stage::Sky)
        status.advice.push_back(
            {AdviceCode::Searching, double(status.sky->matched.size()), 0.0, {}});
    else if (stage == Stage::Bolts && observation.clockBehind)
        status.advice.push_back({AdviceCode::ClockBehind, 0.0, 0.0, {}});
    else if (stage == Stage::Axis || !status.error)
        status.advice.push_back(adviceOnAxis(status.axis));
    else
        status.advice.push_back(adviceOnBolts(*status.error, settings.goalArcseconds));
}

void Guide::adviseEvents(double steadySeconds, Status &status) const
{
    if (event && steadySeconds < event->until)
        status.advice.push_back(event->advice);
}

void Guide::adviseHints(const Observation &observation, Status &status) const
{
    if (clockStep && observation.steadySeconds < clockStep->until)
        status.advice.push_back(clockStep->advice);
    else if (observation.clockBehind && !isSaid(status, AdviceCode::ClockBehind))
        status.advice.push_back({AdviceCode::ClockBehind, 0.0, 0.0, {}});
    else if (!observation.clockSynchronised && !observation.clockBehind)
        status.advice.push_back({AdviceCode::ClockUnsure, 0.0, 0.0, {}});
    if (!settings.site)
        status.advice.push_back({AdviceCode::SiteMissing, 0.0, 0.0, {}});
    else if (90.0 - std::abs(settings.site->latitude) < minPolarDistance)
        status.advice.push_back({AdviceCode::SiteTooFarNorth, 0.0, 0.0, {}});
    if (!status.pole)
        return;
    if (const auto outside =
            adviceOnPole(*status.pole, status.width, status.height, status.sky->scale))
        status.advice.push_back(*outside);
    if (status.fwhm > wideStars)
        status.advice.push_back({AdviceCode::Focus, status.fwhm, 0.0, {}});
}

void Guide::advise(const Observation &observation, Status &status) const
{
    if (status.sky->status != RecognitionStatus::Recognised) {
        const recognition::Extraction &searched = follower.searched();
        status.advice.push_back(adviceOf({lost, solidStars(status.stars), searched.fwhm, hadSky,
                                          frames <= firstFrames, exposure.wanted().has_value()}));
        adviseEvents(observation.steadySeconds, status);
        adviseHints(observation, status);
        orderAdvice(status.advice);
        return;
    }
    adviseEvents(observation.steadySeconds, status);
    if (settings.site && !observerInUse)
        status.advice.push_back({AdviceCode::WrongHemisphere, 0.0, 0.0, {}});
    adviseStage(observation, status);
    adviseHints(observation, status);
    orderAdvice(status.advice);
}
} // namespace assistant
