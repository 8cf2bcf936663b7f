// SPDX-License-Identifier: MIT
// Do the pixels arrive that the server sends, and the settings that the program makes?
#include <QtTest>
#include <opencv2/imgproc.hpp>

#include "framesources/indicamera.h"
#include "framesources/indiclient.h"
#include "framesources/indiframe.h"
#include "pictures/stretch.h"
#include "tests/indi/blobs.h"
#include "tests/indi/hostileserver.h"
#include "tests/indi/indisource.h"
#include "tests/support/patience.h"

Q_DECLARE_METATYPE(cv::Mat)

namespace
{
const cv::Size programSize(1280, 960);

/// Every row, column and channel differs: nothing that is turned, mirrored or exchanged goes
/// unnoticed.
cv::Mat ramp(cv::Size size, int type)
{
    cv::Mat out(size, type);
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x)
            for (int channel = 0; channel < out.channels(); ++channel) {
                const int value = 700 + 31 * x + 57 * y + 4099 * channel;
                if (out.depth() == CV_8U)
                    out.ptr<uchar>(y)[x * out.channels() + channel] = uchar(value % 251);
                else
                    out.ptr<ushort>(y)[x * out.channels() + channel] = ushort(value % 65521);
            }
    return out;
}

QByteArray zlibOf(const QByteArray &bytes)
{
    return qCompress(bytes).mid(4); // without Qt's own length
}

/// A field of one colour through a Bayer sensor: red 40, green 100, blue 200.
cv::Mat mosaicOf(const QByteArray &pattern)
{
    cv::Mat out(programSize, CV_8UC1);
    for (int y = 0; y < out.rows; ++y)
        for (int x = 0; x < out.cols; ++x) {
            const char colour = pattern[y % 2 * 2 + x % 2];
            out.at<uchar>(y, x) = colour == 'R' ? 40 : colour == 'G' ? 100 : 200;
        }
    return out;
}

QByteArray numberDefinition(const QByteArray &property, const QByteArray &element,
                            const QByteArray &least, const QByteArray &most)
{
    return "<defNumberVector name='" + property +
           "' device='Camera' state='Ok' perm='rw'><defNumber name='" + element +
           "' format='%g' min='" + least + "' max='" + most +
           "' step='0'>1</defNumber></defNumberVector>\n";
}
} // namespace

class IndiFramesTest : public QObject
{
    Q_OBJECT

private slots:
    void everyPixelIsDecoded_data();
    void everyPixelIsDecoded();
    void everyPixelReachesTheProgram_data();
    void everyPixelReachesTheProgram();
    void patternOfAStreamIsKnown_data();
    void patternOfAStreamIsKnown();
    void settingsReachTheServer_data();
    void settingsReachTheServer();
    void pausesGrowAndBeginAgain();
};

void IndiFramesTest::everyPixelIsDecoded_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("said"); // the size that the server says
    QTest::addColumn<cv::Mat>("wanted");
    QTest::addColumn<bool>("isMosaic");
    const auto row = [](const char *name, const char *format, const QByteArray &bytes, int said,
                        const cv::Mat &wanted, bool isMosaic = false) {
        QTest::newRow(name) << QByteArray(format) << bytes << said << wanted << isMosaic;
    };
    const cv::Size size(71, 53);
    const cv::Mat narrow = ramp(size, CV_8UC1), wide = ramp(size, CV_16UC1);
    const cv::Mat colour = ramp(size, CV_8UC3); // blue green red
    cv::Mat sent;
    cv::cvtColor(colour, sent, cv::COLOR_BGR2RGB);
    const QByteArray fits8 = fitsOf(narrow), fits16 = fitsOf(wide);
    const QByteArray raw8 = rawBytes(narrow), raw16 = rawBytes(wide), rgb = rawBytes(sent);
    row("FITS, 8 bits", ".fits", fits8, fits8.size(), narrow);
    row("FITS, 16 bits", ".fits", fits16, fits16.size(), wide);
    row("FITS, 16 bits, compressed", ".fits.z", zlibOf(fits16), fits16.size(), wide);
    row("FITS, Bayer", ".fits", fitsOf(wide, "RGGB"), fitsOf(wide, "RGGB").size(), wide, true);
    row("FITS with more than is said", ".fits", fits8 + QByteArray(1000, 'x'), fits8.size(),
        narrow);
    row("stream, 8 bits", ".stream", raw8, raw8.size(), narrow);
    row("stream, 16 bits", ".stream", raw16, raw16.size(), wide);
    row("stream, colour", ".stream", rgb, rgb.size(), colour);
    row("stream, 8 bits, compressed", ".stream.z", zlibOf(raw8), raw8.size(), narrow);
    row("stream, colour, compressed", ".stream.z", zlibOf(rgb), rgb.size(), colour);
}

