// SPDX-License-Identifier: MIT
// What time is it, and was the computer's clock set while the alignment went on?
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace assistant
{
/// A smaller step than this, seconds, is no cause for alarm: the axis needs its frames' times to a
/// second or two.
inline constexpr double noticedClockStep = 2.0;

/// Compares the computer's clock with one that nobody sets, from frame to frame, so that a clock
/// that is slowed down or sped up over hours does not count.
class ClockWatch
{
public:
    /// @return by how many seconds the clock was set since the last call; 0: not
    double step(double utcSeconds, double steadySeconds);

private:
    std::optional<double> offset; // utc minus steady
};

/// Where times come from. Each may be called from any thread.
struct Clocks {
    std::function<double()> utc; ///< the computer's clock, seconds since 1970
    /// Seconds of a clock that nobody sets, and that a suspend does not stop.
    std::function<double()> steady;
    /// Whether the computer's clock is known to be right: so says the kernel, and the hardware's
    /// clock does not contradict it.
    std::function<bool()> synchronised;
    double certainPast = 0.0; ///< seconds since 1970: a moment that has passed; 0: none is known
    /// Whether the hardware's clock confirms the computer's.
    std::function<bool()> confirmed;
};

/// Whether the kernel counts the computer's clock as synchronised; true where it cannot say.
bool isClockSynchronised();

/// What the system says of its clocks.
struct ClockSources {
    std::string hardware = "/sys/class/rtc/rtc0/since_epoch"; ///< as for `hardwareTime`
    std::function<bool()> kernel = isClockSynchronised;
};

/// The moment that has passed is the newest of `datedFiles`, read once.
Clocks systemClocks(const ClockSources &sources = {});

/// A clock may read so many seconds less than a file's date: some file systems keep local time.
inline constexpr double datesSlack = 3600.0;

/// Whether a clock is certainly wrong: it reads a time before a moment that has passed. So do
/// computers that keep no time while they are switched off.
/// @param certainPast seconds since 1970; 0: none is known
bool isBehind(double utcSeconds, double certainPast);

/// By how many seconds a hardware clock that keeps local time may differ from UTC, with an hour of
/// slack: zones go from 12 hours behind to 14 ahead.
inline constexpr double zonesSlack = 15.0 * 3600.0;

/// Whether the computer's clock and the hardware's cannot both be right: they differ by more than a
/// time zone does. Says nothing if the hardware's lost its time, as one without a battery.
/// @param hardware as by `hardwareTime` @param certainPast seconds since 1970; 0: none is known
bool contradicts(double utcSeconds, std::optional<double> hardware, double certainPast);

/// Whether both clocks agree to `datesSlack`, the hardware's in UTC or in local time, and it did
/// not lose its time. Files that were written while the computer's clock was ahead then prove
/// nothing.
/// @param hardware as by `hardwareTime` @param built seconds since 1970: the program's date, which
/// a hardware clock that lost its time does not reach; 0: not known @param zone seconds east of UTC
bool confirms(double utcSeconds, std::optional<double> hardware, double built, double zone);

/// Seconds since 1970 in the kernel's file of a hardware clock, UTC or local time, as the computer
/// keeps it; nothing if it cannot be read.
std::optional<double> hardwareTime(const std::string &file);

/// Files that were written in the past: this program, its settings, and what the system writes when
/// programs are installed or its clock is synchronised.
std::vector<std::string> datedFiles();

/// The latest date of change of those of the files that are there, seconds since 1970; 0: none.
double newestDate(const std::vector<std::string> &paths);

/// By the result of `adjtimex`: a failure, -1, says nothing of the clock.
bool saysSynchronised(int state);
} // namespace assistant
