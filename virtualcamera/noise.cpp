// SPDX-License-Identifier: MIT
// Quantiles of the normal distribution, and seeds.
#include "virtualcamera/noise.h"

#include <cmath>
#include <cstddef>

namespace virtualsky
{
namespace
{
constexpr std::size_t tableSize = 65536;

std::vector<float> makeNormalTable()
{
    // Integrates dz/dp = sqrt(2 pi) exp(z^2 / 2) outwards from the median by Newton steps.
    std::vector<float> table(tableSize);
    double z = 0.0;
    for (std::size_t i = tableSize / 2; i < tableSize; ++i) {
        const double p = (static_cast<double>(i) + 0.5) / static_cast<double>(tableSize);
        for (int step = 0; step < 4; ++step) {
            const double tail = 0.5 * std::erfc(z / std::sqrt(2.0));
            z += (tail - (1.0 - p)) * 2.5066282746310002 * std::exp(0.5 * z * z);
        }
        table[i] = static_cast<float>(z);
        table[tableSize - 1 - i] = static_cast<float>(-z);
    }
    return table;
}
} // namespace

const std::vector<float> &normalTable()
{
    static const std::vector<float> *const table = new std::vector<float>(makeNormalTable());
    return *table;
}

std::uint64_t frameSeed(std::uint32_t seed, std::uint64_t number)
{
    RandomBits mixer((static_cast<std::uint64_t>(seed) << 32) ^ (number * 0xd1342543de82ef95u));
    return mixer.next();
}
} // namespace virtualsky
