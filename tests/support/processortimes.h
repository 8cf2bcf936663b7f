// SPDX-License-Identifier: MIT
// How long did other processes keep a thread from running?
#pragma once

#include <QFile>
#include <algorithm>
#include <ctime>

/// What the kernel has counted until now, nanoseconds.
struct ProcessorTimes {
    qint64 queued = 0; ///< in which this thread was ready to run and did not
    qint64 ours = 0;   ///< in which the process' other threads ran, on all processors together

    static ProcessorTimes now()
    {
        const auto clock = [](clockid_t id) {
            timespec time = {};
            ::clock_gettime(id, &time);
            return qint64(time.tv_sec) * 1000000000 + time.tv_nsec;
        };
        QFile file("/proc/thread-self/schedstat"); // time run, time queued, how often
        const qint64 waited =
            file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() : 0;
        return {waited, clock(CLOCK_PROCESS_CPUTIME_ID) - clock(CLOCK_THREAD_CPUTIME_ID)};
    }
};

/// For how long other processes, and surely not our own threads, had the processor for which this
/// thread waited: milliseconds, at least. The kernel does not say which thread another one waited
/// for, so all that our threads ran meanwhile is taken off.
inline qint64 takenByOthers(const ProcessorTimes &before, const ProcessorTimes &after)
{
    return std::max<qint64>(0, after.queued - before.queued - (after.ours - before.ours)) / 1000000;
}
