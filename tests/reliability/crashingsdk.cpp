// SPDX-License-Identifier: MIT
// A camera library that misbehaves while it is loaded, in the way that the environment names.
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

namespace
{
__attribute__((constructor)) void misbehave()
{
    const char *const way = std::getenv("CRASHING_SDK");
    if (!way)
        return;
    if (std::strcmp(way, "abort") == 0)
        std::abort();
    if (std::strcmp(way, "segmentation fault") == 0)
        std::raise(SIGSEGV);
    if (std::strcmp(way, "exit") == 0)
        std::exit(0);
    if (std::strcmp(way, "exit at once") == 0)
        _exit(0);
    while (std::strcmp(way, "hang") == 0)
        pause();
}
} // namespace
