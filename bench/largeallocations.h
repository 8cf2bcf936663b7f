// SPDX-License-Identifier: MIT
// Which code allocates heap blocks of a frame's size, and how often?
#pragma once

#include <cstddef>
#include <map>
#include <string>

/// Smallest block that counts: a grey frame at half its size.
constexpr std::size_t largeBlock = 640 * 480;

/// Starts counting. Must not be called before main().
void countLargeAllocations();

/// Stops counting; returns the number of requests per call chain and size.
std::map<std::string, int> largeAllocations();