void IndiFramesTest::everyPixelIsDecoded()
{
    QFETCH(QByteArray, format);
    QFETCH(QByteArray, bytes);
    QFETCH(int, said);
    QFETCH(cv::Mat, wanted);
    QFETCH(bool, isMosaic);
    const HostileServer server({}, blobOf(format, bytes, said), wanted.cols, wanted.rows);
    framesources::IndiClient client("127.0.0.1", server.port(), "Camera");
    QVERIFY(client.connectServer());
    QTRY_VERIFY((client.waitForNews(std::chrono::milliseconds(10)), client.has("CCD1")));
    client.sendNumbers("CCD_EXPOSURE", {{"CCD_EXPOSURE_VALUE", 1.0}}); // it begins to send
    std::optional<framesources::IndiBlob> blob;
    QTRY_VERIFY((client.waitForNews(std::chrono::milliseconds(10)), blob = client.takeBlob()));
    std::string fault;
    const auto frame = framesources::decodeBlob(*blob, {wanted.size(), false, {}}, fault);
    QVERIFY2(frame, fault.c_str());
    QCOMPARE(frame->pixels.type(), wanted.type());
    QCOMPARE(frame->pixels.size(), wanted.size());
    QCOMPARE(cv::norm(frame->pixels, wanted, cv::NORM_INF), 0.0);
    QCOMPARE(frame->mosaic, isMosaic);
    QCOMPARE(frame->pattern, std::string(isMosaic ? "RGGB" : ""));
}

void IndiFramesTest::everyPixelReachesTheProgram_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("definition");
    QTest::addColumn<cv::Mat>("wanted");
    const auto row = [](const QByteArray &name, const char *format, const QByteArray &bytes,
                        const cv::Mat &wanted, const QByteArray &definition = {}) {
        QTest::newRow(name.constData()) << QByteArray(format) << bytes << definition << wanted;
    };
    const cv::Mat narrow = ramp(programSize, CV_8UC1), wide = ramp(programSize, CV_16UC1);
    row("FITS, 8 bits", ".fits", fitsOf(narrow), narrow);
    row("stream, 8 bits", ".stream", rawBytes(narrow), narrow);
    row("FITS, 16 bits, stretched", ".fits", fitsOf(wide), pictures::stretched(wide));
    row("stream, 16 bits, stretched", ".stream", rawBytes(wide), pictures::stretched(wide));
    // A quarter of the red, half of the green, a quarter of the blue, wherever each is.
    const cv::Mat grey(programSize, CV_8UC1, cv::Scalar(110));
    const QByteArray isBayer = "<defTextVector name='CCD_CFA' device='Camera' state='Ok' perm='rw'>"
                               "<defText name='CFA_TYPE'>RGGB</defText></defTextVector>\n";
    for (const char *pattern : {"RGGB", "GRBG", "GBRG", "BGGR"}) {
        const cv::Mat mosaic = mosaicOf(pattern);
        row(QByteArray("FITS, ") + pattern, ".fits", fitsOf(mosaic, pattern), grey);
        row(QByteArray("stream, ") + pattern, ".stream", rawBytes(mosaic), grey, isBayer);
    }
    const cv::Mat unsaid = mosaicOf("RGGB");
    row("a pattern that nothing says", ".fits", fitsOf(unsaid), unsaid);
}

void IndiFramesTest::everyPixelReachesTheProgram()
{
    QFETCH(QByteArray, format);
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, definition);
    QFETCH(cv::Mat, wanted);
    HostileServer server({}, blobOf(format, bytes, bytes.size()), wanted.cols, wanted.rows);
    server.define(definition);
    IndiSource source(server.port(), "Camera");
    source.exposure = 0.05;
    const cv::Mat frame = source.frame(patience);
    QVERIFY2(!frame.empty(), qPrintable(source.lines().join("\n")));
    QCOMPARE(cv::norm(frame, wanted, cv::NORM_INF), 0.0);
}

void IndiFramesTest::patternOfAStreamIsKnown_data()
{
    QTest::addColumn<QByteArray>("elements");
    QTest::addColumn<QByteArray>("pattern");
    const auto text = [](const QByteArray &name, const QByteArray &value) {
        return "<defText name='" + name + "'>" + value + "</defText>";
    };
    const QByteArray type = text("CFA_TYPE", "\n RGGB\n");
    QTest::newRow("as it stands") << type << QByteArray("RGGB");
    QTest::newRow("offsets") << type + text("CFA_OFFSET_X", "1") + text("CFA_OFFSET_Y", "1")
                             << QByteArray("BGGR");
    QTest::newRow("no such pattern") << text("CFA_TYPE", "CMYG") << QByteArray();
    QTest::newRow("no type") << text("CFA_OFFSET_X", "x") << QByteArray();
}

void IndiFramesTest::patternOfAStreamIsKnown()
{
    QFETCH(QByteArray, elements);
    QFETCH(QByteArray, pattern);
    const QByteArray bytes = rawBytes(ramp({40, 24}, CV_8UC1));
    HostileServer server({}, blobOf(".stream", bytes, bytes.size()));
    server.define("<defTextVector name='CCD_CFA' device='Camera' state='Ok' perm='rw'>" + elements +
                  "</defTextVector>\n");
    framesources::IndiCamera camera(addressOf(server), true, [](const std::string &) {});
    framesources::Wish wish;
    wish.wanted = true;
    std::optional<framesources::NativeFrame> frame;
    QTRY_VERIFY((frame = camera.next(wish)));
    QVERIFY(frame->mosaic);
    QCOMPARE(frame->pattern, pattern.toStdString());
}

