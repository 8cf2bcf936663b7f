// SPDX-License-Identifier: MIT
// A source of frames by INDI as the camera library uses it, and how long its calls take.
#pragma once

#include <QElapsedTimer>
#include <QMutex>
#include <QStringList>
#include <QtTest>
#include <opencv2/core.hpp>

#include "framesources/nativecameras.h"
#include "framesources/threadedsource.h"
#include "tests/support/processortimes.h"

constexpr int returnTimeout = 5000; // milliseconds from a fault's end to a frame
constexpr qint64 callTimeout = 100; // of every call

class IndiSource
{
public:
    explicit IndiSource(quint16 port, const char *device = "CCD Simulator",
                        const framesources::SourceSettings &wanted = {})
    {
        framesources::SourceSettings settings = wanted;
        settings.address.source = virtualsky::Source::Indi;
        settings.address.host = "127.0.0.1";
        settings.address.port = port;
        settings.address.device = device;
        const std::shared_ptr<Log> shared = log;
        const auto report = [shared](const std::string &line) {
            const QMutexLocker lock(&shared->mutex);
            shared->lines.append(QString::fromStdString(line));
        };
        source = std::make_unique<framesources::ThreadedSource>(
            settings, [settings, report] { return makeNativeCamera(settings, report); }, report);
    }

    /// The next frame within `patience` milliseconds; empty = none came.
    cv::Mat frame(int patience = 20000)
    {
        cv::Mat out(960, 1280, CV_8UC1);
        QElapsedTimer waiting;
        waiting.start();
        do {
            QElapsedTimer call;
            const ProcessorTimes before = ProcessorTimes::now();
            call.start();
            (void)source->behaviour();
            const unsigned channels = source->frame({{}, {exposure, gain, 1}}, out.data);
            const qint64 elapsed = call.elapsed();
            slowest = std::max(slowest, elapsed - takenByOthers(before, ProcessorTimes::now()));
            if (channels == 1)
                return out;
            QTest::qSleep(10);
        } while (waiting.elapsed() < patience);
        return {};
    }

    bool isPresent() { return source->behaviour().cameras == 1; }
    QStringList lines() const
    {
        const QMutexLocker lock(&log->mutex);
        return log->lines;
    }

    double exposure = 0.3, gain = 50.0;
    /// Milliseconds, of all calls; without `takenByOthers`.
    qint64 slowest = 0;
    std::unique_ptr<framesources::ThreadedSource> source;

private:
    struct Log { // outlives the source with its thread
        mutable QMutex mutex;
        QStringList lines;
    };
    const std::shared_ptr<Log> log = std::make_shared<Log>();
};
