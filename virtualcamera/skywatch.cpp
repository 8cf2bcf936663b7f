// SPDX-License-Identifier: MIT
// Follows changes of the sky file.
#include "virtualcamera/skywatch.h"

#include <sys/stat.h>

#include <cmath>
#include <ctime>
#include <tuple>

#include "virtualcamera/skyfile.h"

namespace virtualsky
{
namespace
{
// File timestamps have a resolution of some milliseconds: a timestamp younger than this may hide a
// second change of the same length.
constexpr double stampDoubtSeconds = 0.1;

double secondsNow()
{
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}
} // namespace

SkyWatch::SkyWatch(std::string filePath, Report faultReport)
    : path(std::move(filePath)), report(std::move(faultReport))
{
}

bool SkyWatch::Stamp::operator==(const Stamp &o) const
{
    return std::tie(exists, device, inode, size, seconds, nanoseconds) ==
           std::tie(o.exists, o.device, o.inode, o.size, o.seconds, o.nanoseconds);
}

SkyWatch::Stamp SkyWatch::stampOf(const std::string &path)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0)
        return {};
    Stamp stamp;
    stamp.exists = true;
    stamp.device = static_cast<std::uint64_t>(status.st_dev);
    stamp.inode = static_cast<std::uint64_t>(status.st_ino);
    stamp.size = static_cast<std::int64_t>(status.st_size);
    stamp.seconds = static_cast<std::int64_t>(status.st_mtim.tv_sec);
    stamp.nanoseconds = static_cast<std::int64_t>(status.st_mtim.tv_nsec);
    return stamp;
}

void SkyWatch::load()
{
    if (!stamp.exists) {
        good = SkyState();
        lastFault.clear();
        return;
    }
    try {
        good = parse(readText(path));
        lastFault.clear();
    } catch (const SkyFileError &error) {
        if (lastFault == error.what())
            return;
        lastFault = error.what();
        report(path + ": " + lastFault + "; the sky stays as it was");
    }
}

const SkyState &SkyWatch::current()
{
    const Stamp now = stampOf(path);
    if (settled && now == stamp)
        return good;
    stamp = now;
    const double changed =
        static_cast<double>(stamp.seconds) + static_cast<double>(stamp.nanoseconds) * 1e-9;
    settled = !stamp.exists || std::abs(secondsNow() - changed) > stampDoubtSeconds;
    load();
    return good;
}
} // namespace virtualsky
