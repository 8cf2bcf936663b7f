// SPDX-License-Identifier: MIT
// Do the sixteen operations accept and refuse what the interface specifies?
#include <QProcess>
#include <QtTest>
#include <limits>

#include "tests/virtualcamera/veldixfixture.h"
#include "virtualcamera/operationnames.h"

using virtualsky::operationNames;

class OperationsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { setSky("[camera]\nunthrottled = true\n"); }

    void nothingBeforeInit();
    void exportsTheOperationsAlone();
    void programOrderWorks();
    void identifiers_data();
    void identifiers();
    void openUnknownId_data();
    void openUnknownId();
    void modesAndAreas();
    void parameters_data();
    void parameters();
    void liveNeedsInitAndStreamMode();
    void nullArgumentsAreRefused();
    void reopened();
};

void OperationsTest::nothingBeforeInit()
{
    // Runs first: the library is fresh.
    QCOMPARE(veldix().scan(), 0);
    QVERIFY(idAt(0).isEmpty());
    QVERIFY(!veldix().open("QUORVANDEL-V0001"));
    QCOMPARE(veldix().initResource(), 0u);
    QCOMPARE(veldix().scan(), 1);
}

void OperationsTest::exportsTheOperationsAlone()
{
    QProcess nm;
    nm.start(NM_PROGRAM, {"-D", "--defined-only", VELDIX_FILE});
    QVERIFY(nm.waitForFinished());
    QCOMPARE(nm.exitCode(), 0);
    QStringList names;
    for (const QByteArray &line : nm.readAllStandardOutput().split('\n'))
        if (!line.trimmed().isEmpty())
            names.append(QString::fromUtf8(line.split(' ').last()));
    QStringList expected;
    for (const std::string_view name : operationNames)
        expected.append(QString::fromUtf8(name.data(), int(name.size())));
    names.sort();
    expected.sort();
    QCOMPARE(names, expected);
    QVERIFY(QStringLiteral(VELDIX_FILE).endsWith("/lib/quorvandel/libveldix.so.20"));
}

void OperationsTest::programOrderWorks()
{
    const VeldixLibrary &v = veldix();
    QCOMPARE(v.scan(), 1);
    char id[38];
    QCOMPARE(v.getId(0, id), 0u);
    void *const camera = v.open(id);
    QVERIFY(camera);
    QCOMPARE(v.setReadMode(camera, 0), 0u);
    QCOMPARE(v.setStreamMode(camera, 1), 0u);
    QCOMPARE(v.init(camera), 0u);
    QCOMPARE(v.setBits(camera, 8), 0u);
    QCOMPARE(v.setBin(camera, 1, 1), 0u);
    QCOMPARE(v.setResolution(camera, 0, 0, 1280, 960), 0u);
    QCOMPARE(v.getParam(camera, 8), 200000.0);
    QCOMPARE(v.getParam(camera, 6), 50.0);
    QCOMPARE(v.setParam(camera, 12, 30.0), 0u);
    QCOMPARE(v.setParam(camera, 9, 0.0), 0u);
    QCOMPARE(v.beginLive(camera), 0u);
    VeldixFrame frame;
    QCOMPARE(frame.fetch(v, camera), 0u);
    QCOMPARE(frame.width, 1280u);
    QCOMPARE(frame.height, 960u);
    QCOMPARE(frame.bpp, 8u);
    QCOMPARE(frame.channels, 1u);
    // Stars, over a background that is neither black nor bright.
    const auto end = frame.buffer.begin() + 1280 * 960;
    QVERIFY(std::count(frame.buffer.begin(), end, 255) > 20);
    QVERIFY(std::count_if(frame.buffer.begin(), end, [](int v8) { return v8 > 3 && v8 < 30; }) >
            1200000);
    QVERIFY(std::all_of(end, frame.buffer.end(), [](int v8) { return v8 == 0; }));
    QCOMPARE(v.stopLive(camera), 0u);
    QVERIFY(frame.fetch(v, camera) != 0u);
    QCOMPARE(v.close(camera), 0u);
}

