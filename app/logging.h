// SPDX-License-Identifier: MIT
// Where is the log of this run written, and what does a line look like?
#pragma once

#include <QString>
#include <QtGlobal>

class QDateTime;

/// Full path of this run's log file with native separators; empty until prepareLogFile.
extern QString logFilePath;

/// Creates the log folder in the user's documents folder and names this run's file after its start
/// time. Folders that cannot be created are noticed only when the file cannot be opened.
void prepareLogFile(const QDateTime &start);

/// The part of a log line after the time: a tab, the level, a tab, a space and the message; empty
/// for a type that is not one of Qt's five.
QString levelText(QtMsgType type, const QString &message);

/// A handler for qInstallMessageHandler that appends one line to the log file. A fatal message
/// aborts the process without being written. The file is opened and closed for each message,
/// without a lock; lines of several threads are never interleaved.
void logMessageHandler(QtMsgType type, const QMessageLogContext &context, const QString &message);
