// SPDX-License-Identifier: MIT
// A camera library that records its calls and answers as the test tells it.
#include "tests/recordingsdk/recordingsdk.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstring>
#include <functional>
#include <list>
#include <map>
#include <mutex>
#include <sstream>

namespace
{
constexpr std::uint32_t sdkError = 0xFFFFFFFFu;
using Clock = std::chrono::steady_clock;

/// What a handle points to; handles are never freed, so that no later one has the same address.
struct Camera {
    int number;
    bool open;
    int callsInside; ///< calls in progress at this moment
};

struct Script {
    std::map<std::string, std::uint32_t> statuses;
    std::map<std::string, std::function<void()>> observers;
    std::vector<std::string> ids{"QUORVANDEL-0001"};
    bool terminated = true;
    std::int32_t cameraCount = 1;
    std::int32_t failingId = -1;
    std::map<std::int32_t, double> params{{6, 10.0}, {8, 20000.0}, {9, 0.0}, {12, 30.0}};
    std::uint32_t width = 0, height = 0, channels = 0, bits = 8;
    std::vector<std::uint8_t> pixels;
    int framesLeft = 0;
    std::chrono::milliseconds interval{0};
    Clock::time_point nextFrame{};
    bool holdsFetches = false;
};

template <typename... Values> std::string callText(const char *name, const Values &...values)
{
    std::ostringstream text;
    text.precision(17);
    text << name << '(';
    [[maybe_unused]] const char *separator = "";
    ((text << separator << values, separator = ", "), ...);
    text << ')';
    return text.str();
}

class Recorder : public RecordingSdk
{
public:
    void reset() override;
    std::vector<SdkCall> calls() const override { return read(recorded); }
    void clearCalls() override
    {
        write([this] { recorded.clear(); });
    }
    int fetchCount() const override { return read(fetches); }
    std::vector<std::thread::id> fetchThreads() const override { return read(threadsFetching); }
    std::vector<std::string> violations() const override { return read(broken); }
    void observe(const std::string &operation, std::function<void()> observer) override
    {
        std::unique_lock<std::mutex> lock(mutex);
        script.observers[operation] = std::move(observer);
        changed.wait(lock, [&] { return observed[operation] == 0; });
    }
    void setStatus(const std::string &operation, std::uint32_t status) override
    {
        write([&] { script.statuses[operation] = status; });
    }
    void setCameras(const std::vector<std::string> &ids, bool terminated) override
    {
        write([&] {
            script.ids = ids;
            script.terminated = terminated;
            script.cameraCount = std::int32_t(ids.size());
        });
    }
    void setCameraCount(std::int32_t count) override
    {
        write([&] { script.cameraCount = count; });
    }
    void failId(std::int32_t index) override
    {
        write([&] { script.failingId = index; });
    }
    void setParam(std::int32_t control, double value) override
    {
        write([&] { script.params[control] = value; });
    }
    void setFrame(std::uint32_t width, std::uint32_t height, std::uint32_t channels,
                  const std::vector<std::uint8_t> &pixels) override
    {
        write([&] {
            script.width = width;
            script.height = height;
            script.channels = channels;
            script.pixels = pixels;
        });
    }
    void setFrameBits(std::uint32_t bits) override
    {
        write([&] { script.bits = bits; });
    }
    void setFramesLeft(int count) override
    {
        write([&] { script.framesLeft = count; });
    }
    int framesLeft() const override { return read(script.framesLeft); }
    void setFrameInterval(int milliseconds) override
    {
        write([&] { script.interval = std::chrono::milliseconds(milliseconds); });
    }
    void holdFetches() override
    {
        write([&] { script.holdsFetches = true; });
    }
    void releaseFetches() override
    {
        write([&] { script.holdsFetches = false; });
        changed.notify_all();
    }
    bool waitForHeldFetch(int milliseconds) const override
    {
        std::unique_lock<std::mutex> lock(mutex);
        // With the system clock, since the thread sanitizer knows the calls that wait on it.
        return changed.wait_until(
            lock, std::chrono::system_clock::now() + std::chrono::milliseconds(milliseconds),
            [this] { return heldFetches > 0; });
    }

    std::uint32_t plain(const char *operation);
    std::int32_t scan();
    std::uint32_t id(std::int32_t index, char *text);
    void *open(const char *id);
    std::uint32_t close(void *handle);
    double param(void *handle, std::int32_t control);
    std::uint32_t setParamCalled(void *handle, std::int32_t control, double value);
    std::uint32_t fetch(void *handle, std::uint32_t *width, std::uint32_t *height,
                        std::uint32_t *bpp, std::uint32_t *channels, std::uint8_t *buffer);

