// SPDX-License-Identifier: MIT
// Which lines does the code under test log? Records every message of Qt's logger while it exists.
#pragma once

#include <QList>
#include <QString>
#include <QtGlobal>

struct LogLine {
    QtMsgType type;
    QString text;
};

inline bool operator==(const LogLine &a, const LogLine &b)
{
    return a.type == b.type && a.text == b.text;
}

/// Replaces the message handler from construction to destruction (one at a time). Messages of any
/// thread are kept; the recorder may be read from any thread.
class LogRecorder
{
public:
    LogRecorder();
    ~LogRecorder();
    LogRecorder(const LogRecorder &) = delete;
    LogRecorder &operator=(const LogRecorder &) = delete;

    QList<LogLine> lines() const;
    /// The texts of one type, in the order in which they came.
    QStringList texts(QtMsgType type) const;
    bool contains(QtMsgType type, const QString &text) const;
    void clear();

private:
    QtMessageHandler previous;
};
