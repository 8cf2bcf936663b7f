// SPDX-License-Identifier: MIT
// How does a program end that is sent a signal while an operation of its camera library hangs?
#pragma once

#include "tests/support/patience.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <csignal>
#include <sys/types.h>

/// A program in a home of its own, with the library of hangingsdk.cpp.
class HangingProgram
{
public:
    /// @param operation the one that hangs
    /// @param then what the user does while the camera is live; empty: nothing
    /// @param executable its settings are beside it
    HangingProgram(const QString &operation, const QString &then,
                   const QString &executable = QStringLiteral(PROGRAM_FILE))
        : file(executable)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", home.path());
        environment.insert("XDG_CONFIG_HOME", home.path() + "/config");
        environment.insert("QT_LOGGING_TO_CONSOLE", "1");
        environment.insert("LD_LIBRARY_PATH", HANGING_FOLDER);
        environment.insert("HANGING_SDK", operation);
        environment.insert("HANGING_SDK_THEN", then);
        process.setProcessEnvironment(environment);
        process.setReadChannel(QProcess::StandardError);
    }

    void start(const QStringList &options = {}) { process.start(file, options); }

    /// Whether it writes `sign` on standard error.
    bool reaches(const QByteArray &sign)
    {
        while (!errors.contains(sign) && process.waitForReadyRead(patience))
            errors += process.readAllStandardError();
        return errors.contains(sign);
    }

    void send(int number)
    {
        timer.start();
        ::kill(pid_t(process.processId()), number);
    }

    /// Whether it ends with status 0 within `milliseconds` of the signal.
    bool endsBy(int milliseconds)
    {
        const bool hasEnded = process.waitForFinished(patience);
        const qint64 took = timer.elapsed();
        errors += process.readAllStandardError();
        errors += "\nmilliseconds to its end: " + QByteArray::number(took);
        return hasEnded && took < milliseconds && process.exitStatus() == QProcess::NormalExit &&
               process.exitCode() == 0;
    }

    QByteArray errors; ///< what it wrote on standard error

private:
    const QString file;
    QTemporaryDir home;
    QProcess process;
    QElapsedTimer timer; ///< since the signal
};
