// SPDX-License-Identifier: MIT
// What does a command print, and with which exit status does it end?
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <functional>

/// Changes its process between fork and exec.
class PreparedProcess : public QProcess
{
public:
    std::function<void()> prepare;

protected:
    void setupChildProcess() override
    {
        if (prepare)
            prepare();
    }
};

struct Result {
    int status = -1; ///< after a crash
    QString output, errors;
};

inline Result run(const QStringList &arguments, const char *program = CAMERA_PROGRAM,
                  const std::function<void()> &prepare = {})
{
    PreparedProcess process;
    process.prepare = prepare;
    process.start(program, arguments);
    process.waitForFinished(120000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromLocal8Bit(process.readAllStandardOutput()),
            QString::fromLocal8Bit(process.readAllStandardError())};
}
