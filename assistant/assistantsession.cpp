// SPDX-License-Identifier: MIT
// Puts camera and guide together.
#include "assistant/assistantsession.h"

#include "assistant/advice.h"

#include <QtDebug>
#include <cstring>
#include <opencv2/imgproc.hpp>
#include <utility>

namespace assistant
{
namespace
{
using State = CameraLink::State;

constexpr std::chrono::milliseconds requestRounds(200); // between looks at the requests
constexpr double clockLook = 10.0; // seconds between looks at the clock's state
constexpr int shortWait = 2000;    // milliseconds, of the destructor, for the guide's last frame

QImage pictureOf(const cv::Mat &frame)
{
    if (frame.type() == CV_8UC1) {
        QImage picture(frame.cols, frame.rows, QImage::Format_Grayscale8);
        for (int row = 0; row < frame.rows; ++row)
            std::memcpy(picture.scanLine(row), frame.ptr(row), std::size_t(frame.cols));
        return picture;
    }
    if (frame.type() != CV_8UC3)
        return {};
    QImage picture(frame.cols, frame.rows, QImage::Format_RGB888);
    cv::Mat pixels(frame.rows, frame.cols, CV_8UC3, picture.bits(),
                   std::size_t(picture.bytesPerLine()));
    cv::cvtColor(frame, pixels, cv::COLOR_BGR2RGB);
    return picture;
}

Status emptyStatus(Stage stage)
{
    Status status;
    status.stage = stage;
    status.sky = std::make_shared<recognition::Recognition>();
    return status;
}

/// What to say while there is no camera that delivers; nothing while one does.
std::optional<Advice> adviceOnLink(const CameraLink &link, bool connecting, double now)
{
    const double silent = link.since > 0.0 ? now - link.since : 0.0;
    switch (link.state) {
    case State::Loading:
    case State::Idle:
        return Advice{connecting ? AdviceCode::Searching : AdviceCode::ConnectCamera, 0.0, 0.0, {}};
    case State::Unusable:
        return Advice{AdviceCode::CameraUnusable, 0.0, 0.0, link.fault};
    case State::Missing:
        return Advice{AdviceCode::NoCamera, 0.0, 0.0, {}};
    case State::Failing:
        return Advice{AdviceCode::CameraRefuses, 0.0, 0.0, link.id};
    case State::Lost:
        return Advice{AdviceCode::CameraLost, silent, 0.0, {}};
    case State::Hanging:
        return Advice{AdviceCode::CameraHangs, silent, 0.0, {}};
    case State::Live:
        break;
    }
    return std::nullopt;
}

/// Whether the alignment goes on once the camera delivers again.
bool isInterruption(const CameraLink &link)
{
    return link.wasLive && (link.state == State::Lost || link.state == State::Hanging);
}
} // namespace

AssistantSession::AssistantSession(const Settings &settings, Clocks given)
    : clocks(std::move(given)), guide(settings), inUse(settings)
{
    recorder.use(settings);
    shown.status = emptyStatus(Stage::Sky);
    thread = std::thread([this] { run(); });
}

AssistantSession::~AssistantSession()
{
    close(shortWait);
    if (thread.joinable())
        thread.join();
}

void AssistantSession::connectCamera(const std::string &id)
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        requests.newConnection = true;
        shown.status = emptyStatus(Stage::Sky);
        shown.picture = {};
        ++shown.number;
    }
    connecting = true;
    camera.connectCamera(id);
    newest.wake();
}

void AssistantSession::disconnectCamera()
{
    connecting = false;
    camera.disconnectCamera();
}

void AssistantSession::setExposure(double microseconds)
{
    setAutomaticExposure(false);
    camera.setExposure(microseconds);
}

void AssistantSession::setAutomaticExposure(bool on)
{
    const std::lock_guard<std::mutex> lock(mutex);
    requests.automatic = on;
}

void AssistantSession::setSettings(const Settings &settings)
{
    const std::lock_guard<std::mutex> lock(mutex);
    requests.settings = settings;
}

