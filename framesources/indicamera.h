// SPDX-License-Identifier: MIT
// Frames of a camera behind an INDI server.
#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <set>
#include <string>

#include "framesources/indiclient.h"
#include "framesources/indiframe.h"
#include "framesources/indisettings.h"
#include "framesources/nativecamera.h"
#include "framesources/streamchoice.h"
#include "virtualcamera/cameraaddress.h"

namespace framesources
{
/// Connects to server and device, streams or exposes as long as frames are wanted, and begins again
/// with growing pauses when server, driver, device or network is lost.
class IndiCamera : public NativeCamera
{
public:
    /// @param useStream the device's video is used where it has one
    IndiCamera(virtualsky::CameraAddress cameraAddress, bool useStream, Report reportLine,
               const StreamChoice::Pauses &pauses = {});
    /// A device left exposing or streaming would go on for nobody.
    ~IndiCamera() override;

    std::optional<NativeFrame> next(const Wish &wish) override;
    bool isPresent() const override { return present.load(std::memory_order_relaxed); }

private:
    using Clock = std::chrono::steady_clock;
    enum class Stage { Lost, Appearing, Connecting, Ready };

    void connect();
    void awaitDevice();
    void awaitConnection();
    void setUp();
    std::optional<NativeFrame> work(const Wish &wish);
    void applyGain(double gain);
    void applyReadout(const Wish &wish);
    bool isStreamDue(double exposureSeconds) const;
    void startFrames(const Wish &wish);
    void stopFrames();
    void listen();
    void checkSilence();
    std::optional<NativeFrame> takeFrame(const Wish &wish);
    void lose(const std::string &reason);
    void say(const std::string &line);
    double sinceStage() const;

    const virtualsky::CameraAddress address;
    const Report report;
    std::atomic<bool> present{true};

    std::unique_ptr<IndiClient> client;
    Stage stage = Stage::Lost;
    Clock::time_point stageBegan, retryAt;
    double pause = 0.0; // seconds before the next try
    std::string lastSaid;
    unsigned removals = 0;
    std::set<std::string> switched; // properties of `requestSwitches` that were seen

    double gain = -1.0; // sent to the device, in the program's units
    cv::Size sensor;    // as the device says
    Readout readout;
    Clock::time_point readoutSent;
    int readoutsSent = 0;
    bool streaming = false, exposing = false;
    StreamChoice choice;
    std::string streamFault; // why it was given up; empty once that was said
    double exposure = 0.0;   // sent, seconds
    Clock::time_point exposureSent;
    // Of waiting for the device since the latest frame. What this thread does with a frame, or the
    // caller does between two calls, is no silence of the device.
    Clock::duration silence{};
    bool isUnreadable = false; // what came in that time
    bool isFaultSaid = false;  // of this stream's frames, or of the exposures since a good one
};
} // namespace framesources