void OperationsTest::identifiers_data()
{
    QTest::addColumn<QByteArray>("sky");
    QTest::addColumn<int>("count");
    QTest::newRow("one") << QByteArray("[faults]\ncameras = 1\n") << 1;
    QTest::newRow("none") << QByteArray("[faults]\ncameras = 0\n") << 0;
    QTest::newRow("two") << QByteArray("[faults]\ncameras = 2\n") << 2;
    QTest::newRow("unplugged") << QByteArray("[faults]\nunplugged = true\n") << 0;
}

void OperationsTest::identifiers()
{
    QFETCH(QByteArray, sky);
    QFETCH(int, count);
    setSky(sky.constData());
    const QByteArray ids[] = {"QUORVANDEL-V0001", "QUORVANDEL-V0002"};
    QCOMPARE(veldix().scan(), count);
    for (const int index :
         {0, 1, 2, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QCOMPARE(idAt(index), index >= 0 && index < count ? ids[index] : QByteArray());
    for (int index = 0; index < 2; ++index) {
        void *const camera = veldix().open(ids[index].constData());
        QCOMPARE(camera != nullptr, index < count);
        if (camera)
            QCOMPARE(veldix().close(camera), 0u);
    }
}

void OperationsTest::openUnknownId_data()
{
    QTest::addColumn<QByteArray>("id");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("other serial") << QByteArray("QUORVANDEL-V0009");
    QTest::newRow("prefix") << QByteArray("QUORVANDEL");
    QTest::newRow("longer") << QByteArray("QUORVANDEL-V00011");
    QTest::newRow("very long") << QByteArray(100000, 'x');
}

void OperationsTest::openUnknownId()
{
    QFETCH(QByteArray, id);
    QVERIFY(!veldix().open(id.constData()));
}

void OperationsTest::modesAndAreas()
{
    const VeldixLibrary &v = veldix();
    void *const camera = veldix().openLive();
    QCOMPARE(v.setReadMode(camera, 1), failure);
    QCOMPARE(v.setStreamMode(camera, 2), failure);
    QCOMPARE(v.setBits(camera, 16), failure);
    QCOMPARE(v.setBin(camera, 2, 2), failure);
    const std::uint32_t most = std::numeric_limits<std::uint32_t>::max();
    const std::uint32_t bad[][4] = {{0, 0, 0, 960},    {0, 0, 1280, 0},    {1, 0, 1280, 960},
                                    {0, 1, 1280, 960}, {0, 0, 1281, 960},  {most, 0, 1, 1},
                                    {0, most, 1, 1},   {0, 0, most, most}, {2, 2, most - 1, 1}};
    for (const auto &a : bad)
        QCOMPARE(v.setResolution(camera, a[0], a[1], a[2], a[3]), failure);
    VeldixFrame whole;
    QCOMPARE(whole.fetch(v, camera), 0u);
    QCOMPARE(whole.width * whole.height, 1280u * 960u);
    QCOMPARE(v.setResolution(camera, 1270, 950, 10, 10), 0u);
    VeldixFrame corner;
    QCOMPARE(corner.fetch(v, camera), 0u);
    QCOMPARE(corner.width, 10u);
    QCOMPARE(corner.height, 10u);
    QVERIFY(corner.buffer[99] != 0);
    QCOMPARE(int(corner.buffer[100]), 0);
    QCOMPARE(v.close(camera), 0u);
}

void OperationsTest::parameters_data()
{
    QTest::addColumn<int>("control");
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("good");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("exposure 1 ms") << 8 << 1000.0 << true;
    QTest::newRow("exposure 500 ms") << 8 << 500000.0 << true;
    QTest::newRow("exposure 0") << 8 << 0.0 << false;
    QTest::newRow("exposure nan") << 8 << nan << false;
    QTest::newRow("exposure infinite") << 8 << infinity << false;
    QTest::newRow("gain 1") << 6 << 1.0 << true;
    QTest::newRow("gain 100") << 6 << 100.0 << true;
    QTest::newRow("gain -1") << 6 << -1.0 << false;
    QTest::newRow("speed 2") << 9 << 2.0 << true;
    QTest::newRow("speed 3") << 9 << 3.0 << false;
    QTest::newRow("traffic 255") << 12 << 255.0 << true;
    QTest::newRow("traffic 256") << 12 << 256.0 << false;
    QTest::newRow("no such control") << 7 << 1.0 << false;
    QTest::newRow("negative control") << -1 << 1.0 << false;
}

void OperationsTest::parameters()
{
    QFETCH(int, control);
    QFETCH(double, value);
    QFETCH(bool, good);
    void *const camera = veldix().openLive();
    const double before = veldix().getParam(camera, control);
    QCOMPARE(veldix().setParam(camera, control, value), good ? 0u : failure);
    QCOMPARE(veldix().getParam(camera, control), good ? value : before);
    QCOMPARE(veldix().close(camera), 0u);
}

void OperationsTest::liveNeedsInitAndStreamMode()
{
    const VeldixLibrary &v = veldix();
    void *const camera = v.open("QUORVANDEL-V0001");
    VeldixFrame frame;
    QCOMPARE(v.setStreamMode(camera, 1), 0u);
    QCOMPARE(v.beginLive(camera), failure);
    QCOMPARE(v.setStreamMode(camera, 0), 0u);
    QCOMPARE(v.init(camera), 0u);
    QCOMPARE(v.beginLive(camera), failure);
    QCOMPARE(v.setStreamMode(camera, 1), 0u);
    QVERIFY(frame.fetch(v, camera) != 0u);
    QCOMPARE(v.beginLive(camera), 0u);
    QCOMPARE(frame.fetch(v, camera), 0u);
    QCOMPARE(v.close(camera), 0u);
}

void OperationsTest::nullArgumentsAreRefused()
{
    const VeldixLibrary &v = veldix();
    void *const camera = veldix().openLive();
    QCOMPARE(v.getId(0, nullptr), failure);
    QVERIFY(!v.open(nullptr));
    std::uint32_t n = 0;
    std::vector<std::uint8_t> buffer(1280 * 960 * 3);
    QCOMPARE(v.getLiveFrame(camera, nullptr, &n, &n, &n, buffer.data()), failure);
    QCOMPARE(v.getLiveFrame(camera, &n, nullptr, &n, &n, buffer.data()), failure);
    QCOMPARE(v.getLiveFrame(camera, &n, &n, nullptr, &n, buffer.data()), failure);
    QCOMPARE(v.getLiveFrame(camera, &n, &n, &n, nullptr, buffer.data()), failure);
    QCOMPARE(v.getLiveFrame(camera, &n, &n, &n, &n, nullptr), failure);
    QCOMPARE(v.getLiveFrame(camera, &n, &n, &n, &n, buffer.data()), 0u);
    QCOMPARE(v.close(camera), 0u);
}

void OperationsTest::reopened()
{
    // A camera that was left open can be opened again, and keeps its own settings.
    void *const left = veldix().openLive();
    void *const camera = veldix().openLive();
    QVERIFY(left && camera && left != camera);
    QCOMPARE(veldix().setParam(camera, exposureControl, 1000.0), 0u);
    QCOMPARE(veldix().getParam(left, exposureControl), 200000.0);
    QCOMPARE(veldix().close(left), 0u);
    QCOMPARE(veldix().close(left), failure);
    VeldixFrame frame;
    QCOMPARE(frame.fetch(veldix(), camera), 0u);
    QCOMPARE(veldix().close(camera), 0u);
}

QTEST_GUILESS_MAIN(OperationsTest)
#include "tst_operations.moc"
