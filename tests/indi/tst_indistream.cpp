// SPDX-License-Identifier: MIT
// When are frames taken from the video of an INDI device, and when by single exposures?
#include <QFileInfo>
#include <QtTest>

#include "framesources/indicamera.h"
#include "tests/indi/blobs.h"
#include "tests/indi/hostileserver.h"
#include "tests/indi/indiserver.h"
#include "tests/support/patience.h"

namespace
{
constexpr int exposed = 50, streamed = 200; // brightness of the server's frames
const cv::Size sensorSize(40, 24);

QByteArray exposedFrame()
{
    const QByteArray file = fitsOf(cv::Mat(sensorSize, CV_8UC1, cv::Scalar(exposed)));
    return blobOf(".fits", file, file.size());
}

QByteArray streamedFrame(cv::Size size = sensorSize)
{
    const QByteArray bytes = rawBytes(cv::Mat(size, CV_8UC1, cv::Scalar(streamed)));
    return blobOf(".stream", bytes, bytes.size());
}

/// A server with frames of both kinds, and its camera, called as the camera's thread does.
struct Video {
    explicit Video(const framesources::StreamChoice::Pauses &pauses,
                   const QByteArray &frame = streamedFrame())
        : camera(
              addressOf(server), true,
              [this](const std::string &line) { lines.append(QString::fromStdString(line)); },
              pauses)
    {
        server.offerStream(frame);
        wish.exposureSeconds = 0.05;
        wish.wanted = true;
    }

    /// Whether such a frame comes.
    bool comes(int brightness)
    {
        return comesTrue([&] {
            const auto frame = camera.next(wish);
            return frame && frame->pixels.at<uchar>(0, 0) == brightness;
        });
    }

    int heard(const char *words) const { return server.heard().count(words); }

    HostileServer server{{}, exposedFrame()};
    QStringList lines;
    framesources::IndiCamera camera;
    framesources::Wish wish;
};
} // namespace

class IndiStreamTest : public QObject
{
    Q_OBJECT

private slots:
    void silentStreamIsTriedAgain_data();
    void silentStreamIsTriedAgain();
    void unreadableStreamGivesWay();
    void eachStreamHasOneLineOfFaults();
    void faultsBetweenGoodExposures();
    void ownWorkIsNoSilence();
    void lateFramesAnswerNoExposure();
    void videoThatEndsItsDriver();
    void videoIsAllThatThereIs();
};

void IndiStreamTest::silentStreamIsTriedAgain_data()
{
    QTest::addColumn<bool>("isSilent"); // when it is tried
    QTest::addColumn<bool>("isDropped");
    QTest::addColumn<double>("firstPause"); // seconds
    QTest::newRow("after a while") << false << false << 1.0;
    QTest::newRow("after a new connection") << false << true << 3600.0;
    QTest::newRow("in vain, after a while") << true << false << 1.0;
    QTest::newRow("in vain, after a new connection") << true << true << 3600.0;
}

/// With shortened pauses.
void IndiStreamTest::silentStreamIsTriedAgain()
{
    QFETCH(bool, isSilent);
    QFETCH(bool, isDropped);
    QFETCH(double, firstPause);
    framesources::StreamChoice::Pauses pauses;
    pauses.silence = 0.6;
    pauses.attempt = isSilent ? 0.3 : 5.0;
    pauses.connection = 0.5;
    pauses.first = firstPause;
    Video video(pauses);
    video.server.mute(true);
    QVERIFY2(video.comes(exposed), qPrintable(video.lines.join("\n")));
    QCOMPARE(video.lines.last(),
             QString("the video stream has no frames; single exposures are used"));
    video.server.mute(isSilent);
    if (isDropped)
        video.server.drop();
    if (!isSilent) {
        QVERIFY2(video.comes(streamed), qPrintable(video.lines.join("\n")));
        QCOMPARE(video.lines.last(), QString("the video stream has frames again"));
    } else {
        QTRY_VERIFY((video.camera.next(video.wish), video.heard("'STREAM_ON'>On") >= 2));
        QVERIFY2(video.comes(exposed), qPrintable(video.lines.join("\n"))); // that was waiting
        QVERIFY2(video.comes(exposed), qPrintable(video.lines.join("\n")));
    }
    QCOMPARE(video.server.connections(), isDropped ? 2 : 1);
}

void IndiStreamTest::unreadableStreamGivesWay()
{
    framesources::StreamChoice::Pauses pauses;
    pauses.silence = 0.6;
    Video video(pauses, streamedFrame({39, 24}));
    QVERIFY2(video.comes(exposed), qPrintable(video.lines.join("\n")));
    QCOMPARE(video.lines,
             (QStringList{
                 "connected", "a streamed frame of 936 bytes does not fit 40 x 24 pixels",
                 "the video stream has no frames that can be read; single exposures are used"}));
}

