// SPDX-License-Identifier: MIT
// How does a program end that is sent a signal while an operation of its camera library hangs?
#pragma once

#include "tests/support/patience.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <csignal>
#include <memory>
#include <sys/types.h>
#include <vector>

constexpr int longestEnd = 5000; ///< milliseconds from the signal on

/// The operations of the camera library.
constexpr const char *allOperations[] = {
    "InitVELDIXResource", "ScanVELDIX",          "GetVELDIXId",    "OpenVELDIX",
    "SetVELDIXReadMode",  "SetVELDIXStreamMode", "InitVELDIX",     "SetVELDIXBitsMode",
    "SetVELDIXBinMode",   "SetVELDIXResolution", "GetVELDIXParam", "SetVELDIXParam",
    "BeginVELDIXLive",    "GetVELDIXLiveFrame",  "StopVELDIXLive", "CloseVELDIX"};

/// Whether the operation is called only as the camera is closed.
inline bool isCalledAtTheEnd(const QString &operation)
{
    return operation == "StopVELDIXLive" || operation == "CloseVELDIX";
}

/// Where the program keeps its settings.
inline QString settingsBeside(const QString &executable)
{
    return QFileInfo(executable).absolutePath() + "/Quorvandel.ini";
}

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

    bool hasSaved() const { return QFile::exists(settingsBeside(file)); }

    void send(int number)
    {
        timer.start();
        ::kill(pid_t(process.processId()), number);
    }

    /// Whether it ends with status 0 within `milliseconds` of the signal.
    bool endsBy(int milliseconds)
    {
        const bool hasEnded = process.waitForFinished(patience);
        took = timer.elapsed();
        errors += process.readAllStandardError();
        errors += "\nmilliseconds to its end: " + QByteArray::number(took);
        return hasEnded && took < milliseconds && process.exitStatus() == QProcess::NormalExit &&
               process.exitCode() == 0;
    }

    QByteArray errors; ///< what it wrote on standard error
    qint64 took = 0;   ///< milliseconds from the signal to its end

private:
    const QString file;
    QTemporaryDir home;
    QProcess process;
    QElapsedTimer timer; ///< since the signal
};

/// A program with the moment of its signal, and what came of it.
struct HangingRun {
    std::unique_ptr<HangingProgram> program;
    QByteArray sign; ///< of the moment to send the signal
    int number = 0;  ///< of the signal
    bool reached = false, ended = false;
    bool savedEarly = false; ///< before the signal
};

/// Runs up to eight programs at a time: they wait nearly all the time, but they end at the same
/// time, which takes the processor.
inline void runTogether(std::vector<HangingRun> &runs, const QStringList &options = {})
{
    constexpr std::size_t atOnce = 8;
    for (std::size_t first = 0; first < runs.size(); first += atOnce) {
        const std::size_t end = std::min(first + atOnce, runs.size());
        const auto each = [&](const auto &action) {
            for (std::size_t i = first; i < end; ++i)
                action(runs[i]);
        };
        each([&](HangingRun &run) { run.program->start(options); });
        each([](HangingRun &run) { run.reached = run.program->reaches(run.sign); });
        each([](HangingRun &run) { run.savedEarly = run.program->hasSaved(); });
        each([](HangingRun &run) { run.program->send(run.number); });
        each([](HangingRun &run) { run.ended = run.program->endsBy(longestEnd); });
    }
    qint64 longest = 0;
    for (const HangingRun &run : runs)
        longest = std::max(longest, run.program->took);
    qInfo("the slowest of %zu ends took %lld ms", runs.size(), static_cast<long long>(longest));
}
