// SPDX-License-Identifier: MIT
// Records every message of Qt's logger.
#include "tests/support/logrecorder.h"

#include <QStringList>
#include <mutex>

namespace
{
// A std::mutex, since the thread sanitizer sees its lock.
std::mutex recordMutex;
QList<LogLine> record;

void recordMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const std::lock_guard<std::mutex> lock(recordMutex);
    record.append({type, text});
}
} // namespace

LogRecorder::LogRecorder()
{
    clear();
    previous = qInstallMessageHandler(recordMessage);
}

LogRecorder::~LogRecorder()
{
    qInstallMessageHandler(previous);
}

QList<LogLine> LogRecorder::lines() const
{
    const std::lock_guard<std::mutex> lock(recordMutex);
    return record;
}

QStringList LogRecorder::texts(QtMsgType type) const
{
    QStringList found;
    for (const LogLine &line : lines())
        if (line.type == type)
            found.append(line.text);
    return found;
}

bool LogRecorder::contains(QtMsgType type, const QString &text) const
{
    return lines().contains({type, text});
}

void LogRecorder::clear()
{
    const std::lock_guard<std::mutex> lock(recordMutex);
    record.clear();
}
