// SPDX-License-Identifier: MIT
// A camera library that may be loaded once at a time, or that misbehaves as it is loaded or
// unloaded, as the environment says.
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>

namespace
{
bool isWay(const char *way)
{
    const char *const chosen = std::getenv("LOCKING_SDK");
    return chosen && std::strcmp(chosen, way) == 0;
}

const char *lockFile()
{
    const char *const file = std::getenv("LOCKING_SDK_FILE");
    return file ? file : "";
}

void release()
{
    unlink(lockFile());
}

/// Whether the file did not exist.
bool createsFile()
{
    const int file = open(lockFile(), O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (file >= 0)
        close(file);
    return file >= 0;
}

class Holder
{
public:
    ~Holder()
    {
        if (isWay("a static object"))
            release();
    }
} holder;

__attribute__((constructor)) void load()
{
    if (isWay("a throwing constructor"))
        throw std::runtime_error("the library is not licensed");
    if (isWay("a hang at the first load")) {
        const bool isFirst = createsFile();
        while (isFirst)
            pause();
        return;
    }
    // It may be loaded already, in whatever process.
    if (*lockFile() && !createsFile())
        std::abort();
    if (isWay("an exit handler"))
        std::atexit(release);
}

__attribute__((destructor)) void unload()
{
    if (isWay("a destructor"))
        release();
    if (isWay("a crash at the end"))
        std::abort();
    while (isWay("a hang at the end"))
        pause();
}
} // namespace
