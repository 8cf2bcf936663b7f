// SPDX-License-Identifier: MIT
// The sky file as it changes: the last valid state, and each fault reported once.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <functional>
#include <string>

#include "virtualcamera/skystate.h"

namespace virtualsky
{
/// Not thread-safe.
class SkyWatch
{
public:
    using Report = std::function<void(const std::string &)>;

    /// @param report is called with one line for each new fault of the file
    SkyWatch(std::string path, Report report);

    /// Checks the file (one stat if nothing has changed). No file means the defaults.
    const SkyState &current();

private:
    struct Stamp {
        bool exists = false;
        std::uint64_t device = 0, inode = 0;
        std::int64_t size = 0, seconds = 0, nanoseconds = 0;
        bool operator==(const Stamp &other) const;
    };
    static Stamp stampOf(const std::string &path);
    void load();

    std::string path;
    Report report;
    SkyState good;
    std::string lastFault; // empty while the file is valid
    Stamp stamp;
    bool settled = false; // any further change of the file will change its timestamp
};
} // namespace virtualsky
