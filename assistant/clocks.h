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
    std::function<bool()> synchronised; ///< whether the computer's clock is known to be right
    double certainPast = 0.0; ///< seconds since 1970: a moment that has passed; 0: none is known
};
/// The moment that has passed is the newest of `datedFiles`, read once.
Clocks systemClocks();

/// A clock may read so many seconds less than a file's date: some file systems keep local time.
inline constexpr double datesSlack = 3600.0;

/// Whether a clock is certainly wrong: it reads a time before a moment that has passed. So do
/// computers that keep no time while they are switched off.
/// @param certainPast seconds since 1970; 0: none is known
bool isBehind(double utcSeconds, double certainPast);

/// Files that were written in the past: this program, its settings, and what the system writes when
/// programs are installed or its clock is synchronised.
std::vector<std::string> datedFiles();

/// The latest date of change of those of the files that are there, seconds since 1970; 0: none.
double newestDate(const std::vector<std::string> &paths);

/// By the result of `adjtimex`: a failure, -1, says nothing of the clock.
bool saysSynchronised(int state);

/// Whether the kernel counts the computer's clock as synchronised; true where it cannot say.
bool isClockSynchronised();
} // namespace assistant
