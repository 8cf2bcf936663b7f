// SPDX-License-Identifier: MIT
// Does a server that sends garbage do no harm, and do good frames after it come through?
#include <QtTest>
#include <malloc.h>
#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>
#include <random>

#include "framesources/indiclient.h"
#include "tests/indi/hostileserver.h"
#include "tests/indi/indisource.h"
#include "tests/indi/leavingserver.h"
#include "tests/reliability/processcounts.h"
#include "tests/support/patience.h"

namespace
{
QByteArray golden()
{
    QFile file(QStringLiteral(PROJECT_SOURCE_DIR "/tests/pictures/golden/uint16.fits"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray number(qint64 value)
{
    return QByteArray::number(value);
}

QByteArray blobOf(const QByteArray &format, const QByteArray &bytes)
{
    return HostileServer::blob(format, number(bytes.size()), bytes.toBase64());
}

QByteArray enclosed(const QByteArray &length)
{
    return QByteArray(blobOf(".fits", golden()))
        .replace("<oneBLOB ", "<oneBLOB enclen='" + length + "' ");
}

QByteArray randomBytes(int count, unsigned seed)
{
    std::mt19937 random(seed);
    QByteArray bytes(count, '\0');
    for (char &byte : bytes)
        byte = char(random());
    return bytes;
}
} // namespace

class IndiHostileTest : public QObject
{
    Q_OBJECT

private slots:
    void goodFramesComeThrough_data();
    void goodFramesComeThrough();
    void picturesAreAskedForFirst();
    void lossIsOnlyWhatACameraNeeds_data();
    void lossIsOnlyWhatACameraNeeds();
    void renamedDeviceIsNamedAndComesBack();
    void jpegFramesAreRight_data();
    void jpegFramesAreRight();
    void serverGoesWhileWeSend();
    void lossesLeaveNothingBehind();
};

void IndiHostileTest::goodFramesComeThrough_data()
{
    QTest::addColumn<QByteArray>("harm");
    const QByteArray fits = golden();
    const auto row = [](const char *name, const QByteArray &harm) { QTest::newRow(name) << harm; };
    row("nothing", "");
    for (const char *format : {".fits", ".fits.z", ".stream", ".stream.z", ".stream_jpg", ".jpg",
                               ".z", "", "no format", ".fits.fz"})
        for (const int length : {0, 1, 3000})
            row(qPrintable(QString("random %1 of %2 bytes").arg(format).arg(length)),
                blobOf(format, randomBytes(length, 5)));
    for (const char *size : {"0", "-1", "1", "2147483647", "-2147483648", "99999999999", "x", ""})
        for (const char *format : {".fits", ".fits.z", ".stream"})
            row(qPrintable(QString("said size \"%1\", %2").arg(size, format)),
                HostileServer::blob(format, size, fits.toBase64()));
    row("no base64", HostileServer::blob(".fits", "3000", QByteArray(4000, '*')));
    row("base64 cut",
        HostileServer::blob(".fits", number(fits.size()), fits.toBase64().left(3001)));
    row("base64 signs inside", HostileServer::blob(".fits", "3000", QByteArray(4000, '=')));
    row("header alone", blobOf(".fits", fits.left(2880)));
    row("huge FITS", blobOf(".fits", QByteArray(fits).replace("NAXIS1  =                   40",
                                                              "NAXIS1  =           2000000000")));
    row("unknown device", QByteArray(blobOf(".fits", fits)).replace("'Camera'", "'Other'"));
    row("unknown property", QByteArray(blobOf(".fits", fits)).replace("'CCD1'", "'CCD9'"));
    row("no element", "<setBLOBVector device='Camera' name='CCD1'></setBLOBVector>\n");
    row("no attributes", "<setBLOBVector><oneBLOB>AAAA</oneBLOB></setBLOBVector>\n");
    row("numbers that are none",
        "<setNumberVector device='Camera' name='CCD_INFO'><oneNumber name='CCD_MAX_X'>nan"
        "</oneNumber><oneNumber name='CCD_MAX_Y'>1e999</oneNumber></setNumberVector>\n");
    row("negative sensor",
        "<setNumberVector device='Camera' name='CCD_INFO'><oneNumber name='CCD_MAX_X'>-5"
        "</oneNumber><oneNumber name='CCD_MAX_Y'>-1e300</oneNumber></setNumberVector>\n");
    for (const char *value : {"nan", "inf", "1e300", "-1e300", "1e999"})
        row(qPrintable(QString("a binning of %1").arg(value)),
            QByteArray("<defNumberVector device='Camera' name='CCD_BINNING'>"
                       "<defNumber name='HOR_BIN' min='VALUE' max='VALUE'>VALUE</defNumber>"
                       "</defNumberVector>\n")
                .replace("VALUE", value));
    row("device taken back", "<delProperty device='Camera'/>\n");
    row("property taken back", "<delProperty device='Camera' name='CCD1'/>\n");
    row("no XML", randomBytes(5000, 9));
    row("wrong end", "<setBLOBVector device='Camera' name='CCD1'></other>\n");
    row("many elements", QByteArray("<a>").repeated(500) + QByteArray("</a>").repeated(500) + '\n');
    row("said length of a BLOB below 0", enclosed("-5"));
    row("said length of a BLOB too great", enclosed("2147483647"));
    row("said length of a BLOB that is none", enclosed("x"));
    row("a name without end", '<' + QByteArray(400000, 'a'));
    row("a value without end", "<message device='" + QByteArray(400000, 'm'));
    row("depth without end", QByteArray("<a>").repeated(80000));
    row("the greatest depth",
        QByteArray("<a>").repeated(37000) + QByteArray("</a>").repeated(37000));
    row("names that do not match",
        '<' + QByteArray(4000, 'a') + "></" + QByteArray(4000, 'b') + '>');
    row("a message that ends amid its BLOB",
        "<setBLOBVector device='Camera' name='CCD1'><oneBLOB name='CCD1' size='9' format='.fits'>"
        "QUJD");
    row("other messages", "<message device='Camera' message='" + QByteArray(5000, 'm') + "'/>\n");
}

void IndiHostileTest::goodFramesComeThrough()
{
    QFETCH(QByteArray, harm);
    HostileServer server(harm, blobOf(".fits", golden()));
    IndiSource source(server.port(), "Camera");
    source.exposure = 0.05;
    QVERIFY2(comesTrue([&] { return source.frame(20), server.harmsDone() > 0; }),
             qPrintable(source.lines().join("\n")));
    for (int i = 0; i < 3; ++i)
        QVERIFY2(!source.frame(returnTimeout).empty(), qPrintable(source.lines().join("\n")));
    QVERIFY2(source.slowest < callTimeout, qPrintable(QString::number(source.slowest)));
}

/// By each connection; some servers send them without being asked.
void IndiHostileTest::picturesAreAskedForFirst()
{
    HostileServer server("", blobOf(".fits", golden()));
    IndiSource source(server.port(), "Camera");
    source.exposure = 0.05;
    int begin = -1; // of what the latest connection says
    for (int connection = 1; connection <= 2; ++connection) {
        const auto exposes = [&] {
            (void)source.frame(50);
            const int latest = server.heard().lastIndexOf("<getProperties version");
            return latest > begin && server.heard().indexOf("'CCD_EXPOSURE'", latest) > 0;
        };
        QVERIFY2(comesTrue(exposes), server.heard().constData());
        begin = server.heard().lastIndexOf("<getProperties version");
        const QByteArray heard = server.heard().mid(begin);
        const int place = heard.indexOf(">Also</enableBLOB>");
        QVERIFY2(place > 0 && place < heard.indexOf("'CCD_EXPOSURE'"), heard.constData());
        server.drop();
    }
}

void IndiHostileTest::lossIsOnlyWhatACameraNeeds_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<bool>("isLoss");
    QTest::newRow("a temperature that is gone") << QByteArray("CCD_TEMPERATURE") << false;
    QTest::newRow("binning") << QByteArray("CCD_BINNING") << false;
    QTest::newRow("connection") << QByteArray("CONNECTION") << true;
    QTest::newRow("exposure") << QByteArray("CCD_EXPOSURE") << true;
    QTest::newRow("pictures") << QByteArray("CCD1") << true;
    QTest::newRow("the whole device") << QByteArray() << true;
}

void IndiHostileTest::lossIsOnlyWhatACameraNeeds()
{
    QFETCH(QByteArray, property);
    QFETCH(bool, isLoss);
    const QByteArray temperature =
        "<defNumberVector name='CCD_TEMPERATURE' device='Camera' state='Ok' perm='rw'>"
        "<defNumber name='CCD_TEMPERATURE_VALUE' format='%g' min='-50' max='50' step='0'>0"
        "</defNumber></defNumberVector>\n";
    const QByteArray removal = property.isEmpty()
                                   ? QByteArray("<delProperty device='Camera'/>\n")
                                   : "<delProperty device='Camera' name='" + property + "'/>\n";
    const HostileServer server(temperature + removal, blobOf(".fits", golden()));
    IndiSource source(server.port(), "Camera");
    source.exposure = 0.05;
    QVERIFY(!source.frame(patience).empty());
    const auto saysLoss = [&] {
        (void)source.frame(50);
        return source.lines().join("\n").contains("taken the device back");
    };
    if (isLoss) {
        QTRY_VERIFY(saysLoss());
        QVERIFY2(!source.frame(returnTimeout).empty(), qPrintable(source.lines().join("\n")));
        QVERIFY2(source.slowest < callTimeout, qPrintable(QString::number(source.slowest)));
        return;
    }
    for (int i = 0; i < 20; ++i)
        QVERIFY2(!source.frame(patience).empty(), qPrintable(source.lines().join("\n")));
    QVERIFY2(!saysLoss(), qPrintable(source.lines().join("\n")));
    QCOMPARE(server.connections(), 1);
}

void IndiHostileTest::renamedDeviceIsNamedAndComesBack()
{
    HostileServer server({}, blobOf(".fits", golden()));
    IndiSource source(server.port(), "Camera");
    source.exposure = 0.05;
    QVERIFY(!source.frame(patience).empty());
    server.rename(true);
    const QString line = "the INDI server has no device of this name; it has: Camera 2";
    QTRY_VERIFY((source.frame(50), source.lines().join("\n").contains(line)));
    QVERIFY(!source.isPresent());
    while (!source.frame(300).empty()) { // none is left from before
    }
    server.rename(false);
    QVERIFY2(!source.frame(returnTimeout).empty(), qPrintable(source.lines().join("\n")));
    QVERIFY(source.isPresent());
    QVERIFY2(source.slowest < callTimeout, qPrintable(QString::number(source.slowest)));
}

void IndiHostileTest::jpegFramesAreRight_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<bool>("colour");
    QTest::newRow("a streamed frame") << QByteArray(".stream_jpg") << false;
    QTest::newRow("a streamed frame in colour") << QByteArray(".stream_jpg") << true;
    QTest::newRow("an exposure") << QByteArray(".jpg") << false;
    QTest::newRow("an exposure of another suffix") << QByteArray(".jpeg") << true;
}

/// Four grey fields and a ramp: no mirroring, no turn and no other brightness goes unnoticed.
void IndiHostileTest::jpegFramesAreRight()
{
    QFETCH(QByteArray, format);
    QFETCH(bool, colour);
    cv::Mat wanted(960, 1280, CV_8UC1);
    for (int y = 0; y < wanted.rows; ++y)
        for (int x = 0; x < wanted.cols; ++x)
            wanted.at<uchar>(y, x) =
                uchar(20 + (x >= 640 ? 60 : 0) + (y >= 480 ? 100 : 0) + x / 40);
    cv::Mat sent = wanted;
    if (colour)
        cv::cvtColor(wanted, sent, cv::COLOR_GRAY2BGR);
    std::vector<uchar> jpeg;
    QVERIFY(cv::imencode(".jpg", sent, jpeg, {cv::IMWRITE_JPEG_QUALITY, 95}));
    const QByteArray bytes(reinterpret_cast<const char *>(jpeg.data()), int(jpeg.size()));
    const HostileServer server({}, blobOf(format, bytes), wanted.cols, wanted.rows);
    IndiSource source(server.port(), "Camera");
    source.exposure = 0.05;
    const cv::Mat frame = source.frame(patience);
    QVERIFY2(!frame.empty(), qPrintable(source.lines().join("\n")));
    cv::Mat difference;
    cv::absdiff(frame, wanted, difference);
    QVERIFY2(cv::mean(difference)[0] < 2.0, qPrintable(QString::number(cv::mean(difference)[0])));
}

/// For the sanitizers, above all. How often the client learns of a property before the server goes
/// depends on how busy the machine is.
void IndiHostileTest::serverGoesWhileWeSend()
{
    const LeavingServer server;
    int known = 0;
    for (int time = 0; time < 5000 && known < 100; ++time) {
        framesources::IndiClient client("127.0.0.1", server.port(), "Camera");
        if (!client.connectServer()) // it had gone already
            continue;
        while (client.isConnected()) {
            for (int i = 0; i < 20; ++i)
                client.sendNumbers("CCD_EXPOSURE", {{"CCD_EXPOSURE_VALUE", 0.05}});
            client.waitForNews(std::chrono::milliseconds(0));
        }
        known += client.has("PROPERTY_1") ? 1 : 0;
    }
    QVERIFY2(known == 100, qPrintable(QString::number(known)));
}

namespace
{
struct Held {
    int threads, descriptors;
    qint64 bytes; ///< of the heap; 0 under a sanitizer, which has a heap of its own
};

/// While the server takes nobody in, so that no frame is on its way.
Held heldWithout(HostileServer &server, IndiSource &source)
{
    server.leaveAfter(0);
    while (!source.frame(600).empty()) {
    }
    const auto heap = mallinfo2();
    return {runningThreads(), openDescriptors(), qint64(heap.uordblks + heap.hblkhd)};
}
} // namespace

void IndiHostileTest::lossesLeaveNothingBehind()
{
    constexpr int warmUp = 3, cycles = 20;
    HostileServer server({}, blobOf(".fits", golden()), 40, 24, 10);
    IndiSource source(server.port(), "Camera");
    source.exposure = 0.05;
    Held before = {};
    for (int cycle = 0; cycle < warmUp + cycles; ++cycle) {
        if (cycle == warmUp)
            before = heldWithout(server, source);
        server.leaveAfter(2);
        QVERIFY2(!source.frame(returnTimeout).empty(), qPrintable(source.lines().join("\n")));
        QTRY_VERIFY((source.frame(10), !source.isPresent()));
    }
    const Held after = heldWithout(server, source);
    // One more while a client is being sent away.
    QVERIFY2(std::abs(after.threads - before.threads) <= 1,
             qPrintable(QString::number(after.threads)));
    QVERIFY2(after.descriptors <= before.descriptors + 2,
             qPrintable(QString("%1, before %2").arg(after.descriptors).arg(before.descriptors)));
    QVERIFY2(after.bytes - before.bytes < 200000,
             qPrintable(QString("%1 bytes more").arg(after.bytes - before.bytes)));
    QVERIFY2(source.slowest < callTimeout, qPrintable(QString::number(source.slowest)));
    qInfo("%d losses: %lld bytes", cycles, after.bytes - before.bytes);
}

QTEST_GUILESS_MAIN(IndiHostileTest)
#include "tst_indihostile.moc"
