// SPDX-License-Identifier: MIT
// How long does the window need to show one frame, including the magnifier?
#include "bench/skyframe.h"
#include "camera/frames.h"
#include "camera/session.h"
#include "mainwindow/mainwindow.h"
#include "widgets/magnifierwidget.h"

#include <QAction>
#include <QPixmap>
#include <benchmark/benchmark.h>
#include <opencv2/imgproc.hpp>

namespace
{
const QImage &picture()
{
    static const QImage made = [] {
        cv::Mat colour;
        cv::cvtColor(skyFrame().grey, colour, cv::COLOR_GRAY2BGR);
        return *MatToQImage(&colour);
    }();
    return made;
}

void shown(benchmark::State &state, const char *zoom)
{
    Session session;
    MainWindow window(session);
    window.findChild<QAction *>(zoom)->trigger();
    for (auto _ : state) {
        session.frameQueue.append(picture());
        QMetaObject::invokeMethod(&window, "showImages", Qt::DirectConnection);
    }
}

/// Scaling and conversion only; keeps the last picture and pixmap, as the window does.
void bare(benchmark::State &state, double zoom)
{
    const QSize size = picture().size() * zoom;
    QImage scaled;
    QPixmap pixmap;
    for (auto _ : state) {
        scaled = picture().scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        pixmap = QPixmap::fromImage(scaled);
        benchmark::ClobberMemory();
    }
}
/// The cost of painting the magnifier from the pixmap that it shares.
void magnified(benchmark::State &state)
{
    constexpr int side = 150;
    MagnifierWidget magnifier(side, side);
    QImage view(magnifier.size(), QImage::Format_RGB32);
    const QPixmap source = QPixmap::fromImage(picture());
    for (auto _ : state) {
        magnifier.setSource(source);
        magnifier.render(&view, {}, {}, {});
    }
}
} // namespace

BENCHMARK(magnified)->Name("display/magnifier painted")->MeasureProcessCPUTime();
BENCHMARK_CAPTURE(shown, whole, "action100")->Name("display/shown 100")->MeasureProcessCPUTime();
BENCHMARK_CAPTURE(shown, threeQuarters, "action75")
    ->Name("display/shown 75")
    ->MeasureProcessCPUTime();
BENCHMARK_CAPTURE(shown, half, "action50")->Name("display/shown 50")->MeasureProcessCPUTime();
BENCHMARK_CAPTURE(bare, whole, 1.0)->Name("display/bare 100")->MeasureProcessCPUTime();
BENCHMARK_CAPTURE(bare, threeQuarters, 0.75)->Name("display/bare 75")->MeasureProcessCPUTime();
BENCHMARK_CAPTURE(bare, half, 0.5)->Name("display/bare 50")->MeasureProcessCPUTime();
