// SPDX-License-Identifier: MIT
// Waits in a thread of its own for the end of the process.
#include "app/endwatch.h"

#include <QtDebug>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <optional>
#include <poll.h>
#include <unistd.h>

namespace
{
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// From the signal on. Together with the save they leave room below five seconds.
constexpr milliseconds timeToRespond(2000);
constexpr milliseconds timeToClose(3500);
constexpr unsigned saveSeconds = 2;

constexpr char windowCloses = 'w';
constexpr char noWatch = 'n';

/// Milliseconds for poll(); negative = no limit.
int remaining(const std::optional<Clock::time_point> &deadline)
{
    if (!deadline)
        return -1;
    const auto left = std::chrono::ceil<milliseconds>(*deadline - Clock::now());
    return int(std::max(left, milliseconds(0)).count());
}
} // namespace

EndWatch::EndWatch(std::function<void()> lastSave) : save(std::move(lastSave))
{
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) == 0)
        thread = std::thread([this] { watch(); });
}

EndWatch::~EndWatch()
{
    if (!thread.joinable())
        return;
    while (write(ends[1], &noWatch, sizeof noWatch) < 0 && errno != EBADF)
        std::this_thread::sleep_for(milliseconds(1)); // until the thread has emptied the pipe
    thread.join();
    close(ends[0]);
    close(ends[1]);
}

void EndWatch::windowResponds() const
{
    if (thread.joinable()) [[maybe_unused]]
        const ssize_t written = write(ends[1], &windowCloses, sizeof windowCloses);
}

void EndWatch::watch()
{
    std::optional<Clock::time_point> signalled, deadline;
    bool responded = false;
    for (;;) {
        pollfd input{ends[0], POLLIN, 0};
        const int ready = poll(&input, 1, remaining(deadline));
        if (ready == 0)
            endProcess(responded);
        char byte = 0;
        while (ready > 0 && read(ends[0], &byte, sizeof byte) == sizeof byte) {
            if (byte == noWatch)
                return;
            if (byte == signalCame && !signalled) {
                signalled = Clock::now();
                deadline = *signalled + timeToRespond;
            } else if (byte == windowCloses && signalled) {
                responded = true;
                deadline = *signalled + timeToClose;
            }
        }
    }
}

void EndWatch::endProcess(bool responded) const
{
    std::signal(SIGALRM, SIG_DFL);
    alarm(saveSeconds);
    if (!responded)
        save();
    qWarning("the program ends by force: its window does not respond");
    std::_Exit(EXIT_SUCCESS);
}
