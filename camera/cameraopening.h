// SPDX-License-Identifier: MIT
// Which cameras are there, and how is one opened and set up?
//
// The library is called on the calling thread, which is then the one that closes the camera.
#pragma once

#include "camera/session.h"

#include <cstdint>
#include <string>
#include <vector>

/// More cameras than can be connected. If a library reports more, the other IDs are not read.
constexpr std::int32_t maxCameras = 1024;

/// The IDs of the cameras of our model (QUORVANDEL-serial), in the library's order. An ID that is
/// too long to be given back to the library is left out, with a critical log line.
/// @param most the search ends after so many
std::vector<std::string> findCameras(std::size_t most);

enum class OpeningResult {
    Opened,
    NoHandle,          ///< OpenVELDIX failed: no camera is open
    StreamModeRefused, ///< the camera stays open
    NotInitialised     ///< InitVELDIX failed: the camera stays open
};

/// Opens and initialises the camera with the ID in `session.camera`. Failures are logged.
OpeningResult openCamera(CameraSession &session);

/// Sets frame format and transfer, and reads exposure and gain; a setting that the camera refuses
/// stays unchanged.
void configureCamera(CameraSession &session);
