// SPDX-License-Identifier: MIT
// Is a started program ready for signals, and does it end after one?
#pragma once

#include "tests/support/patience.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <csignal>

/// A shell may have started the tests with SIGINT ignored, which children inherit.
inline void restoreSignals()
{
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        std::signal(number, SIG_DFL);
}

/// Whether the process has a handler of its own for the signal; false if there is no such process.
inline bool handlesSignal(qint64 process, int number)
{
    QFile file(QStringLiteral("/proc/%1/status").arg(process));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    static const QRegularExpression line("SigCgt:\\s+([0-9a-f]+)");
    const QString caught = line.match(QString::fromLatin1(file.readAll())).captured(1);
    return (caught.toULongLong(nullptr, 16) >> (number - 1)) & 1;
}

/// Whether it handles the signal and its first thread sleeps: a program with a window does so in
/// its event loop.
inline bool waitsForSignal(qint64 process, int number)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    return handlesSignal(process, number) && file.open(QIODevice::ReadOnly) &&
           file.readAll().contains(") S ");
}

/// Waits until a process that was sent a signal has ended. The thread sanitizer delays a signal
/// that reaches a thread at a bad moment until that thread's next call, which for an idle thread of
/// Qt's pool is its end after 30 seconds.
inline bool endsAfterSignal(QProcess &process)
{
    return process.waitForFinished(3 * patience);
}
