// SPDX-License-Identifier: MIT
// What does the assistant's window ask for, and what does it get to show?
#pragma once

#include "assistant/autoexposure.h"
#include "assistant/cameraoperator.h"
#include "assistant/clocks.h"
#include "assistant/guide.h"
#include "assistant/newestframe.h"
#include "assistant/recorder.h"

#include <QImage>
#include <atomic>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace assistant
{
/// One frame's status, and the frame itself without marks; null before the first.
struct Snapshot {
    Status status;
    QImage picture; ///< Grayscale8 or RGB888
    /// Counts the changes, so that nothing need be drawn twice.
    std::uint64_t number = 0;
};

/// The camera, the guide and their threads: one calls the library, one fetches frames, one looks at
/// the newest. Every member is for the GUI thread and returns at once, but for `close`.
class AssistantSession
{
public:
    /// Begins to load the camera library.
    explicit AssistantSession(const Settings &settings, Clocks given = systemClocks());
    /// Waits for the threads; see `close`.
    ~AssistantSession();

    /// Looks for cameras again; they are in `link().cameras` later.
    void findCameras() { camera.findCameras(); }
    /// @param id one of `link().cameras`; empty: the first one that is found
    void connectCamera(const std::string &id = {});
    void disconnectCamera();
    /// Whether a camera is connected or being looked for.
    bool isConnecting() const { return connecting; }

    /// @param microseconds 1000 to 500000. Ends the automatic exposure.
    void setExposure(double microseconds);
    void setAutomaticExposure(bool on);
    void setGain(double units) { camera.setGain(units); }
    void setSettings(const Settings &settings);
    void startAgain();

    /// What is known now. While the camera does not deliver, the last frame's picture stays and its
    /// figures do not.
    Snapshot latest() const;
    CameraLink link() const { return camera.link(); }

    /// Closes the camera and ends the threads. False if the library does not return in time: then
    /// this object cannot be destroyed, and the process ends by _Exit.
    bool close(int milliseconds);

private:
    /// What the window asked the guide for since its last frame.
    struct Requests {
        std::optional<Settings> settings;
        bool startAgain = false;
        bool newConnection = false;
        std::optional<bool> automatic;
    };

    void run();
    void obey();
    bool isNewConnection() const;
    void lookAt(const NewestFrame::Taken &taken);
    void publish(Status status, QImage picture);
    void record(const NewestFrame::Taken &taken, Status &status);

    const Clocks clocks;
    NewestFrame newest{clocks};
    CameraOperator camera{clocks, newest};
    bool connecting = false;
    std::atomic<bool> quit{false};

    // The guide's thread alone.
    Guide guide;
    Settings inUse;
    Recorder recorder;
    ExposureOrder exposureOrder;
    bool synchronised = true, confirmed = false;
    double synchronisedAt = 0.0; ///< steady seconds of the last look; 0: none yet

    mutable std::mutex mutex; // guards what follows
    Requests requests;
    Snapshot shown;

    std::thread thread; // last: it uses all the others
};
} // namespace assistant
