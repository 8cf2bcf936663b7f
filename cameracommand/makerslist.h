// SPDX-License-Identifier: MIT
// Which cameras does the maker's library find, whatever else it does to its process?
#pragma once

#include <chrono>
#include <string>
#include <vector>

struct MakersList {
    std::vector<std::string> lines; ///< an ID each, or what is wrong
    int usable = 0;                 ///< cameras
};

/// Loads the library in a child process and asks it there: one that crashes, ends its process or
/// hangs in a call (for ten seconds) is reported with the name of the call. Call it before any
/// thread starts.
/// @param library a path, or a name that the loader finds
/// @param patience for each call
MakersList listMakersCameras(const char *library,
                             std::chrono::milliseconds patience = std::chrono::seconds(10));
