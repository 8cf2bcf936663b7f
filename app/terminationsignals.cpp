// SPDX-License-Identifier: MIT
// Forwards a signal through pipes to the event loop and to the watch.
#include "app/terminationsignals.h"

#include "app/endwatch.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QWidget>
#include <QtDebug>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace
{
constexpr int closingSignals[] = {SIGTERM, SIGINT, SIGHUP};

/// Where the handler writes to, for the event loop and for the watch; -1 = nowhere.
std::atomic<int> writeEnd{-1}, watchEnd{-1};
std::atomic<int> running{0}; // handlers, in any thread
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler must not wait for a lock");

/// The signal handler: calls only async-signal-safe functions and preserves errno.
void passOn(int)
{
    const int before = errno;
    ++running;
    // If a pipe is full, the bytes in it are enough. The watch must know before the window does.
    for (const int end : {watchEnd.load(), writeEnd.load()})
        [[maybe_unused]] const ssize_t written =
            write(end, &EndWatch::signalCame, sizeof EndWatch::signalCame);
    --running;
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
    begin();
    closeWindow(window);
}

TerminationSignals::TerminationSignals(std::function<void()> lastSave)
    : watch(std::make_unique<EndWatch>(std::move(lastSave)))
{
    begin();
}

void TerminationSignals::begin()
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
        qWarning("no pipe for signals: they will end the program without saving the settings");
        return;
    }
    readEnd = ends[0];
    writeEnd = ends[1];
    watchEnd = watch ? watch->writeEnd() : -1;
    handleWith(passOn);
}

void TerminationSignals::closeWindow(QWidget &window, const std::function<void()> &hurry)
{
    if (readEnd < 0)
        return;
    auto *const notifier = new QSocketNotifier(readEnd, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, &window, [this, &window, hurry] {
        char bytes[64];
        while (read(readEnd, bytes, sizeof bytes) > 0)
            continue;
        if (watch)
            watch->windowResponds();
        if (hurry)
            hurry();
        // A message box without a parent that waits for an answer would keep the event loop
        // running.
        if (window.close())
            QCoreApplication::quit();
    });
}

TerminationSignals::~TerminationSignals()
{
    if (readEnd < 0)
        return;
    handleWith(SIG_DFL);
    watchEnd = -1;
    const int end = writeEnd.exchange(-1);
    while (running != 0) // in another thread, between reading an end and writing to it
        std::this_thread::yield();
    close(end);
    close(readEnd);
}
