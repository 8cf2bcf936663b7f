// SPDX-License-Identifier: MIT
// What can the camera maker's library do, and how does the program call it?
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

/// The library's error value; every operation that returns a status gives 0 for success.
constexpr std::uint32_t veldixError = 0xFFFFFFFFu;

enum VeldixControl : std::int32_t {
    CONTROL_GAIN = 6,       ///< camera units
    CONTROL_EXPOSURE = 8,   ///< microseconds
    CONTROL_SPEED = 9,      ///< 0 to 2
    CONTROL_USBTRAFFIC = 12 ///< 0 to 255; larger values slow down the frames
};

/// The maker's library, by the name that the loader finds.
inline constexpr char makersLibrary[] = "libveldix.so.20";

/// Size of a camera ID in bytes, including the NUL.
constexpr int veldixIdSize = 38;
/// Size of the longest ID that is accepted nevertheless, in bytes, including the NUL: the library
/// gets it back in full.
constexpr int maxIdSize = 256;

// The sixteen operations of the Camera SDK, each forwarded to the library that InitVELDIXResource
// loaded. All may be called from any thread. Before a successful InitVELDIXResource they fail and
// return veldixError, no camera, a null handle or 0. So does an operation that throws an exception,
// which is logged; once for a series of calls that all throw.

/// Loads the library (see librariesToTry) and initialises it; 0 = ready. A library that is missing,
/// lacks a function or cannot be loaded is reported in a critical log line. One that exists but
/// cannot be loaded counts as a library without cameras: the result is 0.
std::uint32_t InitVELDIXResource();
/// Calls `observer` on the thread of each later operation: before the call into the library with
/// the operation's name, after it with null. Call it before any thread starts.
void observeCalls(void (*observer)(const char *operation));
/// Why the library cannot be used, for a person; empty if it can. For the thread that called
/// InitVELDIXResource.
QString libraryFault();
/// Number of cameras; 0 or negative = none.
std::int32_t ScanVELDIX();
/// 0 = `id` holds the NUL-terminated ID of camera `index`, at most veldixIdSize bytes.
std::uint32_t GetVELDIXId(std::int32_t index, char *id);
/// A handle, or null.
void *OpenVELDIX(const char *id);
/// Only veldixError counts as a failure.
std::uint32_t SetVELDIXReadMode(void *handle, std::uint32_t mode);
/// Mode 1 = live video.
std::uint32_t SetVELDIXStreamMode(void *handle, std::uint8_t mode);
std::uint32_t InitVELDIX(void *handle);
std::uint32_t SetVELDIXBitsMode(void *handle, std::uint32_t bits);
std::uint32_t SetVELDIXBinMode(void *handle, std::uint32_t x, std::uint32_t y);
std::uint32_t SetVELDIXResolution(void *handle, std::uint32_t x, std::uint32_t y,
                                  std::uint32_t width, std::uint32_t height);
double GetVELDIXParam(void *handle, std::int32_t control);
std::uint32_t SetVELDIXParam(void *handle, std::int32_t control, double value);
std::uint32_t BeginVELDIXLive(void *handle);
/// 0 = a new frame is in `buffer`; anything else = no new frame.
std::uint32_t GetVELDIXLiveFrame(void *handle, std::uint32_t *width, std::uint32_t *height,
                                 std::uint32_t *bpp, std::uint32_t *channels, std::uint8_t *buffer);
std::uint32_t StopVELDIXLive(void *handle);
std::uint32_t CloseVELDIX(void *handle);

/// The libraries to try; the first that exists is used. First the name for the loader's search
/// path, then the program's virtual camera in its private folder.
/// @param applicationFolder folder of the executable, absolute
QStringList librariesToTry(const QString &applicationFolder);
