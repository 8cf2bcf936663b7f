// SPDX-License-Identifier: MIT
// What if the window's thread does not respond when the program is asked to end?
#pragma once

#include <functional>
#include <thread>

/// A thread that ends the process if its window does not: after a signal the window's thread has
/// two seconds to respond to it and then some to close the window. The window's thread may hang in
/// the camera library, which nothing can interrupt.
class EndWatch
{
public:
    /// @param lastSave is called in the watching thread before it ends the process, unless the
    /// window has responded, and then saves by itself. If it does not return within two seconds the
    /// process ends without it, by SIGALRM.
    explicit EndWatch(std::function<void()> lastSave);
    ~EndWatch();
    EndWatch(const EndWatch &) = delete;
    EndWatch &operator=(const EndWatch &) = delete;

    /// Where a signal handler writes the byte `signalCame`; -1 = there is no watch.
    int writeEnd() const { return ends[1]; }
    /// To be called by the window's thread when it begins to close the window after a signal.
    void windowResponds() const;

    static constexpr char signalCame = 's';

private:
    void watch();
    [[noreturn]] void endProcess(bool responded) const;

    std::function<void()> save;
    int ends[2] = {-1, -1}; ///< of the pipe that the thread reads
    std::thread thread;
};