/// Whatever its frames lack, and although good ones come in between.
void IndiStreamTest::eachStreamHasOneLineOfFaults()
{
    Video video({}, streamedFrame({39, 24}));
    const auto streamSome = [&video](int width) {
        video.server.offerStream(streamedFrame({width, 24}));
        const int before = video.server.streamedFrames();
        QTRY_VERIFY((video.camera.next(video.wish), video.server.streamedFrames() > before + 2));
    };
    for (const int width : {39, 38, sensorSize.width, 37, 36})
        streamSome(width);
    const QStringList first = {"connected",
                               "a streamed frame of 936 bytes does not fit 40 x 24 pixels"};
    QCOMPARE(video.lines, first);
    video.server.drop();
    QTRY_VERIFY((video.camera.next(video.wish), video.server.connections() == 2));
    for (const int width : {35, 34})
        streamSome(width);
    QCOMPARE(video.lines.mid(first.size() + 1).size(), 2); // behind the loss
    QCOMPARE(video.lines.at(first.size() + 1), QString("connected"));
    QVERIFY2(video.lines.last().startsWith("a streamed frame of "), qPrintable(video.lines.last()));
}

/// Each is reported: nothing else would say why the picture stands still.
void IndiStreamTest::faultsBetweenGoodExposures()
{
    HostileServer server({}, exposedFrame());
    QStringList lines;
    framesources::IndiCamera camera(
        addressOf(server), false,
        [&lines](const std::string &line) { lines.append(QString::fromStdString(line)); }, {});
    framesources::Wish wish;
    wish.exposureSeconds = 0.05;
    wish.wanted = true;
    int reported = 1;                                       // that it is connected
    for (const char *const format : {".fits", ".stream"}) { // the faults differ
        server.answer(exposedFrame());
        QVERIFY2(comesTrue([&] { return bool(camera.next(wish)); }), qPrintable(lines.join("\n")));
        server.answer(blobOf(format, "nothing", 7));
        QTRY_COMPARE((camera.next(wish), int(lines.size())), reported + 1);
        ++reported;
    }
}

/// The caller may look for stars between two calls, for longer than a stream may be silent.
void IndiStreamTest::ownWorkIsNoSilence()
{
    framesources::StreamChoice::Pauses pauses;
    pauses.silence = 1.2;
    Video video(pauses);
    QVERIFY2(video.comes(streamed), qPrintable(video.lines.join("\n")));
    video.server.mute(true);
    int empty = 0; // looks in a row: none is on its way
    QTRY_VERIFY((empty = video.camera.next(video.wish) ? 0 : empty + 1) >= 5);
    QTest::qSleep(1500);
    QVERIFY(!video.camera.next(video.wish));
    video.server.mute(false);
    QVERIFY2(video.comes(streamed), qPrintable(video.lines.join("\n")));
    QCOMPARE(video.heard("STREAM_OFF"), 0);
}

/// An exposure too long for video was begun while frames of the video were on their way.
void IndiStreamTest::lateFramesAnswerNoExposure()
{
    Video video({});
    QVERIFY2(video.comes(streamed), qPrintable(video.lines.join("\n")));
    video.server.linger(true);
    video.wish.exposureSeconds = 2.5;
    QTRY_VERIFY((video.camera.next(video.wish), video.heard("CCD_EXPOSURE_VALUE") > 0));
    for (int late = 0; late < 5; ++late)
        QVERIFY2(video.comes(streamed), qPrintable(video.lines.join("\n")));
    QCOMPARE(video.heard("CCD_EXPOSURE_VALUE"), 1);
    video.server.linger(false);
    QVERIFY2(video.comes(exposed), qPrintable(video.lines.join("\n")));
    QCOMPARE(video.server.connections(), 1);
}

/// INDI's server starts the driver again, which gives exposures.
void IndiStreamTest::videoThatEndsItsDriver()
{
    if (!IndiServer::isInstalled() || !QFileInfo::exists(GSC_FOLDER "/indi_test_video"))
        QSKIP("indi-bin is not installed, or our driver was not built");
    IndiServer server;
    server.variables["VIDEO_CAMERA_DIES"] = "1";
    QVERIFY(server.start({"indi_test_video"}, videoCamera));
    QStringList lines;
    framesources::IndiCamera camera(
        addressOf(server.port, videoCamera), true,
        [&lines](const std::string &line) { lines.append(QString::fromStdString(line)); });
    framesources::Wish wish;
    wish.exposureSeconds = 0.05;
    wish.wanted = true;
    for (int frames = 0; frames < 10; ++frames)
        QVERIFY2(comesTrue([&] { return bool(camera.next(wish)); }), qPrintable(lines.join("\n")));
    QCOMPARE(lines.filter("taken the device back").size(), 1);
    QCOMPARE(lines.last(), QString("the connection ended before the video stream had a frame; "
                                   "single exposures are used"));
}

/// Then its failures are no reason to wait.
void IndiStreamTest::videoIsAllThatThereIs()
{
    framesources::StreamChoice::Pauses pauses;
    pauses.connection = pauses.first = 3600.0;
    Video video(pauses);
    video.server.withholdExposures();
    video.server.mute(true);
    QTRY_VERIFY((video.camera.next(video.wish), video.heard("STREAM_ON") == 1));
    video.server.drop();
    QTRY_VERIFY((video.camera.next(video.wish), video.server.connections() == 2));
    video.server.mute(false);
    QVERIFY2(video.comes(streamed), qPrintable(video.lines.join("\n")));
}

QTEST_GUILESS_MAIN(IndiStreamTest)
#include "tst_indistream.moc"
