// SPDX-License-Identifier: MIT
// What if the maker's library crashes, ends the process or hangs while a command uses it?
#pragma once

#include <chrono>
#include <string>

#include "cameracommand/commandline.h"

/// How long a call of the maker's library may take: some return only with the next frame, and a
/// camera may have to load its firmware as it is opened.
std::chrono::milliseconds patienceFor(const std::string &call, double exposureSeconds);

/// Runs the command where it may load the maker's library in a child process, elsewhere in this
/// one: a library that crashes, ends its process or does not return from a call is reported on
/// standard error with the call. Call it before any thread starts.
/// @return the command's exit status, or `failed`
int runGuarded(int (*command)(const CameraCommandLine &), const CameraCommandLine &wishes);
