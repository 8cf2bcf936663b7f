// SPDX-License-Identifier: MIT
// The sky file as it changes: the last good state, and each fault reported once.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <functional>
#include <string>

#include "virtualcamera/skystate.h"

namespace virtualsky
{
/// Not for two threads at a time.
class SkyWatch
{
public:
    using Report = std::function<void(const std::string &)>;

    /// @param report gets one line for every new fault of the file
    SkyWatch(std::string path, Report report);

    /// Looks at the file (one stat where nothing changed). Absent file: the defaults.
    const SkyState &current();

private:
    struct Stamp {
        bool exists = false;
        std::uint64_t device = 0, inode = 0;
        std::int64_t size = 0, seconds = 0, nanoseconds = 0;
        bool operator==(const Stamp &other) const;
    };
    static Stamp stampOf(const std::string &path);
    std::string readText() const;
    void load();

    std::string path;
    Report report;
    SkyState good;
    std::string lastFault; // empty while the file is good
    Stamp stamp;
    bool settled = false; // the file can no longer change without its stamp showing it
};
} // namespace virtualsky
