// SPDX-License-Identifier: MIT
// What becomes of calls that may crash, end their process or never return?
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

/// What a child process says to its parent, through a pipe.
class ChildReport
{
public:
    explicit ChildReport(int descriptor) : pipe(descriptor) {}

    /// Before a call that may go wrong, its name, or "loading"; null: it has returned.
    void call(const char *name) const;
    void tell(const std::string &line) const;
    void finish(int status) const;

private:
    void write(char mark, std::string text) const;

    const int pipe;
};

struct ChildEnd {
    enum class Fate {
        Returned,  ///< from the work
        Failed,    ///< crashed, ended or hung
        NotStarted ///< there is no child
    };
    Fate fate = Fate::NotStarted;
    int status = 0;                 ///< that the work returned
    std::string fault;              ///< else: "it crashes in ScanVELDIX: Segmentation fault"
    std::string call;               ///< that was under way; empty: none
    std::vector<std::string> lines; ///< told before that
};

/// How long a call may take.
using Patience = std::function<std::chrono::milliseconds(const std::string &call)>;

/// Runs the work in a child process, which then ends by exit(), so that libraries give back what
/// they hold; what they do then does not count. Only calls that the child announced count as
/// hanging. The child ends with its parent. Call it before any thread starts. SIGCHLD is at its
/// default from then on.
ChildEnd runInChild(const std::function<int(const ChildReport &)> &work, const Patience &patience);

/// The same with one patience for all calls.
inline ChildEnd runInChild(const std::function<int(const ChildReport &)> &work,
                           std::chrono::milliseconds patience)
{
    return runInChild(work, [patience](const std::string &) { return patience; });
}
