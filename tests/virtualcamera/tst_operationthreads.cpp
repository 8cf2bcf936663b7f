// SPDX-License-Identifier: MIT
// Can every operation be called from several threads at once, while the sky file changes?
#include <QTemporaryDir>
#include <QtTest>
#include <atomic>
#include <thread>

#include "tests/virtualcamera/veldixlibrary.h"
#include "virtualcamera/skyfile.h"

class OperationThreadsTest : public QObject
{
    Q_OBJECT

private slots:
    void everythingAtOnce();
    void closedUnderTheFetch();
};

namespace
{
void writeSky(const char *text)
{
    static QTemporaryDir folder;
    const std::string path = folder.filePath("sky.ini").toStdString();
    qputenv("QUORVANDEL_SKY", path.c_str());
    QVERIFY(virtualsky::writeAtomically(path, text));
}
} // namespace

void OperationThreadsTest::everythingAtOnce()
{
    writeSky("[camera]\nunthrottled = true\n");
    VeldixLibrary veldix;
    void *const shared = veldix.openLive();
    QVERIFY(shared);
    std::atomic<bool> stop{false};
    std::atomic<int> frames{0}, settings{0}, openings{0};
    std::thread fetcher([&] {
        VeldixFrame frame;
        while (!stop)
            frames += frame.fetch(veldix, shared) == 0 ? 1 : 0;
    });
    std::thread setter([&] {
        for (int i = 0; !stop; ++i) {
            settings += veldix.setParam(shared, 8, 1000.0 * (1 + i % 500)) == 0 ? 1 : 0;
            veldix.getParam(shared, 8);
            veldix.setResolution(shared, 0, 0, 1280, i % 2 ? 960 : 480);
            veldix.beginLive(shared);
        }
    });
    std::thread opener([&] {
        VeldixFrame frame;
        while (!stop) {
            char id[38];
            veldix.scan();
            void *const own = veldix.getId(0, id) == 0 ? veldix.openLive(id) : nullptr;
            openings += own && frame.fetch(veldix, own) == 0 ? 1 : 0;
            veldix.stopLive(own);
            veldix.close(own);
            frame.fetch(veldix, own);
        }
    });
    for (int i = 0; i < 30 || frames < 5 || openings < 5; ++i) {
        QVERIFY(i < 3000);
        writeSky(i % 2 ? "[camera]\nunthrottled = true\nchannels = 3\n"
                       : "[camera]\nunthrottled = true\n[site]\nlatitude = -30\n");
        QTest::qSleep(10);
    }
    stop = true;
    fetcher.join();
    setter.join();
    opener.join();
    QVERIFY(settings > 0);
    QCOMPARE(veldix.close(shared), 0u);
}

void OperationThreadsTest::closedUnderTheFetch()
{
    writeSky("[camera]\nunthrottled = true\n");
    VeldixLibrary veldix;
    for (int round = 0; round < 20; ++round) {
        void *const camera = veldix.openLive();
        std::atomic<int> frames{0};
        std::uint32_t last = 0;
        std::thread fetcher([&] {
            VeldixFrame frame;
            while ((last = frame.fetch(veldix, camera)) == 0)
                ++frames;
        });
        while (frames == 0)
            std::this_thread::yield();
        const std::uint32_t closed = veldix.close(camera);
        fetcher.join();
        QCOMPARE(closed, 0u);
        QCOMPARE(last, 0xFFFFFFFFu);
    }
}

QTEST_GUILESS_MAIN(OperationThreadsTest)
#include "tst_operationthreads.moc"
