// SPDX-License-Identifier: MIT
// How many frames did the camera give, and what did making them cost?
#pragma once

#include <cstdint>

struct Fetches {
    std::uint64_t frames;
    double seconds; ///< processor time inside the camera library
};

/// Since the start of the process.
Fetches fetches();
