// SPDX-License-Identifier: MIT
// What if the maker's library crashes, ends the process or hangs while a command uses it?
#pragma once

#include "cameracommand/commandline.h"

/// Runs the command where it may load the maker's library in a child process, elsewhere in this
/// one: a library that crashes, ends its process or does not return from a call is reported on
/// standard error with the call. Call it before any thread starts.
/// @return the command's exit status, or `failed`
int runGuarded(int (*command)(const CameraCommandLine &), const CameraCommandLine &wishes);