void AssistantSession::startAgain()
{
    const std::lock_guard<std::mutex> lock(mutex);
    requests.startAgain = true;
}

Snapshot AssistantSession::latest() const
{
    const CameraLink known = camera.link();
    Snapshot now;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        now = shown;
    }
    const auto advice = adviceOnLink(known, connecting, clocks.steady());
    if (!advice) {
        if (now.status.advice.empty())
            now.status.advice = {{AdviceCode::Searching, 0.0, 0.0, {}}};
        return now;
    }
    Status status = emptyStatus(Stage::Connect);
    if (connecting && isInterruption(known)) {
        // The axis stays known; what was seen of the sky is over.
        status.stage = now.status.stage;
        status.frame = now.status.frame;
        status.width = now.status.width;
        status.height = now.status.height;
        status.axis = now.status.axis;
        status.firstError = now.status.firstError;
        status.site = now.status.site;
        status.aim = now.status.aim;
    } else {
        now.picture = {};
    }
    status.exposureMicroseconds = known.exposure;
    status.automaticExposure = now.status.automaticExposure;
    status.advice = {*advice};
    now.status = std::move(status);
    return now;
}

bool AssistantSession::close(int milliseconds)
{
    quit = true;
    newest.wake();
    if (thread.joinable())
        thread.join();
    return camera.close(milliseconds);
}

void AssistantSession::run()
{
    while (!quit) {
        const auto taken = newest.take(requestRounds);
        obey();
        if (taken && !quit)
            lookAt(*taken);
    }
}

void AssistantSession::obey()
{
    Requests asked;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        asked = std::exchange(requests, {});
        if (asked.automatic)
            shown.status.automaticExposure = *asked.automatic;
    }
    if (asked.newConnection || asked.automatic)
        exposureOrder.forget();
    if (asked.newConnection)
        guide = Guide(asked.settings ? *asked.settings : inUse);
    if (asked.settings) {
        inUse = *asked.settings;
        guide.setSettings(inUse);
        recorder.use(inUse);
    }
    if (asked.startAgain)
        guide.startAgain();
    if (asked.automatic)
        guide.setAutomaticExposure(*asked.automatic);
}

bool AssistantSession::isNewConnection() const
{
    const std::lock_guard<std::mutex> lock(mutex);
    return requests.newConnection;
}

void AssistantSession::lookAt(const NewestFrame::Taken &taken)
{
    if (synchronisedAt == 0.0 || taken.steadySeconds - synchronisedAt > clockLook) {
        synchronised = clocks.synchronised();
        confirmed = clocks.confirmed();
        synchronisedAt = taken.steadySeconds;
    }
    // A clock that is synchronised is right, whatever was written while it was not; so is one that
    // the hardware's confirms.
    const bool behind =
        !synchronised && !confirmed && isBehind(taken.utcSeconds, clocks.certainPast);
    Status status = guide.observe({taken.frame, taken.utcSeconds, taken.steadySeconds,
                                   taken.exposureMicroseconds, synchronised, behind});
    if (const auto wanted = exposureOrder.due(guide.wantedExposure())) {
        // Under the lock: a value that the user sets meanwhile comes after this one.
        const std::lock_guard<std::mutex> lock(mutex);
        if (!requests.automatic)
            camera.setExposure(*wanted);
    }
    record(taken, status);
    if (!isNewConnection()) // this frame is of the connection before
        publish(std::move(status), pictureOf(taken.frame));
}

void AssistantSession::record(const NewestFrame::Taken &taken, Status &status)
{
    if (const auto advice =
            recorder.record(taken.frame, taken.utcSeconds, taken.exposureMicroseconds * 1e-6)) {
        status.advice.push_back(*advice);
        orderAdvice(status.advice);
    }
}

void AssistantSession::publish(Status status, QImage picture)
{
    const std::lock_guard<std::mutex> lock(mutex);
    shown.status = std::move(status);
    shown.picture = std::move(picture);
    ++shown.number;
}
} // namespace assistant
