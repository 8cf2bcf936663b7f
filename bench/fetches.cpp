// SPDX-License-Identifier: MIT
// Intercepts the capture thread's calls of the camera library's frame operation (linker option
// --wrap) and counts them.
#include "bench/fetches.h"

#include "bench/processfigures.h"

#include <atomic>
#include <ctime>

namespace
{
std::atomic<std::uint64_t> frames;
std::atomic<std::uint64_t> nanoseconds;
} // namespace

std::uint32_t realFetch(void *handle, std::uint32_t *width, std::uint32_t *height,
                        std::uint32_t *bpp, std::uint32_t *channels,
                        std::uint8_t *buffer) asm("__real__Z18GetVELDIXLiveFramePvPjS0_S0_S0_Ph");
std::uint32_t
countedFetch(void *handle, std::uint32_t *width, std::uint32_t *height, std::uint32_t *bpp,
             std::uint32_t *channels,
             std::uint8_t *buffer) asm("__wrap__Z18GetVELDIXLiveFramePvPjS0_S0_S0_Ph");

std::uint32_t countedFetch(void *handle, std::uint32_t *width, std::uint32_t *height,
                           std::uint32_t *bpp, std::uint32_t *channels, std::uint8_t *buffer)
{
    const double before = clockSeconds(CLOCK_THREAD_CPUTIME_ID);
    const std::uint32_t status = realFetch(handle, width, height, bpp, channels, buffer);
    nanoseconds += std::uint64_t(1e9 * (clockSeconds(CLOCK_THREAD_CPUTIME_ID) - before));
    if (status == 0)
        ++frames;
    return status;
}

Fetches fetches()
{
    return {frames, 1e-9 * double(nanoseconds)};
}
