// SPDX-License-Identifier: MIT
// Who calls the camera library for the assistant, so that no call holds up the window?
#pragma once

#include "assistant/newestframe.h"
#include "camera/cameraclosing.h"
#include "camera/capturethread.h"
#include "camera/session.h"

#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace assistant
{
/// How it stands with the camera.
struct CameraLink {
    enum class State {
        Loading,  ///< the library is being loaded
        Unusable, ///< it cannot be used; `fault` says why
        Idle,     ///< not connected
        Missing,  ///< no camera was found, or not that one; looked for again
        Failing,  ///< it is there and cannot be opened; tried again
        Live,     ///< connected; frames come, or are awaited
        Lost,     ///< no frame for a while: closed, and looked for again
        Hanging   ///< a call does not return
    };
    State state = State::Loading;
    std::string fault;
    std::vector<std::string> cameras; ///< IDs that were found last
    std::string id;                   ///< of the camera that is or was connected
    bool wasLive = false;             ///< since `connectCamera`
    double exposure = 0.0;            ///< microseconds, 0: not known
    double gain = 0.0;                ///< camera units
    double since = 0.0;               ///< steady seconds of the last frame or answer
};

/// A thread of its own makes all calls to the library, but for the fetches of the capture thread.
/// Every member returns at once. What is asked for while a call is under way replaces what was
/// asked for before.
class CameraOperator
{
public:
    /// How long no frame may come before the camera counts as lost, seconds, besides three
    /// exposures; up to so much longer for a camera that has not sent any since it was opened.
    static constexpr double silence = 3.0;
    static constexpr double longestSilence = 30.0;
    /// How long a call may take before it counts as hanging, seconds.
    static constexpr double slowCall = 4.0;

    /// Begins to load the library. @param given, consumer must outlive this object
    CameraOperator(const Clocks &given, NewestFrame &consumer);
    /// Waits for the thread's end; see `close`.
    ~CameraOperator();

    /// Looks for cameras.
    void findCameras();
    /// Connects, and connects again whenever the camera is lost. @param id empty: the first found
    void connectCamera(const std::string &id);
    void disconnectCamera();
    void setExposure(double microseconds);
    void setGain(double units);

    CameraLink link() const;

    /// Closes the camera and ends the threads. False if the library does not return in time: then
    /// this object cannot be destroyed, and the process ends by _Exit.
    bool close(int milliseconds);

private:
    struct Orders {
        bool find = false;
        bool connect = false; ///< to `id`
        bool disconnect = false;
        std::string id;
        std::optional<double> exposure, gain;
        bool quit = false;
    };

    void run();
    void load();
    Orders takeOrders();
    void obey(const Orders &orders);
    void listCameras();
    void tryToOpen();
    bool choose();
    void applyParameters();
    void watchFrames();
    void closeCamera(bool forGood);
    bool isQuitting() const;
    void set(CameraLink::State state);

    /// Says since when a call is under way, for its scope.
    class Call;

    const Clocks &clocks;
    NewestFrame &newest;
    // The thread's own.
    CameraSession session;
    CameraClosing closing{session};
    CaptureThread capture;
    bool wanted = false;                  ///< a camera is to be connected
    std::string wantedId;                 ///< empty: any
    std::optional<double> exposure, gain; ///< asked for, and not yet set
    double nextTry = 0.0;                 ///< steady seconds
    double opened = 0.0;                  ///< steady seconds
    double allowedSilence = silence;

    mutable std::mutex mutex; // guards what follows
    std::condition_variable ordered;
    Orders pending;
    CameraLink known;
    bool ended = false;
    Relaxed<double> callBegan; ///< steady seconds; 0: no call is under way

    std::thread thread; // last: it uses all the others
};
} // namespace assistant
