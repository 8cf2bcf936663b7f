// SPDX-License-Identifier: MIT
// Forwards a signal through a pipe to the event loop.
#include "app/terminationsignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QWidget>
#include <QtDebug>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace
{
constexpr int closingSignals[] = {SIGTERM, SIGINT, SIGHUP};

/// Where the handler writes to; -1 = nowhere.
std::atomic<int> writeEnd{-1};
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler must not wait for a lock");

/// The signal handler: calls only async-signal-safe functions and preserves errno.
void passOn(int)
{
    const int before = errno;
    const char byte = 0;
    // If the pipe is full, the bytes in it are enough to close the window.
    [[maybe_unused]] const ssize_t written = write(writeEnd, &byte, sizeof byte);
    errno = before;
}

void handleWith(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int number : closingSignals) {
        struct sigaction before = {};
        sigaction(number, nullptr, &before);
        if (before.sa_handler != SIG_IGN) // nohup, for example, ignores SIGHUP
            sigaction(number, &action, nullptr);
    }
}
} // namespace

TerminationSignals::TerminationSignals(QWidget &window)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
        qWarning("no pipe for signals: they will end the program without saving the settings");
        return;
    }
    readEnd = ends[0];
    writeEnd = ends[1];
    auto *const notifier = new QSocketNotifier(readEnd, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, &window, [this, &window] {
        char bytes[64];
        while (read(readEnd, bytes, sizeof bytes) > 0)
            continue;
        // A message box without a parent that waits for an answer would keep the event loop
        // running.
        if (window.close())
            QCoreApplication::quit();
    });
    handleWith(passOn);
}

TerminationSignals::~TerminationSignals()
{
    if (readEnd < 0)
        return;
    handleWith(SIG_DFL);
    close(writeEnd.exchange(-1));
    close(readEnd);
}
