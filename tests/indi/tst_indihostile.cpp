// SPDX-License-Identifier: MIT
// Does a server that sends garbage do no harm, and do good frames after it come through?
#include <QtTest>
#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>
#include <random>

#include "tests/indi/hostileserver.h"
#include "tests/indi/indisource.h"
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
    void lossIsOnlyWhatACameraNeeds_data();
    void lossIsOnlyWhatACameraNeeds();
    void renamedDeviceIsNamedAndComesBack();
    void jpegFramesAreRight_data();
    void jpegFramesAreRight();
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
    row("device taken back", "<delProperty device='Camera'/>\n");
    row("property taken back", "<delProperty device='Camera' name='CCD1'/>\n");
    row("no XML", randomBytes(5000, 9));
    row("wrong end", "<setBLOBVector device='Camera' name='CCD1'></other>\n");
    row("many elements", QByteArray("<a>").repeated(500) + QByteArray("</a>").repeated(500) + '\n');
    row("other messages", "<message device='Camera' message='" + QByteArray(5000, 'm') + "'/>\n");
}

void IndiHostileTest::goodFramesComeThrough()
{
    QFETCH(QByteArray, harm);
    HostileServer server(harm, blobOf(".fits", golden()));
    IndiSource source(server.port(), "Camera");
    source.exposure = 0.05;
    for (int i = 0; i < 3; ++i) {
        const cv::Mat frame = source.frame(25000);
        QVERIFY2(!frame.empty(), qPrintable(source.lines().join("\n")));
    }
    QVERIFY(server.harmsDone() > 0);
    QVERIFY2(source.slowest < 100, qPrintable(QString::number(source.slowest)));
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
        QVERIFY2(!source.frame(patience).empty(), qPrintable(source.lines().join("\n")));
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
    server.rename(false);
    while (!source.frame(300).empty()) { // none is left from before
    }
    QVERIFY2(!source.frame(patience).empty(), qPrintable(source.lines().join("\n")));
    QVERIFY(source.isPresent());
    QVERIFY2(source.slowest < 1000, qPrintable(QString::number(source.slowest)));
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

QTEST_GUILESS_MAIN(IndiHostileTest)
#include "tst_indihostile.moc"
