// SPDX-License-Identifier: MIT
// Is anything left after many connections and many windows: descriptors, threads, objects, memory?
#include "tests/reliability/processcounts.h"
#include "tests/reliability/virtualwindow.h"

#include <QtTest>

namespace
{
constexpr int cycles = 100;
constexpr int windows = 20;
/// Before counting: by then, everything that is created only once exists.
constexpr int firstCycles = 5;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isSanitized = true; // freed memory is kept
#else
constexpr bool isSanitized = false;
#endif
constexpr qint64 memoryAllowed = 24 * 1024 * 1024; // bytes

struct Held {
    int descriptors, threads, objects;
};

/// Fewer descriptors and threads than before may remain: the toolkit's pool ends idle threads.
bool noMore(const Held &after, const Held &before)
{
    return after.descriptors <= before.descriptors && after.threads <= before.threads &&
           after.objects == before.objects;
}

void report(const char *what, const Held &before, const Held &after, qint64 memory)
{
    qInfo("%s: descriptors %d to %d, threads %d to %d, objects %d to %d, %lld kB more", what,
          before.descriptors, after.descriptors, before.threads, after.threads, before.objects,
          after.objects, memory / 1024);
}

Held heldWith(const QObject *window)
{
    return {openDescriptors(), runningThreads(),
            window ? int(window->findChildren<QObject *>().size()) : 0};
}
} // namespace

class CyclesTest : public QObject
{
    Q_OBJECT

private slots:
    void connections();
    void manyWindows();
};

void CyclesTest::connections()
{
    const VirtualWindow w;
    Held before{};
    qint64 memoryBefore = 0;
    for (int cycle = 0; cycle < firstCycles + cycles; ++cycle) {
        if (cycle == firstCycles) {
            before = heldWith(w.window.get());
            memoryBefore = statusBytes("VmRSS");
        }
        QVERIFY(w.connectCamera());
        w.toggleConnection();
        // On a busy machine the call for a frame may outlast the window's first wait.
        QTRY_VERIFY(!w.session().camera.cameraConnected);
    }
    // The capture thread ends by itself.
    QTRY_VERIFY(noMore(heldWith(w.window.get()), before));
    const qint64 more = statusBytes("VmRSS") - memoryBefore;
    report("100 connections", before, heldWith(w.window.get()), more);
    QVERIFY2(isSanitized || more < memoryAllowed, qPrintable(QString::number(more)));
}

/// Each window connects and is closed while pictures arrive.
void CyclesTest::manyWindows()
{
    Held before{};
    qint64 memoryBefore = 0;
    for (int cycle = 0; cycle < firstCycles + windows; ++cycle) {
        if (cycle == firstCycles) {
            before = heldWith(nullptr);
            memoryBefore = statusBytes("VmRSS");
        }
        const VirtualWindow w;
        QVERIFY(w.connectCamera());
    }
    QTRY_VERIFY(noMore(heldWith(nullptr), before));
    const qint64 more = statusBytes("VmRSS") - memoryBefore;
    report("20 windows", before, heldWith(nullptr), more);
    QVERIFY2(isSanitized || more < memoryAllowed, qPrintable(QString::number(more)));
}

QTEST_MAIN(CyclesTest)
#include "tst_cycles.moc"
