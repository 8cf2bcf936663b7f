// SPDX-License-Identifier: MIT
// Where does this run's log go, and what does a line of it look like?
#pragma once

#include <QString>
#include <QtGlobal>

class QDateTime;

/// Full path of this run's log file with native separators; empty until prepareLogFile.
extern QString logFilePath;

/// Makes the log folder below the user's documents and names this run's file after its start.
/// Folders that can not be made are noticed only when the file can not be opened.
void prepareLogFile(const QDateTime &start);

/// What follows the time in a log line: a tab, the level, a tab, a blank and the message; empty
/// for a type that is not one of Qt's five.
QString levelText(QtMsgType type, const QString &message);

/// Appends one line to the log file, as qInstallMessageHandler takes it. A fatal message ends the
/// process before it is written. The file is opened and closed for each message, without a lock;
/// the lines of several threads come one after the other, each whole.
void logMessageHandler(QtMsgType type, const QMessageLogContext &context, const QString &message);
