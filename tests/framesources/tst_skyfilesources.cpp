// SPDX-License-Identifier: MIT
// Do all sixteen operations work on a camera by INDI and on files that the sky file alone chooses?
#include <QtTest>
#include <ctime>
#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>

#include "recognition/extraction.h"
#include "recognition/recognise.h"
#include "tests/indi/indiserver.h"
#include "tests/virtualcamera/veldixfixture.h"

namespace
{
constexpr std::int32_t gainControl = 6, speedControl = 9, trafficControl = 12;
} // namespace

class SkyFileSourcesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void operations_data();
    void operations();
    void settingsReachTheDevice();
    void serverGoesAndComes();

private:
    QByteArray textOf(const QByteArray &source) const
    {
        const QByteArray address = "127.0.0.1:" + QByteArray::number(server.port);
        return source == "indi"
                   ? "[camera]\nsource = indi\nindi = " + address + '/' + simulatedCamera +
                         "\nstream = false\nsoften = true\nscale = auto\n"
                   : "[camera]\nsource = files\nfiles = " + folder.path().toUtf8() +
                         "\nscale = auto\nmirrored = auto\n";
    }
    /// The pole star's picture at the program's scale.
    static double scaleOf(VeldixFrame &frame)
    {
        const cv::Mat picture(int(frame.height), int(frame.width), CV_8UC1, frame.buffer.data());
        recognition::RecognitionOptions options;
        options.utcSeconds = double(std::time(nullptr));
        const recognition::Recognition sky = recognition::recognise(
            recognition::extractStars(picture).stars, picture.cols, picture.rows, options);
        return sky.status == recognition::RecognitionStatus::Recognised && !sky.mirrored ? sky.scale
                                                                                         : 0.0;
    }
    static bool fetched(VeldixFrame &frame, void *camera)
    {
        return QTest::qWaitFor([&] { return frame.fetch(veldix(), camera) == 0; }, 30000);
    }
    /// The first frames may be older than the lens that is found in them.
    static bool showsThePole(VeldixFrame &frame, void *camera)
    {
        for (int time = 0; time < 10; ++time)
            if (fetched(frame, camera) && std::abs(scaleOf(frame) - 30.45) < 0.1)
                return true;
        return false;
    }

    const QTemporaryDir folder;
    IndiServer server;
};

/// A server with a simulated camera of another scale, and a picture of the virtual sky that a
/// lens of another scale shows as in a mirror.
void SkyFileSourcesTest::initTestCase()
{
    if (!IndiServer::isInstalled())
        QSKIP("indi-bin is not installed");
    QVERIFY(server.start());
    QVERIFY(server.set({1280, 960, 20.0}));
    setSky("[camera]\nlabel = false\n");
    void *const camera = veldix().openLive();
    QVERIFY(camera);
    QCOMPARE(veldix().setParam(camera, exposureControl, 500000.0), 0u);
    VeldixFrame frame;
    for (int i = 0; i < 3; ++i)
        QVERIFY(fetched(frame, camera));
    QCOMPARE(veldix().close(camera), 0u);
    cv::Mat picture(960, 1280, CV_8UC1, frame.buffer.data()), large;
    cv::resize(picture, large, cv::Size(), 1.5, 1.5, cv::INTER_CUBIC);
    cv::flip(large, picture, 1);
    QVERIFY(cv::imwrite(folder.filePath("a.png").toStdString(), picture));
    QTest::qWait(400); // it is no longer being written
}

void SkyFileSourcesTest::operations_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("id");
    QTest::newRow("indi") << QByteArray("indi") << QByteArray("QUORVANDEL-CCD_Simulator");
    QTest::newRow("files") << QByteArray("files") << QByteArray("QUORVANDEL-files");
}

/// In the program's order.
void SkyFileSourcesTest::operations()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, id);
    setSky(textOf(source));
    const VeldixLibrary &v = veldix();
    QCOMPARE(v.initResource(), 0u);
    QCOMPARE(v.scan(), 1);
    QCOMPARE(idAt(0), id);
    QCOMPARE(v.open("QUORVANDEL-V0001"), nullptr);
    void *const camera = v.open(id.constData());
    QVERIFY(camera);
    QCOMPARE(v.setReadMode(camera, 0), 0u);
    QCOMPARE(v.setStreamMode(camera, 1), 0u);
    QCOMPARE(v.init(camera), 0u);
    QCOMPARE(v.setBits(camera, 8), 0u);
    QCOMPARE(v.setBin(camera, 1, 1), 0u);
    QCOMPARE(v.setResolution(camera, 0, 0, 1280, 960), 0u);
    for (const auto &[control, value] :
         std::vector<std::pair<std::int32_t, double>>{{exposureControl, 400000.0},
                                                      {gainControl, 60.0},
                                                      {speedControl, 1.0},
                                                      {trafficControl, 30.0}}) {
        QCOMPARE(v.setParam(camera, control, value), 0u);
        QCOMPARE(v.getParam(camera, control), value);
    }
    VeldixFrame frame;
    QVERIFY(frame.fetch(v, camera) != 0); // not live
    for (int time = 0; time < 2; ++time) {
        QCOMPARE(v.beginLive(camera), 0u);
        QVERIFY(showsThePole(frame, camera));
        QCOMPARE(frame.width, 1280u);
        QCOMPARE(frame.height, 960u);
        QCOMPARE(frame.bpp, 8u);
        QCOMPARE(frame.channels, 1u);
        QCOMPARE(v.stopLive(camera), 0u);
        QVERIFY(frame.fetch(v, camera) != 0);
    }
    QCOMPARE(v.close(camera), 0u);
}

void SkyFileSourcesTest::settingsReachTheDevice()
{
    setSky(textOf("indi"));
    void *const camera = veldix().openLive("QUORVANDEL-CCD_Simulator");
    QVERIFY(camera);
    QCOMPARE(veldix().setParam(camera, exposureControl, 700000.0), 0u);
    VeldixFrame frame;
    QVERIFY(fetched(frame, camera));
    const auto client = server.client();
    QVERIFY(client);
    // The rest of an exposure that is under way is never longer.
    double longest = 0.0;
    QVERIFY(QTest::qWaitFor(
        [&] {
            (void)frame.fetch(veldix(), camera);
            client->waitForNews(std::chrono::milliseconds(5));
            const auto exposure = client->number("CCD_EXPOSURE", "CCD_EXPOSURE_VALUE");
            longest = std::max(longest, exposure ? exposure->value : 0.0);
            return longest > 0.5;
        },
        30000));
    QVERIFY2(longest < 0.71, qPrintable(QString::number(longest)));
    QCOMPARE(veldix().close(camera), 0u);
}

void SkyFileSourcesTest::serverGoesAndComes()
{
    setSky(textOf("indi"));
    void *const camera = veldix().openLive("QUORVANDEL-CCD_Simulator");
    QVERIFY(camera);
    VeldixFrame frame;
    QVERIFY(fetched(frame, camera));
    server.end();
    QTRY_COMPARE_WITH_TIMEOUT(veldix().scan(), 0, 20000);
    QVERIFY(server.start());
    QVERIFY(fetched(frame, camera));
    QCOMPARE(veldix().scan(), 1);
    QCOMPARE(veldix().close(camera), 0u);
}

QTEST_GUILESS_MAIN(SkyFileSourcesTest)
#include "tst_skyfilesources.moc"