    /// An operation on a handle that only returns a status.
    template <typename... Values>
    std::uint32_t onHandle(const char *operation, void *handle, const Values &...values)
    {
        std::unique_lock<std::mutex> lock(mutex);
        record(callText(operation, nameOf(handle), values...));
        letObserve(lock, operation, handle);
        return check(operation, handle) ? statusOf(operation) : sdkError;
    }

private:
    template <typename Value> Value read(const Value &value) const
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return value;
    }
    template <typename Change> void write(const Change &change)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        change();
    }
    // All below are called with the mutex held.
    void record(const std::string &text) { recorded.push_back({text, std::this_thread::get_id()}); }
    std::uint32_t statusOf(const char *operation) const
    {
        const auto found = script.statuses.find(operation);
        return found == script.statuses.end() ? 0 : found->second;
    }
    Camera *cameraOf(void *handle)
    {
        const auto found = std::find_if(cameras.begin(), cameras.end(),
                                        [&](const Camera &camera) { return &camera == handle; });
        return found == cameras.end() ? nullptr : &*found;
    }
    std::string nameOf(void *handle)
    {
        const Camera *const camera = cameraOf(handle);
        return !handle ? "null" : camera ? "camera " + std::to_string(camera->number) : "unknown";
    }
    /// Whether the handle is open; a call on a closed or unknown one is recorded as a violation.
    bool check(const char *operation, void *handle)
    {
        const Camera *const camera = cameraOf(handle);
        if (camera && camera->open)
            return true;
        if (handle)
            broken.push_back(callText(operation, nameOf(handle)) + " while it is not open");
        return false;
    }
    bool nextFrameIsDue();
    /// Runs the operation's observer, if any, with the lock released; meanwhile the call counts as
    /// in progress on the camera, if any.
    void letObserve(std::unique_lock<std::mutex> &lock, const char *operation,
                    void *handle = nullptr)
    {
        const std::function<void()> observer = script.observers[operation];
        if (!observer)
            return;
        Camera *const camera = cameraOf(handle);
        if (camera)
            ++camera->callsInside;
        ++observed[operation];
        lock.unlock();
        const auto end = [&] {
            lock.lock();
            --observed[operation];
            if (camera)
                --camera->callsInside;
            changed.notify_all();
        };
        try {
            observer();
        } catch (...) { // the test's, for the program
            end();
            throw;
        }
        end();
    }

    mutable std::mutex mutex;
    mutable std::condition_variable changed;
    Script script;
    std::list<Camera> cameras; ///< all that have ever been opened
    int opened = 0;            ///< since the last reset
    std::vector<SdkCall> recorded;
    std::vector<std::string> broken;
    std::vector<std::thread::id> threadsFetching;
    std::map<std::string, int> observed; ///< calls that are in an observer at this moment
    int fetches = 0;
    int heldFetches = 0;
};

void Recorder::reset()
{
    write([this] {
        script = Script();
        for (Camera &camera : cameras)
            camera.open = false;
        opened = 0;
        recorded.clear();
        broken.clear();
        threadsFetching.clear();
        fetches = 0;
    });
    changed.notify_all();
}

std::uint32_t Recorder::plain(const char *operation)
{
    std::unique_lock<std::mutex> lock(mutex);
    record(callText(operation));
    letObserve(lock, operation);
    return statusOf(operation);
}

std::int32_t Recorder::scan()
{
    std::unique_lock<std::mutex> lock(mutex);
    record(callText("ScanVELDIX"));
    letObserve(lock, "ScanVELDIX");
    return script.cameraCount;
}

std::uint32_t Recorder::id(std::int32_t index, char *text)
{
    std::unique_lock<std::mutex> lock(mutex);
    record(callText("GetVELDIXId", index));
    letObserve(lock, "GetVELDIXId");
    if (index < 0 || std::size_t(index) >= script.ids.size() || index == script.failingId)
        return sdkError;
    const std::string &id = script.ids[std::size_t(index)];
    std::memcpy(text, id.c_str(), id.size() + (script.terminated ? 1 : 0));
    return 0;
}

void *Recorder::open(const char *id)
{
    std::unique_lock<std::mutex> lock(mutex);
    record(callText("OpenVELDIX", id));
    letObserve(lock, "OpenVELDIX");
    if (statusOf("OpenVELDIX") != 0)
        return nullptr;
    cameras.push_back({++opened, true, 0});
    return &cameras.back();
}

std::uint32_t Recorder::close(void *handle)
{
    std::unique_lock<std::mutex> lock(mutex);
    record(callText("CloseVELDIX", nameOf(handle)));
    letObserve(lock, "CloseVELDIX");
    if (!check("CloseVELDIX", handle))
        return sdkError;
    Camera *const camera = cameraOf(handle);
    if (camera->callsInside > 0)
        broken.push_back("CloseVELDIX during another call");
    const std::uint32_t status = statusOf("CloseVELDIX");
    camera->open = status != 0;
    return status;
}

