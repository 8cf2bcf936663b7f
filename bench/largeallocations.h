// SPDX-License-Identifier: MIT
// Who asks the heap for blocks of a frame's size, and how often?
#pragma once

#include <cstddef>
#include <map>
#include <string>

/// A block from this size on counts: a grey frame at half its size.
constexpr std::size_t largeBlock = 640 * 480;

/// Counts from now on. Not before main().
void countLargeAllocations();

/// How often each chain of callers asked since then, for which size; counting ends.
std::map<std::string, int> largeAllocations();