void IndiFramesTest::settingsReachTheServer_data()
{
    QTest::addColumn<double>("exposure"); // seconds
    QTest::addColumn<double>("gain");
    QTest::addColumn<QByteArray>("definition");
    QTest::addColumn<QByteArray>("wanted");
    const auto row = [](const char *name, double exposure, double gain,
                        const QByteArray &definition, const char *property, const char *element,
                        const char *value) {
        QTest::newRow(name) << exposure << gain << definition
                            << QByteArray("<newNumberVector device='Camera' name='") + property +
                                   "'><oneNumber name='" + element + "'>" + value +
                                   "</oneNumber></newNumberVector>";
    };
    const auto exposure = [&row](const char *name, double seconds, const QByteArray &definition,
                                 const char *value) {
        row(name, seconds, 50.0, definition, "CCD_EXPOSURE", "CCD_EXPOSURE_VALUE", value);
    };
    const QByteArray limited = numberDefinition("CCD_EXPOSURE", "CCD_EXPOSURE_VALUE", "0.5", "2");
    exposure("exposure", 0.05, {}, "0.05");
    exposure("exposure of many digits", 0.0123456789, {}, "0.0123456789");
    exposure("exposure of a microsecond", 1e-6, {}, "0.000001");
    exposure("exposure of a minute", 60.0, {}, "60");
    exposure("exposure within the device's limits", 0.75, limited, "0.75");
    exposure("exposure shorter than the device's", 0.05, limited, "0.5");
    exposure("exposure longer than the device's", 20.0, limited, "2");
    const QByteArray own = numberDefinition("CCD_GAIN", "GAIN", "0", "400");
    row("gain", 0.05, 25.0, own, "CCD_GAIN", "GAIN", "100");
    row("gain beyond the slider's end", 0.05, 200.0, own, "CCD_GAIN", "GAIN", "400");
    const auto rate = [&row](const char *name, const char *least, const char *most,
                             const char *value) {
        row(name, 0.05, 50.0,
            "<defSwitchVector name='CCD_VIDEO_STREAM' device='Camera' state='Ok' perm='rw' "
            "rule='OneOfMany'><defSwitch name='STREAM_ON'>Off</defSwitch></defSwitchVector>" +
                numberDefinition("LIMITS", "LIMITS_PREVIEW_FPS", least, most),
            "LIMITS", "LIMITS_PREVIEW_FPS", value);
    };
    rate("rate of the video", "1", "120", "50");
    rate("rate of the video within the device's limits", "1", "30", "30");
    row("gain among other controls", 0.05, 25.0,
        numberDefinition("CCD_CONTROLS", "Gain", "-20", "60"), "CCD_CONTROLS", "Gain", "0");
}

void IndiFramesTest::settingsReachTheServer()
{
    QFETCH(double, exposure);
    QFETCH(double, gain);
    QFETCH(QByteArray, definition);
    QFETCH(QByteArray, wanted);
    HostileServer server({}, blobOf(".fits", fitsOf(ramp({40, 24}, CV_8UC1)), 5760));
    server.define(definition);
    IndiSource source(server.port(), "Camera");
    source.exposure = exposure;
    source.gain = gain;
    QVERIFY2(comesTrue([&] { return source.frame(50), server.heard().contains(wanted); }),
             server.heard().constData());
}

/// A quarter of a second, then twice as long each time, at most one and a half; after frames again
/// a quarter.
void IndiFramesTest::pausesGrowAndBeginAgain()
{
    HostileServer server({}, blobOf(".fits", fitsOf(ramp({40, 24}, CV_8UC1)), 5760), 40, 24, 20);
    server.leaveAfter(0);
    IndiSource source(server.port(), "Camera");
    source.exposure = 0.05;
    QTRY_VERIFY((source.frame(10), server.connections() == 6));
    server.leaveAfter(3);
    QTRY_VERIFY((source.frame(10), server.connections() == 9));
    QVERIFY(!source.frame(patience).empty());
    const auto arrivals = server.arrivals();
    const double wanted[] = {0.25, 0.5, 1.0, 1.5, 1.5, 1.5, 0.25, 0.25}; // seconds
    for (std::size_t i = 0; i < std::size(wanted); ++i) {
        const double pause = std::chrono::duration<double>(arrivals[i + 1] - arrivals[i]).count();
        // Also the time in which the loss is noticed, and that of the frames.
        QVERIFY2(pause >= wanted[i] && pause < wanted[i] + 0.45,
                 qPrintable(QString("%1: %2 s, not %3").arg(i).arg(pause).arg(wanted[i])));
    }
}

QTEST_GUILESS_MAIN(IndiFramesTest)
#include "tst_indiframes.moc"
