// SPDX-License-Identifier: MIT
// What is known of the one camera, and which thread may touch which part of it?
#pragma once

#include "camera/relaxed.h"
#include "camera/veldix.h"

#include <QMutex>
#include <array>
#include <cstdint>
#include <memory>

/// Frame size in pixels that the program asks the camera for.
constexpr std::uint32_t frameWidthDefault = 1280;
constexpr std::uint32_t frameHeightDefault = 960;
/// Bytes of a frame buffer: the full frame with three 8-bit channels.
constexpr std::size_t frameBufferSize = std::size_t(frameWidthDefault) * frameHeightDefault * 3;

using FrameBuffer = std::array<std::uint8_t, frameBufferSize>;

/// The process-wide camera record, zero-filled at program load and given its defaults by
/// setCameraDefaults. Everything belongs to the GUI thread but for what its group says.
struct CameraState {
    Relaxed<bool> sdkReady;        ///< InitVELDIXResource succeeded
    Relaxed<bool> cameraConnected; ///< a camera is open and initialised; the capture thread reads
    char cameraId[longestIdSize] = {}; ///< NUL-terminated ID of the camera found
    double exposure = 0;               ///< microseconds
    double gain = 0;                   ///< camera units
    double speed = 0;                  ///< 0 to 2
    double usbTraffic = 0;             ///< 0 to 255
    std::uint32_t bits = 0;
    std::uint32_t binX = 0, binY = 0;
    std::uint32_t streamMode = 0; ///< 1 = live video; the low byte is passed on
    std::uint32_t roiX = 0, roiY = 0, roiWidth = 0, roiHeight = 0;

    /// BeginVELDIXLive has succeeded for this capture loop, which writes; the GUI reads.
    Relaxed<bool> liveMode;

    // Of the latest frame: the capture thread writes, the GUI reads.
    Relaxed<std::uint32_t> frameWidth, frameHeight, frameBpp, frameChannels;

    /// The pixels of the frame being fetched: the capture thread's alone.
    std::unique_ptr<FrameBuffer> frameBuffer;
    /// The pixels of the latest whole frame, over which rawFrame lies: the two buffers change
    /// places under rawFrameMutex after every fetch.
    std::unique_ptr<FrameBuffer> latestBuffer;

    // Under fpsMutex. Milliseconds since the epoch, cut to 32 bits; the last frame's rate.
    std::int32_t lastFrameTime = 0, thisFrameTime = 0;
    std::int32_t fpsWhole = 0, fpsTenths = 0;
};

extern CameraState cameraState;

/// The open camera; null when none is. The GUI thread writes it, under handleMutex when a capture
/// loop may be using it.
extern Relaxed<void *> cameraHandle;
/// Held by the capture thread around each of its calls on the handle, and by the GUI thread while
/// it stops and closes: so no call meets a closed handle, and closing waits for one fetch at most.
extern QMutex handleMutex;
/// How long the GUI thread waits for a call of the capture thread's, milliseconds: far longer than
/// any frame takes, so that a library that does not return is told from a slow one.
constexpr int longestCall = 10000;
/// Guards lastFrameTime, thisFrameTime, fpsWhole and fpsTenths.
extern QMutex fpsMutex;

/// The values that hold before a camera is connected; makes the frame buffers.
void setCameraDefaults(CameraState &state);

/// The frame rate in whole frames a second and tenths.
struct FrameRate {
    std::int32_t whole;
    std::int32_t tenths;
};

/// The rate of one frame that came `elapsedMilliseconds` after the one before, both parts cut
/// towards zero. No time at all is an infinite rate: both parts saturate.
FrameRate frameRate(std::int32_t elapsedMilliseconds);

/// The low 32 bits of a time in milliseconds since the epoch, as a signed number.
std::int32_t cutTo32Bits(std::int64_t milliseconds);

/// later - earlier of two times cut to 32 bits, also across the wrap of the cut.
std::int32_t elapsedBetween(std::int32_t earlier, std::int32_t later);
