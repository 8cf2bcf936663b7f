// SPDX-License-Identifier: MIT
// Measures the time from posting a click on another thread to the painted response.
#include "bench/clicks.h"

#include "bench/processfigures.h"

#include <QEvent>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <random>
#include <thread>

namespace
{
/// Detects the end of the painting that follows a click.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget &watched) : widget(watched) { widget.installEventFilter(this); }

    void begin(double posted)
    {
        start = posted;
        waiting = true;
    }
    bool isWaiting() const { return waiting; }
    std::vector<double> times;

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (waiting && event->type() == QEvent::Paint) {
            waiting = false;
            // The window finishes painting before the event loop gets here.
            QTimer::singleShot(0, this, [this] {
                times.push_back(1e3 * (clockSeconds(CLOCK_MONOTONIC) - start));
            });
        }
        return QObject::eventFilter(object, event);
    }

private:
    QWidget &widget;
    double start = 0;
    bool waiting = false;
};
} // namespace

std::vector<double> clickTimes(QWidget &button, int count)
{
    PaintWatch watch(button);
    std::thread hand([&] {
        std::mt19937 random(7);
        std::uniform_int_distribution<int> pauseMilliseconds(40, 120);
        for (int i = 0; i < count; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(pauseMilliseconds(random)));
            const double posted = clockSeconds(CLOCK_MONOTONIC);
            QMetaObject::invokeMethod(
                &watch,
                [&watch, &button, posted] {
                    if (watch.isWaiting())
                        return; // the previous click is still being processed
                    watch.begin(posted);
                    QTest::mouseClick(&button, Qt::LeftButton);
                },
                Qt::QueuedConnection);
        }
    });
    QTest::qWait(count * 130);
    hand.join();
    QTest::qWait(200);
    std::sort(watch.times.begin(), watch.times.end());
    return watch.times;
}
