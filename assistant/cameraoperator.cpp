// SPDX-License-Identifier: MIT
// Connects, watches, and connects again.
#include "assistant/cameraoperator.h"

#include "camera/cameraopening.h"
#include "camera/veldix.h"

#include <QByteArray>
#include <QtDebug>
#include <algorithm>
#include <chrono>
#include <utility>

namespace assistant
{
namespace
{
using State = CameraLink::State;

constexpr std::chrono::milliseconds frameRounds(100); // between looks at the frames
constexpr double retry = 2.0;                         // seconds between attempts to connect
constexpr int closingPoll = 50;                       // milliseconds
constexpr std::size_t maxListedCameras = 64;
} // namespace

class CameraOperator::Call
{
public:
    Call(Relaxed<double> &since, const Clocks &clocks) : began(since) { began = clocks.steady(); }
    ~Call() { began = 0.0; }
    Call(const Call &) = delete;
    Call &operator=(const Call &) = delete;

private:
    Relaxed<double> &began;
};

CameraOperator::CameraOperator(const Clocks &given, NewestFrame &consumer)
    : clocks(given), newest(consumer), capture(session, consumer)
{
    setCameraDefaults(session.camera);
    thread = std::thread([this] { run(); });
}

CameraOperator::~CameraOperator()
{
    close(0);
    thread.join();
}

void CameraOperator::findCameras()
{
    const std::lock_guard<std::mutex> lock(mutex);
    pending.find = true;
    ordered.notify_one();
}

void CameraOperator::connectCamera(const std::string &id)
{
    const std::lock_guard<std::mutex> lock(mutex);
    pending.connect = true;
    pending.disconnect = false;
    pending.id = id;
    ordered.notify_one();
}

void CameraOperator::disconnectCamera()
{
    const std::lock_guard<std::mutex> lock(mutex);
    pending.disconnect = true;
    pending.connect = false;
    ordered.notify_one();
}

void CameraOperator::setExposure(double microseconds)
{
    const std::lock_guard<std::mutex> lock(mutex);
    pending.exposure = microseconds;
    ordered.notify_one();
}

void CameraOperator::setGain(double units)
{
    const std::lock_guard<std::mutex> lock(mutex);
    pending.gain = units;
    ordered.notify_one();
}

CameraLink CameraOperator::link() const
{
    CameraLink now;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        now = known;
    }
    const double began = callBegan;
    if (began > 0.0 && clocks.steady() - began > slowCall) {
        now.state = State::Hanging;
        now.since = began;
    }
    return now;
}

bool CameraOperator::close(int milliseconds)
{
    std::unique_lock<std::mutex> lock(mutex);
    pending.quit = true;
    ordered.notify_one();
    return ordered.wait_for(lock, std::chrono::milliseconds(milliseconds),
                            [this] { return ended; });
}

bool CameraOperator::isQuitting() const
{
    const std::lock_guard<std::mutex> lock(mutex);
    return pending.quit;
}

void CameraOperator::set(State state)
{
    const std::lock_guard<std::mutex> lock(mutex);
    known.state = state;
    known.wasLive = known.wasLive || state == State::Live;
    known.since = std::max<double>(newest.lastCame, opened);
}

CameraOperator::Orders CameraOperator::takeOrders()
{
    std::unique_lock<std::mutex> lock(mutex);
    ordered.wait_for(lock, frameRounds, [this] {
        return pending.quit || pending.find || pending.connect || pending.disconnect ||
               pending.exposure || pending.gain;
    });
    Orders orders = std::exchange(pending, {});
    pending.quit = orders.quit;
    return orders;
}

void CameraOperator::run()
{
    load();
    for (;;) {
        const Orders orders = takeOrders();
        if (orders.quit)
            break;
        obey(orders);
        if (wanted && !session.handle.get() && clocks.steady() >= nextTry)
            tryToOpen();
        if (session.handle.get()) {
            applyParameters();
            watchFrames();
        }
    }
    closeCamera(true);
    capture.waitForEnd();
    // The thread that stops the live mode may hang after the fetch has returned.
    if (!closing.stopEnds(0))
        return;
    const std::lock_guard<std::mutex> lock(mutex);
    ended = true;
    ordered.notify_all();
}

void CameraOperator::load()
{
    const Call call(callBegan, clocks);
    session.camera.sdkReady = InitVELDIXResource() == 0 && libraryFault().isEmpty();
    if (session.camera.sdkReady) {
        listCameras();
        set(State::Idle);
        return;
    }
    const std::lock_guard<std::mutex> lock(mutex);
    known.state = State::Unusable;
    known.fault = libraryFault().toStdString();
}

void CameraOperator::listCameras()
{
    std::vector<std::string> found;
    {
        const Call call(callBegan, clocks);
        found = ::findCameras(maxListedCameras);
    }
    const std::lock_guard<std::mutex> lock(mutex);
    known.cameras = std::move(found);
}

