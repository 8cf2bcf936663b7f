// SPDX-License-Identifier: MIT
// Opens a camera as the program does, and fetches its frames.
#include "cameracommand/operationscamera.h"

#include <chrono>
#include <cstdint>
#include <thread>

#include "camera/cameraopening.h"
#include "camera/veldix.h"

namespace
{
constexpr std::uint32_t width = 1280, height = 960;
} // namespace

OperationsCamera::OperationsCamera(framesources::Report reportLine)
    : report(std::move(reportLine)), buffer(std::size_t(width) * height * 3)
{
    if (InitVELDIXResource() != 0)
        report("the camera library cannot be used");
    else if (!open())
        report("there is no camera, or it cannot be opened");
}

bool OperationsCamera::open()
{
    const std::vector<std::string> ids = findCameras(1);
    handle = ids.empty() ? nullptr : OpenVELDIX(ids.front().c_str());
    if (!handle)
        return false;
    const bool live = SetVELDIXReadMode(handle, 0) != veldixError &&
                      SetVELDIXStreamMode(handle, 1) == 0 && InitVELDIX(handle) == 0 &&
                      SetVELDIXBitsMode(handle, 8) == 0 && SetVELDIXBinMode(handle, 1, 1) == 0 &&
                      SetVELDIXResolution(handle, 0, 0, width, height) == 0 &&
                      BeginVELDIXLive(handle) == 0;
    if (live)
        return true;
    CloseVELDIX(handle);
    handle = nullptr;
    return false;
}

OperationsCamera::~OperationsCamera()
{
    if (!handle)
        return;
    StopVELDIXLive(handle);
    CloseVELDIX(handle);
}

std::optional<framesources::NativeFrame> OperationsCamera::next(const framesources::Wish &wish)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
    if (!handle)
        return std::nullopt;
    if (wish.exposureSeconds != exposure)
        SetVELDIXParam(handle, CONTROL_EXPOSURE, wish.exposureSeconds * 1e6);
    if (wish.gain != gain)
        SetVELDIXParam(handle, CONTROL_GAIN, wish.gain);
    exposure = wish.exposureSeconds;
    gain = wish.gain;
    std::uint32_t w = 0, h = 0, bits = 0, channels = 0;
    if (GetVELDIXLiveFrame(handle, &w, &h, &bits, &channels, buffer.data()) != 0)
        return std::nullopt;
    if (w == 0 || h == 0 || w > width || h > height || (channels != 1 && channels != 3))
        return std::nullopt;
    framesources::NativeFrame frame;
    frame.pixels =
        cv::Mat(int(h), int(w), channels == 1 ? CV_8UC1 : CV_8UC3, buffer.data()).clone();
    frame.sensor = frame.pixels.size();
    return frame;
}
