// SPDX-License-Identifier: MIT
// What was the camera library asked, and how should it answer? The tests' interface to the library
// that records.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <thread>
#include <vector>

/// One call, written like `SetVELDIXParam(camera 1, 12, 30)`; handles are counted from 1 in the
/// order of opening, a null handle is `null`.
struct SdkCall {
    std::string text;
    std::thread::id thread;
};

/// The single camera that the library simulates. All operations succeed until told otherwise. May
/// be used from any thread.
class RecordingSdk
{
public:
    virtual ~RecordingSdk() = default;

    /// Back to the state after loading: nothing recorded, nothing open, one camera, no frames.
    virtual void reset() = 0;

    /// All calls except those of GetVELDIXLiveFrame, in the order in which they came.
    virtual std::vector<SdkCall> calls() const = 0;
    virtual void clearCalls() = 0;
    /// Calls of GetVELDIXLiveFrame, and the threads that made them.
    virtual int fetchCount() const = 0;
    virtual std::vector<std::thread::id> fetchThreads() const = 0;
    /// Calls with a handle that was closed or never returned, and closings during another call.
    virtual std::vector<std::string> violations() const = 0;

    /// From now on, `observer` runs inside every call of `operation`, on the caller's thread,
    /// before the answer is chosen: it may inspect the state, tell the library how to answer, wait,
    /// or throw, which ends the call. An empty one ends that. Returns once the earlier observer has
    /// returned; must not be called by an observer.
    virtual void observe(const std::string &operation, std::function<void()> observer) = 0;
    /// The status that `operation` returns from now on; OpenVELDIX returns null for anything but 0.
    virtual void setStatus(const std::string &operation, std::uint32_t status) = 0;
    /// The IDs of the cameras, each copied with a terminating NUL, or without one on request.
    virtual void setCameras(const std::vector<std::string> &ids, bool terminated = true) = 0;
    /// What ScanVELDIX returns, whatever the number of IDs.
    virtual void setCameraCount(std::int32_t count) = 0;
    /// The camera whose ID cannot be read.
    virtual void failId(std::int32_t index) = 0;
    /// What GetVELDIXParam returns until the parameter is set.
    virtual void setParam(std::int32_t control, double value) = 0;

    /// The frame that every fetch delivers from now on; the pixels may be fewer than announced.
    virtual void setFrame(std::uint32_t width, std::uint32_t height, std::uint32_t channels,
                          const std::vector<std::uint8_t> &pixels) = 0;
    /// The bits per sample that every frame is said to have; 8 after reset().
    virtual void setFrameBits(std::uint32_t bits) = 0;
    /// How many frames are still to come; negative = no end. None after reset().
    virtual void setFramesLeft(int count) = 0;
    virtual int framesLeft() const = 0;
    /// The shortest time between two frames, milliseconds.
    virtual void setFrameInterval(int milliseconds) = 0;

    /// From now on, fetches wait inside the library until they are released.
    virtual void holdFetches() = 0;
    virtual void releaseFetches() = 0;
    /// True as soon as a fetch waits inside; false if none came in time.
    virtual bool waitForHeldFetch(int milliseconds) const = 0;
};

/// The name and type of the library's function that returns its RecordingSdk.
constexpr auto recordingSdkSymbol = "recordingSdk";
using RecordingSdkFunction = RecordingSdk *(*)();
