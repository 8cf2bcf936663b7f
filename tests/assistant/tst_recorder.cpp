// SPDX-License-Identifier: MIT
// Are recorded frames FITS files that others read, and does the recording end in time?
#include "assistant/recorder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace assistant;

class RecorderTest : public QObject
{
    Q_OBJECT

private slots:
    void headerAndPixels_data();
    void headerAndPixels();
    void endsAtTheLimit();
    void earlierRunsCount();
    void endsWhenTheDiskRefuses();
    void offRecordsNothing();
};

void RecorderTest::headerAndPixels_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("axes");
    QTest::addColumn<QByteArray>("data"); // its beginning
    QTest::newRow("8 bit") << CV_8UC1 << QByteArray("2")
                           << QByteArray("\x01\x02\x03\x04\x05\x06", 6);
    QTest::newRow("16 bit") << CV_16UC1 << QByteArray("2")
                            << QByteArray("\x80\x01\x80\x02\x80\x03\x80\x04\x80\x05\x80\x06", 12);
    QTest::newRow("colour") << CV_8UC3 << QByteArray("3")
                            << QByteArray("\x03\x06\x09\x0c\x0f\x12\x02\x05", 8);
}

void RecorderTest::headerAndPixels()
{
    QFETCH(int, type);
    QFETCH(QByteArray, axes);
    QFETCH(QByteArray, data);
    cv::Mat frame(2, 3, type);
    for (int row = 0, value = 0; row < frame.rows; ++row)
        for (int i = 0; i < frame.cols * frame.channels(); ++i) {
            ++value;
            if (frame.depth() == CV_8U)
                frame.ptr<std::uint8_t>(row)[i] = std::uint8_t(value);
            else
                frame.ptr<std::uint16_t>(row)[i] = std::uint16_t(value);
        }
    const QByteArray file = fitsOf(frame, 1795204800.5, 0.5);
    QCOMPARE(file.size(), 2 * 2880); // whole blocks
    const auto card = [&](const char *key) {
        for (int at = 0; at < 2880; at += 80)
            if (file.mid(at, 8).trimmed() == key)
                return file.mid(at + 10, 70).split('/').first().trimmed();
        return QByteArray("absent");
    };
    QVERIFY(file.startsWith("SIMPLE  =                    T"));
    QCOMPARE(card("NAXIS"), axes);
    QCOMPARE(card("NAXIS1"), QByteArray("3"));
    QCOMPARE(card("NAXIS2"), QByteArray("2"));
    QCOMPARE(card("NAXIS3"), QByteArray(axes == "3" ? "3" : "absent"));
    QCOMPARE(card("BITPIX"), QByteArray(type == CV_16UC1 ? "16" : "8"));
    QCOMPARE(card("DATE-OBS"), QByteArray("'2026-11-20T20:00:00.250'"));
    QCOMPARE(card("EXPTIME"), QByteArray("0.500000"));
    QCOMPARE(file.mid(2880, data.size()), data);
    QCOMPARE(file.mid(5700), QByteArray(60, '\0'));
}

void RecorderTest::endsAtTheLimit()
{
    const QTemporaryDir folder;
    assistant::Settings settings;
    settings.recording = true;
    settings.recordingFolder = folder.filePath("frames");
    settings.recordingLimitMegabytes = 1.0;
    Recorder recorder;
    recorder.use(settings);
    const cv::Mat frame(480, 640, CV_8UC1, cv::Scalar(9)); // 0.31 MB
    for (int i = 0; i < 3; ++i) {
        QVERIFY(!recorder.record(frame, 1795204800.0 + i, 0.2));
        QVERIFY(!recorder.record(frame, 1795204800.1 + i, 0.2)); // too soon: left out
    }
    for (int i = 3; i < 6; ++i)
        QVERIFY(recorder.record(frame, 1795204800.0 + i, 0.2)->code == AdviceCode::RecordingFull);
    QCOMPARE(recorder.files(), std::size_t(3));
    const QFileInfoList files = QDir(settings.recordingFolder).entryInfoList(QDir::Files);
    QCOMPARE(files.size(), 3);
    QCOMPARE(files.first().fileName(), QStringLiteral("sky-20261120T200000Z.fits"));
    QVERIFY(files.first().size() % 2880 == 0);
    settings.recordingLimitMegabytes = 2.0; // more room
    recorder.use(settings);
    QVERIFY(!recorder.record(frame, 1795204900.0, 0.2));
}

void RecorderTest::earlierRunsCount()
{
    const QTemporaryDir folder;
    assistant::Settings settings;
    settings.recording = true;
    settings.recordingFolder = folder.path();
    settings.recordingLimitMegabytes = 1.0;
    const cv::Mat frame(480, 640, CV_8UC1, cv::Scalar(9)); // 0.31 MB
    QFile other(folder.filePath("other.fits"));            // of somebody else
    QVERIFY(other.open(QIODevice::WriteOnly) && other.resize(2000000));
    for (int run = 0; run < 3; ++run) {
        Recorder recorder;
        recorder.use(settings);
        QVERIFY(!recorder.record(frame, 1795204800.0 + run, 0.2));
    }
    Recorder fourth;
    fourth.use(settings);
    QVERIFY(fourth.record(frame, 1795204810.0, 0.2)->code == AdviceCode::RecordingFull);
    QVERIFY(QFile::remove(folder.filePath("sky-20261120T200000Z.fits")));
    QVERIFY(fourth.record(frame, 1795204811.0, 0.2)->code == AdviceCode::RecordingFull);
    settings.recording = false;
    fourth.use(settings);
    settings.recording = true;
    fourth.use(settings); // there is room now
    QVERIFY(!fourth.record(frame, 1795204812.0, 0.2));
}

void RecorderTest::endsWhenTheDiskRefuses()
{
    assistant::Settings settings;
    settings.recording = true;
    settings.recordingFolder = QStringLiteral("/dev/null/frames");
    Recorder recorder;
    recorder.use(settings);
    const cv::Mat frame(48, 64, CV_8UC1, cv::Scalar(9));
    const auto advice = recorder.record(frame, 1795204800.0, 0.2);
    QVERIFY(advice && advice->code == AdviceCode::RecordingFailed);
    QCOMPARE(advice->text, std::string("/dev/null/frames"));
}

void RecorderTest::offRecordsNothing()
{
    const QTemporaryDir folder;
    assistant::Settings settings;
    settings.recordingFolder = folder.path();
    Recorder recorder;
    recorder.use(settings);
    QVERIFY(!recorder.record(cv::Mat(48, 64, CV_8UC1, cv::Scalar(9)), 1795204800.0, 0.2));
    QVERIFY(QDir(folder.path()).isEmpty());
}

QTEST_GUILESS_MAIN(RecorderTest)
#include "tst_recorder.moc"