double Recorder::param(void *handle, std::int32_t control)
{
    std::unique_lock<std::mutex> lock(mutex);
    record(callText("GetVELDIXParam", nameOf(handle), control));
    letObserve(lock, "GetVELDIXParam", handle);
    return check("GetVELDIXParam", handle) ? script.params[control] : 0.0;
}

std::uint32_t Recorder::setParamCalled(void *handle, std::int32_t control, double value)
{
    const std::uint32_t status = onHandle("SetVELDIXParam", handle, control, value);
    if (status == 0)
        setParam(control, value);
    return status;
}

bool Recorder::nextFrameIsDue()
{
    if (script.framesLeft == 0 || Clock::now() < script.nextFrame)
        return false;
    script.nextFrame = Clock::now() + script.interval;
    if (script.framesLeft > 0)
        --script.framesLeft;
    return true;
}

std::uint32_t Recorder::fetch(void *handle, std::uint32_t *width, std::uint32_t *height,
                              std::uint32_t *bpp, std::uint32_t *channels, std::uint8_t *buffer)
{
    std::unique_lock<std::mutex> lock(mutex);
    ++fetches;
    const std::thread::id thread = std::this_thread::get_id();
    if (std::find(threadsFetching.begin(), threadsFetching.end(), thread) == threadsFetching.end())
        threadsFetching.push_back(thread);
    letObserve(lock, "GetVELDIXLiveFrame", handle);
    if (!check("GetVELDIXLiveFrame", handle))
        return sdkError;
    Camera *const camera = cameraOf(handle);
    ++camera->callsInside;
    ++heldFetches;
    if (script.holdsFetches)
        changed.notify_all();
    changed.wait(lock, [this] { return !script.holdsFetches; });
    --heldFetches;
    --camera->callsInside;
    const std::uint32_t status = statusOf("GetVELDIXLiveFrame");
    if (status != 0)
        return status;
    if (!nextFrameIsDue())
        return sdkError;
    *width = script.width;
    *height = script.height;
    *bpp = script.bits;
    *channels = script.channels;
    std::copy(script.pixels.begin(), script.pixels.end(), buffer);
    return 0;
}

Recorder &recorder()
{
    static Recorder only;
    return only;
}
} // namespace

#define EXPORTED extern "C" __attribute__((visibility("default")))

EXPORTED RecordingSdk *recordingSdk()
{
    return &recorder();
}
EXPORTED std::uint32_t InitVELDIXResource()
{
    return recorder().plain("InitVELDIXResource");
}
EXPORTED std::int32_t ScanVELDIX()
{
    return recorder().scan();
}
EXPORTED std::uint32_t GetVELDIXId(std::int32_t index, char *id)
{
    return recorder().id(index, id);
}
EXPORTED void *OpenVELDIX(const char *id)
{
    return recorder().open(id);
}
EXPORTED std::uint32_t SetVELDIXReadMode(void *handle, std::uint32_t mode)
{
    return recorder().onHandle("SetVELDIXReadMode", handle, mode);
}
EXPORTED std::uint32_t SetVELDIXStreamMode(void *handle, std::uint8_t mode)
{
    return recorder().onHandle("SetVELDIXStreamMode", handle, unsigned(mode));
}
EXPORTED std::uint32_t InitVELDIX(void *handle)
{
    return recorder().onHandle("InitVELDIX", handle);
}
EXPORTED std::uint32_t SetVELDIXBitsMode(void *handle, std::uint32_t bits)
{
    return recorder().onHandle("SetVELDIXBitsMode", handle, bits);
}
EXPORTED std::uint32_t SetVELDIXBinMode(void *handle, std::uint32_t x, std::uint32_t y)
{
    return recorder().onHandle("SetVELDIXBinMode", handle, x, y);
}
EXPORTED std::uint32_t SetVELDIXResolution(void *handle, std::uint32_t x, std::uint32_t y,
                                           std::uint32_t width, std::uint32_t height)
{
    return recorder().onHandle("SetVELDIXResolution", handle, x, y, width, height);
}
EXPORTED double GetVELDIXParam(void *handle, std::int32_t control)
{
    return recorder().param(handle, control);
}
EXPORTED std::uint32_t SetVELDIXParam(void *handle, std::int32_t control, double value)
{
    return recorder().setParamCalled(handle, control, value);
}
EXPORTED std::uint32_t BeginVELDIXLive(void *handle)
{
    return recorder().onHandle("BeginVELDIXLive", handle);
}
EXPORTED std::uint32_t GetVELDIXLiveFrame(void *handle, std::uint32_t *width, std::uint32_t *height,
                                          std::uint32_t *bpp, std::uint32_t *channels,
                                          std::uint8_t *buffer)
{
    return recorder().fetch(handle, width, height, bpp, channels, buffer);
}
EXPORTED std::uint32_t StopVELDIXLive(void *handle)
{
    return recorder().onHandle("StopVELDIXLive", handle);
}
EXPORTED std::uint32_t CloseVELDIX(void *handle)
{
    return recorder().close(handle);
}
