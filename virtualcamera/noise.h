// SPDX-License-Identifier: MIT
// Repeatable noise: random numbers and a table of the normal distribution.
#pragma once

#include <cstdint>
#include <vector>

namespace virtualsky
{
/// SplitMix64 (Steele, Lea, Flood 2014): 64 random bits per call; any seed is valid.
class RandomBits
{
public:
    explicit RandomBits(std::uint64_t seed) : state(seed) {}
    std::uint64_t next()
    {
        state += 0x9e3779b97f4a7c15u;
        std::uint64_t z = state;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
        return z ^ (z >> 31);
    }
    /// In [0, 1).
    double uniform() { return static_cast<double>(next() >> 11) * 0x1p-53; }

private:
    std::uint64_t state;
};

/// 65536 values of the normal distribution (mean 0, sigma 1, largest 4.3): a random 16-bit index
/// selects one. Built on the first call, thread-safe.
const std::vector<float> &normalTable();

/// Independent seeds for frame `number` and for the sensor's fixed pattern (number 0).
std::uint64_t frameSeed(std::uint32_t seed, std::uint64_t number);
} // namespace virtualsky
