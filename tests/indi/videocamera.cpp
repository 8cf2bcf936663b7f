// SPDX-License-Identifier: MIT
// A camera for INDI's server, on INDI's own library for drivers: 1280 x 960 pixels of 8 bits, with
// video of 30 frames a second and single exposures. With VIDEO_CAMERA_DIES in its environment it
// ends when video is switched on.
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <libindi/indiccd.h>
#include <libindi/stream/streammanager.h>
#include <thread>

namespace
{
constexpr int width = 1280, height = 960;
constexpr std::chrono::milliseconds period(33);
} // namespace

class VideoCamera : public INDI::CCD
{
public:
    ~VideoCamera() override { StopStreaming(); }

    const char *getDefaultName() override
    {
        const char *const name = std::getenv("VIDEO_CAMERA_NAME");
        return name ? name : "Video Camera";
    }

    bool initProperties() override
    {
        INDI::CCD::initProperties();
        SetCCDCapability(CCD_HAS_STREAMING | CCD_CAN_ABORT);
        PrimaryCCD.setMinMaxStep("CCD_EXPOSURE", "CCD_EXPOSURE_VALUE", 0.001, 60.0, 0.001, false);
        return true;
    }

    bool Connect() override { return true; }
    bool Disconnect() override
    {
        StopStreaming();
        return true;
    }

    bool updateProperties() override
    {
        INDI::CCD::updateProperties();
        if (!isConnected())
            return true;
        SetCCDParams(width, height, 8, 3.75F, 3.75F);
        PrimaryCCD.setFrameBufferSize(width * height);
        Streamer->setPixelFormat(INDI_MONO, 8);
        Streamer->setSize(width, height);
        for (unsigned i = 0; i < width * height; ++i) // noise
            PrimaryCCD.getFrameBuffer()[i] = std::uint8_t(20 + i * 7919U % 13);
        return true;
    }

    bool StartExposure(float seconds) override
    {
        PrimaryCCD.setExposureDuration(seconds);
        timer = SetTimer(std::uint32_t(seconds * 1000.0F));
        return true;
    }
    bool AbortExposure() override
    {
        RemoveTimer(timer);
        return true;
    }
    void TimerHit() override
    {
        if (isConnected())
            ExposureComplete(&PrimaryCCD);
    }

    bool StartStreaming() override
    {
        if (std::getenv("VIDEO_CAMERA_DIES"))
            std::_Exit(1);
        StopStreaming();
        isStreaming = true;
        thread = std::thread([this] {
            auto next = std::chrono::steady_clock::now();
            while (isStreaming) {
                Streamer->newFrame(PrimaryCCD.getFrameBuffer(), width * height);
                next += period;
                std::this_thread::sleep_until(next);
            }
        });
        return true;
    }
    bool StopStreaming() override
    {
        isStreaming = false;
        if (thread.joinable())
            thread.join();
        return true;
    }

private:
    int timer = 0;
    std::atomic<bool> isStreaming{false};
    std::thread thread;
};

static VideoCamera camera;
