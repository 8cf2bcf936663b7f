// SPDX-License-Identifier: MIT
// How many frames did the camera deliver, and what did rendering them cost?
#pragma once

#include <cstdint>

struct Fetches {
    std::uint64_t frames;
    double seconds; ///< processor time in the camera library
};

/// Totals since the start of the process.
Fetches fetches();
