// SPDX-License-Identifier: MIT
// How do frames by INDI hold out over many losses, and what does a stream cost? Not run by ctest:
// `indireport cycles N` and `indireport stream SECONDS`, with indi-bin installed. Fails where a bar
// is missed.
#include <QCoreApplication>
#include <QFile>
#include <QRandomGenerator>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <sys/resource.h>
#include <vector>

#include "tests/indi/cuttingproxy.h"
#include "tests/indi/hostileserver.h"
#include "tests/indi/indiserver.h"
#include "tests/indi/indisource.h"
#include "tests/reliability/processcounts.h"

namespace
{
constexpr qint64 returnBar = 5000;   // milliseconds from the server's return to a frame
constexpr qint64 callBar = 100;      // milliseconds of any call
constexpr long memoryBar = 8000;     // kilobytes more at the end, of whole frames some six
constexpr double rateBar = 25.0;     // frames a second
constexpr double processorBar = 0.5; // of a core

/// Says whether a bar is kept.
bool keeps(const char *what, bool isKept)
{
    if (!isKept)
        std::printf("MISSED: %s\n", what);
    return isKept;
}

long residentKilobytes()
{
    QFile status("/proc/self/status");
    if (status.open(QIODevice::ReadOnly))
        for (const QByteArray &line : status.readAll().split('\n'))
            if (line.startsWith("VmRSS:"))
                return line.mid(6).trimmed().split(' ')[0].toLong();
    return 0;
}

double processorSeconds()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval &time) {
        return double(time.tv_sec) + 1e-6 * double(time.tv_usec);
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void waitForSilence(IndiSource &source)
{
    QElapsedTimer waiting;
    waiting.start();
    while (!source.frame(400).empty() && waiting.elapsed() < 5000) {
    }
}

// One loss of each kind in turn; afterwards everything is there again.
bool loseAndReturn(int cycle, IndiServer &server, CuttingProxy &proxy, IndiSource &source)
{
    switch (cycle % 3) {
    case 0:
        server.end();
        waitForSilence(source);
        return server.start();
    case 1:
        server.signal(SIGSTOP);
        waitForSilence(source);
        server.signal(SIGCONT);
        return true;
    default:
        proxy.cutAfter(QRandomGenerator(uint(cycle)).bounded(1, 3000000));
        for (int i = 0; i < 300 && !proxy.isCut(); ++i)
            source.frame(100);
        waitForSilence(source);
        proxy.heal();
        return true;
    }
}

int cycles(int count)
{
    IndiServer server;
    if (!server.start())
        return 1;
    CuttingProxy proxy(server.port);
    framesources::SourceSettings settings;
    settings.stream = false;
    IndiSource source(proxy.port(), simulatedCamera, settings);
    source.exposure = 0.05;
    if (source.frame().empty())
        return 1;
    std::vector<qint64> returns;
    long memory = 0;
    int threads = 0, descriptors = 0;
    for (int cycle = 0; cycle < count; ++cycle) {
        if (!loseAndReturn(cycle, server, proxy, source))
            return 1;
        QElapsedTimer returned;
        returned.start();
        if (source.frame(60000).empty()) {
            std::printf("cycle %d: no frames come back\n%s\n", cycle,
                        qPrintable(source.lines().join("\n")));
            return 1;
        }
        returns.push_back(returned.elapsed());
        if (cycle == std::min(11, count / 2)) { // the allocator has settled
            memory = residentKilobytes();
            threads = runningThreads();
            descriptors = openDescriptors();
        }
    }
    std::sort(returns.begin(), returns.end());
    std::printf("%d cycles: frames back after %lld ms in the median, %lld ms at most; slowest call "
                "%lld ms; memory grew by %ld kB, threads by %d, descriptors by %d\n",
                count, returns[returns.size() / 2], returns.back(), source.slowest,
                residentKilobytes() - memory, runningThreads() - threads,
                openDescriptors() - descriptors);
    bool good = keeps("frames are back within 5 s", returns.back() < returnBar);
    good &= keeps("calls take less than 100 ms", source.slowest < callBar);
    good &= keeps("memory does not grow", residentKilobytes() - memory < memoryBar);
    good &= keeps("no thread is left", runningThreads() <= threads);
    good &= keeps("no descriptor is left", openDescriptors() <= descriptors + 1); // a connection
    return good ? 0 : 1;
}

// A process of its own that streams raw frames as fast as asked; its port, or 0.
quint16 startStreamingProcess(pid_t &child)
{
    int ends[2];
    if (::pipe(ends) != 0)
        return 0;
    child = ::fork();
    if (child == 0) {
        QByteArray frame(1280 * 960, '\0');
        for (int i = 0; i < frame.size(); ++i)
            frame[i] = char(20 + i * 7919 % 13);
        const HostileServer server(
            {}, HostileServer::blob(".stream", QByteArray::number(frame.size()), frame.toBase64()),
            1280, 960, 30);
        const quint16 port = server.port();
        if (::write(ends[1], &port, sizeof port) == sizeof port)
            ::pause(); // until it is killed
        ::_exit(1);
    }
    quint16 port = 0;
    if (::read(ends[0], &port, sizeof port) != sizeof port)
        return 0;
    return port;
}

int stream(int seconds)
{
    pid_t child = 0;
    const quint16 port = startStreamingProcess(child);
    IndiSource source(port, "Camera");
    source.exposure = 0.01;
    for (int i = 0; i < 5; ++i)
        if (source.frame().empty())
            return 1;
    const double before = processorSeconds();
    QElapsedTimer timer;
    timer.start();
    int frames = 0;
    while (timer.elapsed() < seconds * 1000)
        frames += source.frame(1000).empty() ? 0 : 1;
    const double span = double(timer.elapsed()) / 1000.0;
    ::kill(child, SIGKILL);
    const double rate = frames / span, load = (processorSeconds() - before) / span;
    std::printf("%.1f frames a second of 1280 x 960 pixels, %.2f of a core\n", rate, load);
    bool good = keeps("25 frames a second", rate >= rateBar);
    good &= keeps("half a core", load < processorBar);
    return good ? 0 : 1;
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && std::strcmp(argv[1], "cycles") == 0)
        return cycles(std::max(1, std::atoi(argv[2])));
    if (argc == 3 && std::strcmp(argv[1], "stream") == 0)
        return stream(std::max(1, std::atoi(argv[2])));
    std::fputs("usage: indireport cycles N | stream SECONDS\n", stderr);
    return 2;
}
