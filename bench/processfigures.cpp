// SPDX-License-Identifier: MIT
// Reads the process' figures from /proc.
#include "bench/processfigures.h"

#include <QDir>
#include <QFile>
#include <fstream>
#include <stdexcept>
#include <sys/resource.h>
#include <unistd.h>

double clockSeconds(clockid_t clock)
{
    timespec now{};
    clock_gettime(clock, &now);
    return double(now.tv_sec) + 1e-9 * double(now.tv_nsec);
}

double statusMebibytes(const std::string &name)
{
    std::ifstream file("/proc/self/status");
    for (std::string line; std::getline(file, line);)
        if (line.compare(0, name.size() + 1, name + ":") == 0)
            return std::stod(line.substr(name.size() + 1)) / 1024;
    throw std::runtime_error("/proc/self/status has no " + name);
}

long pageFaults()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_minflt;
}

std::map<std::string, double> threadSeconds()
{
    std::map<std::string, double> seconds;
    const QDir tasks(QStringLiteral("/proc/self/task"));
    for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        std::ifstream file(tasks.filePath(task + "/stat").toStdString());
        std::string line;
        if (!std::getline(file, line))
            continue; // the thread has ended
        const std::size_t open = line.find('('), close = line.rfind(')');
        const QStringList fields =
            QString::fromStdString(line.substr(close + 2)).split(QLatin1Char(' '));
        constexpr int userTicks = 11, systemTicks = 12; // proc(5), fields 14 and 15
        seconds[line.substr(open + 1, close - open - 1)] +=
            (fields[userTicks].toDouble() + fields[systemTicks].toDouble()) /
            double(sysconf(_SC_CLK_TCK));
    }
    return seconds;
}
