// SPDX-License-Identifier: MIT
// Does the camera library take its frames from where the sky file says, and change over as it
// changes?
#include <QtTest>
#include <opencv2/imgcodecs.hpp>

#include "tests/virtualcamera/veldixfixture.h"

class ChosenSourceTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void filesByTheSkyFile();
    void changesOverWhileLive();
    void partOfTheFrame();
    void missingKeyIsNoCamera_data();
    void missingKeyIsNoCamera();
    void noServerIsNoCamera();

private:
    QByteArray filesSky() const
    {
        return "[camera]\nsource = files\nfiles = " + folder.path().toUtf8() + "\n";
    }
    bool fetched(VeldixFrame &frame, void *handle, int patience = 10000)
    {
        return QTest::qWaitFor([&] { return frame.fetch(veldix(), handle) == 0; }, patience);
    }

    QTemporaryDir folder;
};

void ChosenSourceTest::initTestCase()
{
    cv::Mat picture(960, 1280, CV_8UC1, cv::Scalar(33));
    picture.at<uchar>(500, 700) = 99;
    QVERIFY(cv::imwrite(folder.filePath("a.png").toStdString(), picture));
    QTest::qWait(400); // it is no longer being written
    QCOMPARE(veldix().initResource(), 0u);
}

void ChosenSourceTest::filesByTheSkyFile()
{
    setSky(filesSky());
    QCOMPARE(veldix().scan(), 1);
    QCOMPARE(idAt(0), QByteArray("QUORVANDEL-files"));
    QCOMPARE(veldix().open("QUORVANDEL-V0001"), nullptr);
    void *const handle = veldix().openLive("QUORVANDEL-files");
    QVERIFY(handle);
    VeldixFrame frame;
    for (int time = 0; time < 3; ++time) {
        QVERIFY(fetched(frame, handle));
        QCOMPARE(frame.width, 1280u);
        QCOMPARE(frame.height, 960u);
        QCOMPARE(frame.bpp, 8u);
        QCOMPARE(frame.channels, 1u);
        QCOMPARE(int(frame.buffer[500 * 1280 + 700]), 99);
        QCOMPARE(int(frame.buffer[0]), 33);
    }
    QCOMPARE(veldix().close(handle), 0u);
}

void ChosenSourceTest::changesOverWhileLive()
{
    setSky("[camera]\nsource = sky\n[faults]\npicture = saturated\n");
    void *const handle = veldix().openLive();
    QVERIFY(handle);
    VeldixFrame frame;
    QVERIFY(fetched(frame, handle));
    QCOMPARE(int(frame.buffer[500 * 1280 + 700]), 255);
    setSky(filesSky());
    QVERIFY(QTest::qWaitFor(
        [&] { return frame.fetch(veldix(), handle) == 0 && frame.buffer[500 * 1280 + 700] == 99; },
        10000));
    setSky("[faults]\npicture = black\n");
    QVERIFY(QTest::qWaitFor(
        [&] { return frame.fetch(veldix(), handle) == 0 && frame.buffer[500 * 1280 + 700] == 0; },
        10000));
    QCOMPARE(veldix().close(handle), 0u);
}

void ChosenSourceTest::partOfTheFrame()
{
    setSky(filesSky());
    void *const handle = veldix().openLive("QUORVANDEL-files");
    QVERIFY(handle);
    QCOMPARE(veldix().setResolution(handle, 600, 400, 200, 150), 0u);
    VeldixFrame frame;
    QVERIFY(fetched(frame, handle));
    QCOMPARE(frame.width, 200u);
    QCOMPARE(frame.height, 150u);
    QCOMPARE(int(frame.buffer[100 * 200 + 100]), 99);
    QCOMPARE(veldix().close(handle), 0u);
}

void ChosenSourceTest::missingKeyIsNoCamera_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("files") << QByteArray("[camera]\nsource = files\n");
    QTest::newRow("indi") << QByteArray("[camera]\nsource = indi\n");
}

void ChosenSourceTest::missingKeyIsNoCamera()
{
    QFETCH(QByteArray, text);
    setSky(text);
    QCOMPARE(veldix().scan(), 0);
    setSky("[camera]\nsource = sky\n");
    QCOMPARE(veldix().scan(), 1);
}

void ChosenSourceTest::noServerIsNoCamera()
{
    setSky("[camera]\nsource = indi\nindi = 127.0.0.1:1/Nothing\n");
    QTRY_COMPARE_WITH_TIMEOUT(veldix().scan(), 0, 10000);
}

QTEST_GUILESS_MAIN(ChosenSourceTest)
#include "tst_chosensource.moc"