void CameraOperator::obey(const Orders &orders)
{
    if (!session.camera.sdkReady)
        return;
    if (orders.find)
        listCameras();
    if (orders.exposure)
        exposure = orders.exposure;
    if (orders.gain)
        gain = orders.gain;
    if (orders.disconnect || (orders.connect && session.handle.get())) {
        wanted = false;
        closeCamera(false);
        set(State::Idle);
    }
    if (!orders.connect)
        return;
    wanted = true;
    wantedId = orders.id;
    nextTry = 0.0;
    opened = clocks.steady();
    const std::lock_guard<std::mutex> lock(mutex);
    known.wasLive = false;
    known.id = orders.id;
}

/// Stores the ID of the camera to open; false if there is none. A camera that was lost is waited
/// for; before that the ID is a preference, and another camera will do.
bool CameraOperator::choose()
{
    listCameras();
    std::vector<std::string> found;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        found = known.cameras;
    }
    auto chosen =
        wantedId.empty() ? found.begin() : std::find(found.begin(), found.end(), wantedId);
    if (chosen == found.end() && !link().wasLive)
        chosen = found.begin();
    if (chosen == found.end())
        return false;
    wantedId = *chosen; // the same one, when it is lost and found
    qstrncpy(session.camera.cameraId, chosen->c_str(), sizeof session.camera.cameraId);
    const std::lock_guard<std::mutex> lock(mutex);
    known.id = *chosen;
    return true;
}

void CameraOperator::tryToOpen()
{
    nextTry = clocks.steady() + retry;
    const bool wasLive = link().wasLive;
    if (!choose()) {
        set(wasLive ? State::Lost : State::Missing);
        return;
    }
    {
        const Call call(callBegan, clocks);
        if (openCamera(session) != OpeningResult::Opened) {
            closeCamera(false);
            set(wasLive ? State::Lost : State::Failing);
            return;
        }
        session.camera.cameraConnected = true;
        configureCamera(session);
    }
    // A camera that was lost gets the values that it had.
    const CameraLink before = link();
    if (wasLive && !exposure && before.exposure > 0.0)
        exposure = before.exposure;
    if (wasLive && !gain && before.gain > 0.0)
        gain = before.gain;
    newest.exposure = session.camera.exposure;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        known.exposure = session.camera.exposure;
        known.gain = session.camera.gain;
    }
    opened = clocks.steady();
    applyParameters();
    capture.startCapture();
    set(wasLive ? State::Lost : State::Live); // a lost one is live again with its first frame
}

void CameraOperator::applyParameters()
{
    const auto apply = [this](std::optional<double> &asked, VeldixControl control, double &value) {
        if (!asked)
            return;
        const Call call(callBegan, clocks);
        if (SetVELDIXParam(session.handle.get(), control, *asked) == 0)
            value = *asked;
        asked.reset();
    };
    apply(exposure, CONTROL_EXPOSURE, session.camera.exposure);
    apply(gain, CONTROL_GAIN, session.camera.gain);
    newest.exposure = session.camera.exposure;
    const std::lock_guard<std::mutex> lock(mutex);
    known.exposure = session.camera.exposure;
    known.gain = session.camera.gain;
}

void CameraOperator::watchFrames()
{
    const double last = std::max<double>(newest.lastCame, opened);
    const bool hasSent = newest.lastCame > opened;
    if (hasSent)
        allowedSilence = silence;
    if (clocks.steady() - last <= allowedSilence + 3e-6 * session.camera.exposure) {
        if (hasSent)
            set(State::Live);
        return;
    }
    if (!hasSent)
        allowedSilence = std::min(2.0 * allowedSilence, longestSilence);
    qWarning("no frame from the camera: it is closed and looked for again");
    closeCamera(false);
    set(State::Lost);
    nextTry = clocks.steady() + retry;
}

/// A call that does not return is waited for; when the program ends, only so long.
void CameraOperator::closeCamera(bool forGood)
{
    capture.stopCapture();
    if (!session.handle.get())
        return;
    const double began = clocks.steady();
    for (;;) {
        closing.begin(CameraHandle::sdkCallTimeout);
        CameraClosing::State state = CameraClosing::State::UnderWay;
        while (closing.isUnderWay()) {
            const Call call(callBegan, clocks);
            state = closing.poll(closingPoll);
            if (clocks.steady() - began > slowCall)
                set(State::Hanging);
        }
        if (state == CameraClosing::State::Closed)
            break;
        if (state == CameraClosing::State::Refused) {
            // Nothing more can be done with this handle.
            session.handle.set(nullptr);
            session.camera.cameraConnected = false;
            break;
        }
        if (forGood || isQuitting())
            return; // the process ends with the call under way
    }
    capture.waitForEnd();
    newest.clear();
}
} // namespace assistant
