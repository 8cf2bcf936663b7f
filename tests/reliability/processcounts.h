// SPDX-License-Identifier: MIT
// What does this process hold: file descriptors, threads, memory?
#pragma once

#include <QDir>
#include <QFile>
#include <QRegularExpression>

/// Open file descriptors, except the one that the counting uses.
inline int openDescriptors()
{
    return int(QDir("/proc/self/fd")
                   .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System)
                   .size()) -
           1;
}

inline int runningThreads()
{
    return int(QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size());
}

/// A line of /proc/self/status by its name, in bytes.
inline qint64 statusBytes(const QString &name)
{
    QFile file("/proc/self/status");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("there is no /proc/self/status");
    const QRegularExpression line(name + ":\\s+(\\d+) kB");
    return line.match(QString::fromLatin1(file.readAll())).captured(1).toLongLong() * 1024;
}

/// The most memory in use since forgetPeakMemory(), bytes.
inline qint64 peakMemory()
{
    return statusBytes("VmHWM");
}

inline void forgetPeakMemory()
{
    QFile file("/proc/self/clear_refs");
    if (!file.open(QIODevice::WriteOnly) || file.write("5") != 1)
        qFatal("the memory peak cannot be reset");
}
