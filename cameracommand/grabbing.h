// SPDX-License-Identifier: MIT
// Which camera gives the frames, and how long is waited for them?
#pragma once

#include <memory>
#include <string>

#include "cameracommand/commandline.h"
#include "framesources/nativecamera.h"
#include "framesources/settings.h"

/// The address that the command line, the environment or the sky file names; nothing = whatever
/// camera library the program would load.
std::optional<framesources::SourceSettings> chosenSource(const CameraCommandLine &wishes);

/// That camera; it reports on standard error. Null, with a message, if there is none.
std::unique_ptr<framesources::NativeCamera>
openCamera(const CameraCommandLine &wishes,
           const std::optional<framesources::SourceSettings> &source);

/// Waits for a frame, at most twice the exposure and half a minute, or eight seconds without a
/// camera; nothing, with a message, if none comes.
std::optional<framesources::NativeFrame> awaitFrame(framesources::NativeCamera &camera,
                                                    const CameraCommandLine &wishes);

/// One line on standard error, with the program's name.
void complain(const std::string &text);
