// SPDX-License-Identifier: MIT
// Times the window's paint events, and reads the threads' processor time.
#include "bench/assistant/displayreport.h"

#include "bench/assistant/person.h"
#include "bench/assistant/start.h"
#include "bench/assistant/windowmount.h"
#include "bench/recognition/statistics.h"

#include <QDir>
#include <QEvent>
#include <QFile>
#include <QTest>
#include <cmath>
#include <cstdio>
#include <map>
#include <stdexcept>
#include <unistd.h>
#include <vector>

namespace
{
constexpr double exposure = 85000.0; // microseconds: with the read-out, ten frames a second
constexpr double swing = 0.01;       // degrees of the altitude bolt, to and fro

double utcNow()
{
    return assistant::systemClocks().utc();
}

/// Remembers which frame the window was given last.
class TimedInstrument : public assistantwindow::SessionInstrument
{
public:
    using SessionInstrument::SessionInstrument;

    assistantwindow::Snapshot latest() override
    {
        assistantwindow::Snapshot now = SessionInstrument::latest();
        frame = now.status.frame;
        handedOver = now.status.utcSeconds + 0.5e-6 * now.status.exposureMicroseconds;
        hasFigures = now.status.error.has_value();
        return now;
    }

    std::uint64_t frame = 0;
    double handedOver = 0.0; ///< by the capture loop, utc seconds
    bool hasFigures = false;
};

/// Seconds of processor time by thread: "number name".
std::map<std::string, double> threadTimes()
{
    std::map<std::string, double> times;
    const QDir tasks(QStringLiteral("/proc/self/task"));
    for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile file(tasks.filePath(task + QStringLiteral("/stat")));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray text = file.readAll();
        const int open = text.indexOf('('), close = text.lastIndexOf(')');
        const QList<QByteArray> fields = text.mid(close + 2).split(' ');
        const double ticks = fields.value(11).toDouble() + fields.value(12).toDouble();
        const QByteArray name = task.toInt() == int(getpid())
                                    ? QByteArray("the window's")
                                    : text.mid(open + 1, close - open - 1);
        times[(task + ' ' + name).toStdString()] = ticks / double(sysconf(_SC_CLK_TCK));
    }
    return times;
}

void printLoad(const std::map<std::string, double> &before, double seconds)
{
    std::printf("\n| thread | of a core |\n|---|---|\n");
    double all = 0.0;
    for (const auto &[name, time] : threadTimes()) {
        const auto was = before.find(name);
        const double share = (time - (was == before.end() ? 0.0 : was->second)) / seconds;
        all += share;
        if (share > 0.001)
            std::printf("| %s | %.1f %% |\n", name.substr(name.find(' ') + 1).c_str(),
                        100.0 * share);
    }
    std::printf("| all | %.1f %% |\n", 100.0 * all);
}

void swingBolt(WindowMount &mount, double rest, double seconds)
{
    virtualsky::SkyState sky = mount.sky();
    sky.boltAltitude = rest + swing * std::sin(seconds);
    mount.setSky(sky);
}
} // namespace

bool PaintClock::notify(QObject *receiver, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Paint && receiver->objectName() == QLatin1String("label_totalError"))
        labelPainted = true;
    const bool result = QApplication::notify(receiver, event);
    if (type == QEvent::UpdateRequest && labelPainted) {
        labelPainted = false;
        if (painted)
            painted();
    }
    return result;
}

void reportDisplay(PaintClock &application, double seconds)
{
    auto made = std::make_unique<TimedInstrument>(assistant::Settings());
    TimedInstrument &instrument = *made;
    virtualsky::SkyState start = startingSky(0);
    start.boltAltitude = start.boltAzimuth = 0.01; // so near that every frame changes the number
    WindowMount mount(start, std::move(made));
    if (!turnAxisAsTold(mount))
        throw std::runtime_error("the axis was not found");
    instrument.setExposure(exposure);
    QTest::qWait(1500);
    std::vector<double> milliseconds;
    const std::uint64_t first = instrument.frame;
    std::uint64_t painted = 0;
    application.painted = [&] {
        if (instrument.frame == painted || !instrument.hasFigures)
            return;
        painted = instrument.frame;
        milliseconds.push_back(1000.0 * (utcNow() - instrument.handedOver));
    };
    const auto before = threadTimes();
    const double began = utcNow(), rest = mount.sky().boltAltitude;
    while (utcNow() - began < seconds) {
        swingBolt(mount, rest, utcNow() - began);
        QTest::qWait(100);
    }
    const double took = utcNow() - began;
    application.painted = nullptr;
    std::printf("| frames a second | painted numbers | median | 95 %% | longest |\n"
                "|---|---|---|---|---|\n| %.1f | %zu | %.1f ms | %.1f ms | %.1f ms |\n",
                double(instrument.frame - first) / took, milliseconds.size(), median(milliseconds),
                quantile(milliseconds, 0.95), quantile(milliseconds, 1.0));
    printLoad(before, took);
}
